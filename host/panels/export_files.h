#pragma once

#include "host/panels/export_plan.h"

#include <ostream>
#include <string>
#include <vector>

namespace Tamrivo
{

/// Writes the plan in a format of one file: panel table, kit table or kit file. Raises
/// `ErrorNumber::InvalidArgument` for one of two.
void WriteExport(std::ostream& out, const ExportPlan& plan, const LociProgress& progress = {});

/// Writes the plan into files, of which all or none are replaced: one, or for panels and bins two.
/// Raises `ErrorNumber::InvalidArgument` when one can't be written.
void WriteExportFiles(const ExportPlan& plan, const std::vector<std::string>& paths,
                      const LociProgress& progress = {});

} // namespace Tamrivo
