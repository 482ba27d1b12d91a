#pragma once

#include "platform/panels/panel_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// A place in a table that can't be read.
struct PanelComplaint
{
    std::size_t Line = 0; ///< From 1.
    std::string Column;   ///< Empty: the line as a whole.
    std::string Problem;  ///< What stands there and what was expected.

    /// "line 7, column Size: ...".
    std::string Text() const;
};

/// What a table says.
struct PanelReading
{
    std::vector<PanelMarker> Markers; ///< In the order of their first lines.
    /// Empty for a table that could be read whole. Reading stops after `MaxPanelComplaints`.
    std::vector<PanelComplaint> Complaints;
};

inline constexpr std::size_t MaxPanelComplaints = 20;

/// Reads a panel table. Columns are found by their names, in any order and in any case; columns of
/// other names are ignored, and so are empty lines, a byte order mark and carriage returns.
PanelReading ReadPanelTable(std::string_view text);

} // namespace Tamrivo
