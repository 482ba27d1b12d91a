#pragma once

#include "contracts/grid_layout.h"
#include "core/collection.h"
#include "selector/gridocx.h"

#include <cstdint>
#include <string>

namespace Tamrivo
{

/// A highlight that can be put back: the highlighted rows, counted from 1.
using HighlightedRows = Collection<std::int32_t>;

/// What the host offers for its grids; one object, shared. It works on the grids that the same host
/// creates and raises `ErrorNumber::NoObject` for any other.
///
/// Moved rows land behind the last row of the target, in their order, with all columns and not
/// highlighted. A row that doesn't exist raises `ErrorNumber::InvalidArgument`.
class GridHelper
{
public:
    virtual ~GridHelper() = default;

    /// Makes a new grid ready; the last argument is always -1.
    virtual void PrepareGrid(Gridocx& grid, std::int32_t) = 0;
    /// Gives the grid its columns, at least two, and their header texts; the last three arguments
    /// are always 0. Raises `ErrorNumber::InvalidArgument` for a layout number that is unknown.
    virtual void ApplyLayout(Gridocx& grid, const Grid& layout, std::int32_t, std::int32_t,
                             std::int32_t) = 0;
    /// Sorts the grid by the column that bears the header text and drops the highlight. The first
    /// sort by a column is ascending; each further one by the same column reverses the order. The
    /// last argument is always -1.
    virtual void SortByHeader(Gridocx& grid, const Grid& layout, const std::string& header,
                              std::int32_t) = 0;

    /// Highlights the row alone.
    virtual void HighlightRow(Gridocx& grid, std::int32_t row) = 0;
    virtual std::int32_t HighlightedRowCount(const Gridocx& grid) const = 0;
    /// False for a row that doesn't exist.
    virtual bool IsRowHighlighted(const Gridocx& grid, double row) const = 0;
    /// The present highlight; the last argument is always 1.
    virtual HighlightedRows GetHighlightedRows(const Gridocx& grid, std::int32_t) const = 0;
    /// Highlights these rows and no others.
    virtual void SetHighlightedRows(Gridocx& grid, const HighlightedRows& rows) = 0;

    /// Moves the highlighted rows. Gives the row of the source to highlight next: the one that
    /// followed the last moved row, else the last of all; 0 when none is left or none was moved.
    virtual std::int32_t MoveHighlightedRows(Gridocx& source, Gridocx& target) = 0;
    virtual void MoveAllRows(Gridocx& source, Gridocx& target) = 0;
    virtual void MoveRow(Gridocx& source, Gridocx& target, std::int32_t row) = 0;
};

} // namespace Tamrivo
