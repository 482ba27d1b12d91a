#pragma once

#include "host/panels/panel_marker.h"

#include <string_view>

namespace Tamrivo
{

/// Reads a panel table or a kit table. Columns are found by their names, in any order and in any
/// case; columns of other names are ignored, and so are empty lines, a byte order mark, carriage
/// returns and double quotes around cells. "NA" is a missing value.
///
/// Complaints are about the table as a whole; what is wrong in a line is a flaw of its marker.
PanelReading ReadPanelTable(std::string_view text);

} // namespace Tamrivo
