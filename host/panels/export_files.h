#pragma once

#include "host/panels/export_plan.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// Writes the plan into files, of which all or none are replaced: one, or for panels and bins two.
/// Raises `ErrorNumber::InvalidArgument` when one can't be written.
void WriteExportFiles(const ExportPlan& plan, const std::vector<std::string>& paths,
                      const LociProgress& progress = {});

} // namespace Tamrivo
