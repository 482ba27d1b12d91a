#pragma once

#include "host/panels/panel_marker.h"

#include <string_view>
#include <vector>

namespace Tamrivo
{

/// Remarks on alleles of the ladder that have no bin, and on bins that are neither virtual nor of
/// the ladder.
/// @param ladder names of the alleles in the marker's ladder, with commas between
void RemarkOnLadder(const PanelMarker& marker, std::string_view ladder,
                    std::vector<PanelRemark>& remarks);

} // namespace Tamrivo
