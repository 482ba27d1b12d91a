#include "core/error.h"
#include "host/grid/grid_model.h"

#include <numeric>
#include <vector>

namespace Tamrivo
{

namespace
{

class TableRange : public GridRange
{
public:
    void SetTable() override { IsTable = true; }
    bool IsTable = false;
};

class TextStyle : public GridStyle
{
public:
    void Free() override { TextColor.reset(); }
    void SetTextColor(std::int32_t color) override { TextColor = color; }
    std::optional<std::int32_t> TextColor;
};

class SelectionSwitch : public GridParam
{
public:
    explicit SelectionSwitch(GridModel& grid) : m_grid(grid) {}
    void EnableSelection(std::int16_t flags) override
    {
        m_grid.EnableSelection(flags != GridSelection::Off);
    }

private:
    GridModel& m_grid;
};

template <class Own, class Object>
const Own& Require(const std::shared_ptr<Object>& object)
{
    if (const auto* own = dynamic_cast<const Own*>(object.get()))
        return *own;
    throw Failure(ErrorNumber::NoObject, "Grid", "The object was not made by a grid");
}

} // namespace

std::shared_ptr<GridRange> GridModel::CreateRange()
{
    return std::make_shared<TableRange>();
}

std::shared_ptr<GridStyle> GridModel::CreateStyle()
{
    return std::make_shared<TextStyle>();
}

std::shared_ptr<GridSortInfo> GridModel::CreateSortInfo()
{
    return std::make_shared<GridSortInfo>();
}

std::shared_ptr<GridParam> GridModel::Param()
{
    return std::make_shared<SelectionSwitch>(*this);
}

void GridModel::SetStyleRange(const std::shared_ptr<GridRange>& range,
                              const std::shared_ptr<GridStyle>& style, std::int16_t)
{
    const auto color = Require<TextStyle>(style).TextColor;
    if (!Require<TableRange>(range).IsTable || !color)
        return;
    m_textColor = *color;
    m_updates.LookChanged();
}

void GridModel::SelectRange(const std::shared_ptr<GridRange>& range, bool select)
{
    if (!Require<TableRange>(range).IsTable)
        return;
    if (!select)
        return ClearHighlight();
    std::vector<std::int32_t> all(m_rows.size());
    std::iota(all.begin(), all.end(), 1);
    SetHighlight(all, all.empty() ? 0 : 1);
}

void GridModel::SortRows(const std::shared_ptr<GridRange>& range, std::int32_t,
                         std::span<const std::shared_ptr<GridSortInfo>> keys, std::int32_t)
{
    if (!Require<TableRange>(range).IsTable)
        return;
    std::vector<RowSortKey> rowKeys;
    for (const auto& key : keys)
    {
        if (!key || key->nRC < 1 || key->nRC > Columns())
            continue;
        const auto cell = static_cast<std::size_t>(key->nRC - 1);
        rowKeys.push_back(
            {cell, m_columns[cell].Kind, key->bCase, key->SortOrder == GridSortInfo::Descending});
    }
    Sort(rowKeys);
}

GridModel& ModelOf(Gridocx& grid)
{
    if (auto* model = dynamic_cast<GridModel*>(&grid))
        return *model;
    throw Failure(ErrorNumber::NoObject, "Grid", "The grid is not one of this host");
}

const GridModel& ModelOf(const Gridocx& grid)
{
    if (const auto* model = dynamic_cast<const GridModel*>(&grid))
        return *model;
    throw Failure(ErrorNumber::NoObject, "Grid", "The grid is not one of this host");
}

} // namespace Tamrivo
