#pragma once

#include "host/panels/line_reader.h"
#include "host/panels/panel_marker.h"

namespace Tamrivo
{

/// Reads a panel table or a kit table. Columns are found by their names, in any order and in any
/// case; columns of other names are ignored, and so are empty lines, carriage returns and double
/// quotes around cells. "NA" is a missing value.
///
/// Complaints are about the table as a whole; what is wrong in a line is a flaw of its marker.
/// @param panels names of the panels that are wanted; empty: all. Of the others only the markers
/// are read, not their alleles
PanelReading ReadPanelTable(LineReader& source, const std::vector<std::string>& panels = {});

} // namespace Tamrivo
