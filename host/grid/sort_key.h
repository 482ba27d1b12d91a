#pragma once

#include "host/grid/grid_layouts.h"

#include <string>
#include <string_view>

namespace Tamrivo
{

/// A text of bytes by whose order cells of a column are sorted, so that a cell is looked into once
/// and not at every comparison.
///
/// Tags: numbers inside them count by their value (D2S441 before D12S391). Case decides only
/// between tags that are equal otherwise, and only if `caseCounts`: upper case first. Dates: by
/// time, no date first, what is no date last.
std::string SortKey(ColumnKind kind, std::string_view cell, bool caseCounts);

} // namespace Tamrivo
