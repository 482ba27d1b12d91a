#pragma once

#include "host/panels/export_plan.h"

namespace Tamrivo
{

/// Takes out the markers that the format, or a program that reads it, can't have. Gives one line
/// that says which and why, and what else of the loci the format can't carry; empty: nothing.
std::string LeaveOut(std::vector<ExportedMarker>& markers, PanelFormat format);

} // namespace Tamrivo
