#pragma once

#include "host/checks/check_run.h"
#include "host/panels/panel_marker.h"

#include <vector>

namespace Tamrivo
{

/// Markers of files as a check looks at them, without a store: those of a panel together. What a
/// file doesn't say is as in a new locus, and no rule is asked about it.
CheckSource CheckSourceOf(std::vector<PanelMarker> markers);

} // namespace Tamrivo
