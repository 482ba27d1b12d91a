#include "examples/embed/memory_grid.h"

#include <algorithm>

namespace Embed
{

using namespace Tamrivo;

namespace
{

class WholeTable : public GridRange
{
    void SetTable() override {}
};

class NoStyle : public GridStyle
{
    void Free() override {}
    void SetTextColor(std::int32_t) override {}
};

class NoParam : public GridParam
{
    void EnableSelection(std::int16_t) override {}
};

MemoryGrid& Own(Gridocx& grid)
{
    return static_cast<MemoryGrid&>(grid);
}

const MemoryGrid& Own(const Gridocx& grid)
{
    return static_cast<const MemoryGrid&>(grid);
}

std::size_t Position(double row, std::size_t count)
{
    if (row < 1 || row > static_cast<double>(count))
        throw Failure(ErrorNumber::InvalidArgument, "MemoryGrid", "There is no such cell");
    return static_cast<std::size_t>(row) - 1;
}

/// Moves the rows for which `chosen(position)` holds.
template <class Chosen>
void Move(MemoryGrid& source, MemoryGrid& target, Chosen chosen)
{
    std::vector<MemoryGrid::Row> kept;
    for (std::size_t i = 0; i < source.Rows.size(); ++i)
    {
        MemoryGrid::Row& row = source.Rows[i];
        const bool isMoved = chosen(i);
        row.IsHighlighted = row.IsHighlighted && !isMoved;
        (isMoved ? target.Rows : kept).push_back(row);
    }
    source.Rows = kept;
}

} // namespace

std::string MemoryGrid::GetTextRowCol(double row, double column) const
{
    return Rows[Position(row, Rows.size())].Cells[Position(column, 2)];
}

std::string MemoryGrid::GetValueRowCol(double, double column) const
{
    return Position(column, 2) == 0 ? "Locus tag" : "Last modified";
}

void MemoryGrid::SetValueRowCol(double row, double column, const std::string& text, std::int32_t)
{
    Rows[Position(row, Rows.size())].Cells[Position(column, 2)] = text;
}

std::shared_ptr<GridRange> MemoryGrid::CreateRange()
{
    return std::make_shared<WholeTable>();
}

std::shared_ptr<GridStyle> MemoryGrid::CreateStyle()
{
    return std::make_shared<NoStyle>();
}

std::shared_ptr<GridSortInfo> MemoryGrid::CreateSortInfo()
{
    return std::make_shared<GridSortInfo>();
}

std::shared_ptr<GridParam> MemoryGrid::Param()
{
    return std::make_shared<NoParam>();
}

void MemoryGrid::SelectRange(const std::shared_ptr<GridRange>&, bool select)
{
    for (Row& row : Rows)
        row.IsHighlighted = select;
}

void MemoryGridHelper::SortByHeader(Gridocx& grid, const Grid&, const std::string&, std::int32_t)
{
    std::ranges::sort(Own(grid).Rows, {}, [](const auto& row) { return row.Cells[0]; });
}

void MemoryGridHelper::HighlightRow(Gridocx& grid, std::int32_t row)
{
    grid.SelectRange(nullptr, false);
    Own(grid).Rows[Position(row, Own(grid).Rows.size())].IsHighlighted = true;
}

std::int32_t MemoryGridHelper::HighlightedRowCount(const Gridocx& grid) const
{
    return static_cast<std::int32_t>(
        std::ranges::count(Own(grid).Rows, true, &MemoryGrid::Row::IsHighlighted));
}

bool MemoryGridHelper::IsRowHighlighted(const Gridocx& grid, double row) const
{
    return row >= 1 && row <= grid.RowCount() &&
           Own(grid).Rows[static_cast<std::size_t>(row) - 1].IsHighlighted;
}

HighlightedRows MemoryGridHelper::GetHighlightedRows(const Gridocx& grid, std::int32_t) const
{
    HighlightedRows rows;
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row)
    {
        if (IsRowHighlighted(grid, row))
            rows.Add(row);
    }
    return rows;
}

void MemoryGridHelper::SetHighlightedRows(Gridocx& grid, const HighlightedRows& rows)
{
    grid.SelectRange(nullptr, false);
    for (const std::int32_t row : rows)
        Own(grid).Rows[Position(row, Own(grid).Rows.size())].IsHighlighted = true;
}

std::int32_t MemoryGridHelper::MoveHighlightedRows(Gridocx& source, Gridocx& target)
{
    const auto rows = GetHighlightedRows(source, 1);
    const auto count = static_cast<std::int32_t>(rows.Count());
    Move(Own(source), Own(target),
         [&](std::size_t i) { return Own(source).Rows[i].IsHighlighted; });
    if (count == 0)
        return 0;
    const std::int32_t last = *(rows.begin() + (count - 1));
    return std::min(last - count + 1, static_cast<std::int32_t>(source.RowCount()));
}

void MemoryGridHelper::MoveAllRows(Gridocx& source, Gridocx& target)
{
    Move(Own(source), Own(target), [](std::size_t) { return true; });
}

void MemoryGridHelper::MoveRow(Gridocx& source, Gridocx& target, std::int32_t row)
{
    const std::size_t moved = Position(row, Own(source).Rows.size());
    Move(Own(source), Own(target), [&](std::size_t i) { return i == moved; });
}

} // namespace Embed
