#include "host/grid/grid_model_helper.h"

#include "core/error.h"
#include "host/grid/grid_model.h"

#include <algorithm>
#include <vector>

namespace Tamrivo
{

void GridModelHelper::PrepareGrid(Gridocx& grid, std::int32_t)
{
    ModelOf(grid).SetColumns({});
}

void GridModelHelper::ApplyLayout(Gridocx& grid, const Grid& layout, std::int32_t, std::int32_t,
                                  std::int32_t)
{
    ModelOf(grid).SetColumns(ColumnsOfLayout(layout.GridID()));
}

void GridModelHelper::SortByHeader(Gridocx& grid, const Grid& layout, const std::string& header,
                                   std::int32_t)
{
    const auto& columns = ColumnsOfLayout(layout.GridID());
    const auto found = std::ranges::find(columns, header, &GridColumn::Header);
    if (found == columns.end())
        throw Failure(ErrorNumber::InvalidArgument, "Grid",
                      "The grid has no column \"" + header + "\"");
    ModelOf(grid).SortByColumn(static_cast<std::int32_t>(found - columns.begin()) + 1);
}

void GridModelHelper::HighlightRow(Gridocx& grid, std::int32_t row)
{
    ModelOf(grid).SetHighlight({&row, 1}, row);
}

std::int32_t GridModelHelper::HighlightedRowCount(const Gridocx& grid) const
{
    return ModelOf(grid).HighlightedCount();
}

bool GridModelHelper::IsRowHighlighted(const Gridocx& grid, double row) const
{
    const GridModel& model = ModelOf(grid);
    return row >= 1 && row <= model.Rows() && model.IsHighlighted(static_cast<std::int32_t>(row));
}

HighlightedRows GridModelHelper::GetHighlightedRows(const Gridocx& grid, std::int32_t) const
{
    HighlightedRows rows;
    for (const std::int32_t row : ModelOf(grid).HighlightedRows())
        rows.Add(row);
    return rows;
}

void GridModelHelper::SetHighlightedRows(Gridocx& grid, const HighlightedRows& rows)
{
    GridModel& model = ModelOf(grid);
    const std::vector<std::int32_t> wanted(rows.begin(), rows.end());
    const bool keepsAnchor = std::ranges::find(wanted, model.Anchor()) != wanted.end();
    model.SetHighlight(wanted, keepsAnchor ? model.Anchor() : 0);
}

std::int32_t GridModelHelper::MoveHighlightedRows(Gridocx& source, Gridocx& target)
{
    return ModelOf(source).MoveHighlightedRows(ModelOf(target));
}

void GridModelHelper::MoveAllRows(Gridocx& source, Gridocx& target)
{
    ModelOf(source).MoveAllRows(ModelOf(target));
}

void GridModelHelper::MoveRow(Gridocx& source, Gridocx& target, std::int32_t row)
{
    ModelOf(source).MoveRow(row, ModelOf(target));
}

} // namespace Tamrivo
