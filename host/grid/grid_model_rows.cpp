#include "core/error.h"
#include "host/grid/grid_model.h"

#include <algorithm>
#include <iterator>

namespace Tamrivo
{

void GridModel::Sort(std::span<const RowSortKey> keys)
{
    if (keys.empty())
        return;
    m_updates.Rebuild([&] {
        Tamrivo::SortRows(m_rows, keys);
        m_anchor = 0;
        m_sortedBy = {static_cast<std::int32_t>(keys.front().Cell) + 1, keys.front().Descending};
    });
}

void GridModel::SortByColumn(std::int32_t column)
{
    const std::size_t cell = ColumnPosition(column);
    const bool again = m_sortedBy && m_sortedBy->Column == column;
    const RowSortKey key{cell, m_columns[cell].Kind, false, again && !m_sortedBy->Descending};
    ClearHighlight();
    Sort({&key, 1});
}

std::vector<std::int32_t> GridModel::HighlightedRows() const
{
    std::vector<std::int32_t> rows;
    const auto count = static_cast<std::size_t>(m_highlighted);
    rows.reserve(count);
    for (std::int32_t row = 1; rows.size() < count; ++row)
    {
        if (IsHighlighted(row))
            rows.push_back(row);
    }
    return rows;
}

void GridModel::EnableSelection(bool enable)
{
    if (!enable)
        ClearHighlight();
    m_selectionEnabled = enable;
}

void GridModel::ClearHighlight()
{
    m_anchor = 0;
    if (m_highlighted == 0)
        return;
    for (const std::int32_t row : HighlightedRows())
        m_rows[RowPosition(row)].IsHighlighted = false;
    m_highlighted = 0;
    m_updates.HighlightChanged();
}

bool GridModel::SetHighlight(std::span<const std::int32_t> rows, std::int32_t anchor)
{
    if (!m_selectionEnabled)
        return false;
    const auto count = static_cast<std::int32_t>(rows.size());
    if (count == std::ranges::count_if(rows, [this](auto row) { return IsHighlighted(row); }) &&
        count == m_highlighted)
    {
        m_anchor = anchor;
        return false;
    }
    ClearHighlight();
    for (const std::int32_t row : rows)
        m_rows[RowPosition(row)].IsHighlighted = true;
    m_highlighted = count;
    m_anchor = anchor;
    m_updates.HighlightChanged();
    return true;
}

void GridModel::RequireSameColumns(const GridModel& target) const
{
    if (&target == this || target.m_columns != m_columns)
        throw Failure(ErrorNumber::InvalidArgument, "Grid",
                      "Rows move only to another grid with the same columns");
}

void GridModel::TakeOver(std::span<GridRow> rows)
{
    for (GridRow& row : rows)
        row.IsHighlighted = false;
    m_updates.Append([&] {
        m_rows.insert(m_rows.end(), std::move_iterator(rows.begin()),
                      std::move_iterator(rows.end()));
    });
}

void GridModel::MoveRow(std::int32_t row, GridModel& target)
{
    RequireSameColumns(target);
    const auto place = m_rows.begin() + static_cast<std::ptrdiff_t>(RowPosition(row));
    GridRow moved;
    m_updates.Remove(row, 1, [&] {
        moved = std::move(*place);
        m_rows.erase(place);
        m_highlighted -= moved.IsHighlighted ? 1 : 0;
        m_anchor = 0;
    });
    if (moved.IsHighlighted)
        m_updates.HighlightChanged();
    target.TakeOver({&moved, 1});
}

std::int32_t GridModel::MoveHighlightedRows(GridModel& target)
{
    RequireSameColumns(target);
    const std::vector<std::int32_t> highlighted = HighlightedRows();
    if (highlighted.empty())
        return 0;
    if (highlighted.size() == 1)
    {
        MoveRow(highlighted.front(), target);
    }
    else
    {
        std::vector<GridRow> moved;
        m_updates.Rebuild([&] {
            for (const std::int32_t row : highlighted)
                moved.push_back(std::move(m_rows[RowPosition(row)]));
            std::erase_if(m_rows, [](const GridRow& row) { return !row.Cells; });
            m_highlighted = 0;
            m_anchor = 0;
        });
        target.TakeOver(moved);
    }
    const auto next = highlighted.back() + 1 - static_cast<std::int32_t>(highlighted.size());
    return std::min(next, Rows());
}

void GridModel::MoveAllRows(GridModel& target)
{
    RequireSameColumns(target);
    std::vector<GridRow> moved;
    m_updates.Rebuild([&] {
        moved.swap(m_rows);
        m_highlighted = 0;
        m_anchor = 0;
    });
    target.TakeOver(moved);
}

} // namespace Tamrivo
