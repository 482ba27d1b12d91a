#pragma once

#include "host/panels/export_plan.h"

#include <ostream>

namespace Tamrivo
{

/// Writes the panels file of the plan, in the form of 8 columns.
void WritePanelsFile(std::ostream& out, const ExportPlan& plan);
/// Writes the bins file that belongs to it: distances from sizes to limits with at most 4 decimals.
void WriteBinsFile(std::ostream& out, const ExportPlan& plan);

/// Whether the line of the marker in a panels file has 500 characters or more.
bool IsLongPanelsLine(const ExportedMarker& marker);

} // namespace Tamrivo
