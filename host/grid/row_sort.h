#pragma once

#include "host/grid/grid_layouts.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>

namespace Tamrivo
{

/// A row of a grid: a cell a column.
struct GridRow
{
    std::unique_ptr<std::string[]> Cells;
    bool IsHighlighted = false;
};

/// One key of a sort.
struct RowSortKey
{
    std::size_t Cell = 0; ///< Position in `GridRow::Cells`.
    ColumnKind Kind = ColumnKind::Tags;
    bool CaseCounts = false;
    bool Descending = false;
};

/// Sorts the rows by the keys in their order. Rows that no key tells apart keep their order, in
/// either direction.
void SortRows(std::span<GridRow> rows, std::span<const RowSortKey> keys);

} // namespace Tamrivo
