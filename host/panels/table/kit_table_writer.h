#pragma once

#include "host/panels/export_plan.h"

#include <ostream>
#include <string>

namespace Tamrivo
{

/// Writes the plan as a kit table that strvalidator and euroformix read.
void WriteKitTable(std::ostream& out, const ExportPlan& plan, const LociProgress& progress = {});

/// Writes a kit table as it stands and behind it the lines of the plan, in the table's columns,
/// with its quotes and line ends. Raises `ErrorNumber::InvalidArgument` when the text is no kit
/// table or has a panel of the plan already, by its short name.
void AppendToKitTable(std::ostream& out, const std::string& table, const ExportPlan& plan,
                      const LociProgress& progress = {});

} // namespace Tamrivo
