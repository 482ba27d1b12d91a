#include "host/grid/grid_user.h"

#include "controls/user_control.h"
#include "host/grid/grid_model.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace Tamrivo::User
{

namespace
{

GridModel& Reach(const GridControl& grid)
{
    RequireReach(grid);
    return ModelOf(grid.Object());
}

void RequireRow(const GridControl& grid, std::int32_t row)
{
    const GridModel& model = ModelOf(grid.Object());
    if (row >= 1 && row <= model.Rows())
        return;
    throw Refusal(grid.Name() + " has no row " + std::to_string(row) +
                  (model.Rows() == 0 ? "; it is empty"
                                     : "; its rows are 1 to " + std::to_string(model.Rows())));
}

void RequireCell(const GridControl& grid, std::int32_t row, std::int32_t column)
{
    if (row != 0)
        RequireRow(grid, row);
    const std::int32_t columns = ModelOf(grid.Object()).Columns();
    if (column < 1 || column > columns)
        throw Refusal(grid.Name() + " has no column " + std::to_string(column) +
                      (columns == 0 ? "; it has none yet"
                                    : "; its columns are 1 to " + std::to_string(columns)));
}

void GiveFocus(GridControl& grid)
{
    for (Control* control : grid.Form().Controls())
    {
        if (const auto* other = dynamic_cast<GridControl*>(control))
            ModelOf(other->Object()).SetHasFocus(other == &grid);
    }
    grid->GotFocus();
}

void BringFocus(GridControl& grid)
{
    if (!ModelOf(grid.Object()).HasFocus())
        GiveFocus(grid);
}

void Highlight(GridControl& grid, std::span<const std::int32_t> rows, std::int32_t anchor,
               std::int32_t column)
{
    grid->SelectionStarted(anchor, column, 0, nullptr, nullptr);
    ModelOf(grid.Object()).SetHighlight(rows, anchor);
    grid->SelectionChanged(nullptr, 0, 0);
}

} // namespace

void GotFocus(GridControl& grid)
{
    Reach(grid);
    GiveFocus(grid);
}

void Click(GridControl& grid, std::int32_t row, std::int32_t column)
{
    const GridModel& model = Reach(grid);
    RequireCell(grid, row, column);
    BringFocus(grid);
    if (row > 0 && model.AllowsSelection())
        Highlight(grid, {&row, 1}, row, column);
    grid->CellClicked(row, column, 0, nullptr, nullptr);
}

void Toggle(GridControl& grid, std::int32_t row)
{
    const GridModel& model = Reach(grid);
    RequireRow(grid, row);
    BringFocus(grid);
    if (!model.AllowsSelection())
        return;
    grid->NoticeA(0, 0, nullptr);
    std::vector<std::int32_t> rows = model.HighlightedRows();
    auto place = std::ranges::lower_bound(rows, row);
    if (place == rows.end() || *place != row)
    {
        rows.insert(place, row);
        Highlight(grid, rows, row, 1);
        return;
    }
    place = rows.erase(place);
    const auto nearest = place != rows.end() ? place : std::prev(place, rows.empty() ? 0 : 1);
    Highlight(grid, rows, rows.empty() ? 0 : *nearest, 1);
}

void ExtendTo(GridControl& grid, std::int32_t row)
{
    GridModel& model = Reach(grid);
    RequireRow(grid, row);
    BringFocus(grid);
    if (model.HighlightedCount() == 0)
        return Click(grid, row);
    if (!model.AllowsSelection())
        return;
    grid->NoticeB(0, 0, nullptr);
    const std::int32_t anchor =
        model.Anchor() != 0 ? model.Anchor() : model.HighlightedRows().front();
    const auto [first, last] = std::minmax(anchor, row);
    std::vector<std::int32_t> rows(static_cast<std::size_t>(last - first) + 1);
    std::iota(rows.begin(), rows.end(), first);
    if (model.SetHighlight(rows, anchor))
        grid->SelectionChanged(nullptr, 0, 0);
}

void DoubleClick(GridControl& grid, std::int32_t row, std::int32_t column)
{
    Click(grid, row, column);
    GridEventResult result;
    grid->CellDoubleClicked(row, column, 0, nullptr, result);
}

void RightClick(GridControl& grid, std::int32_t row, std::int32_t column)
{
    Reach(grid);
    RequireCell(grid, row, column);
    BringFocus(grid);
    grid->CellRightClicked(row, column, 0, nullptr, nullptr);
}

} // namespace Tamrivo::User
