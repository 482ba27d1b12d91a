#include "host/grid/grid_model.h"

#include "core/error.h"

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& description)
{
    throw Failure(ErrorNumber::InvalidArgument, "Grid", description);
}

std::string NumberText(double number)
{
    return std::to_string(std::llround(number));
}

} // namespace

std::size_t GridModel::RowPosition(double row) const
{
    if (!(row >= 1 && row <= Rows()))
        Refuse("The grid has no row " + NumberText(row) + "; its rows are 1 to " +
               std::to_string(Rows()));
    return static_cast<std::size_t>(row) - 1;
}

std::size_t GridModel::ColumnPosition(double column) const
{
    if (!(column >= 1 && column <= Columns()))
        Refuse("The grid has no column " + NumberText(column) + "; its columns are 1 to " +
               std::to_string(Columns()));
    return static_cast<std::size_t>(column) - 1;
}

const std::string& GridModel::Cell(std::int32_t row, std::int32_t column) const
{
    return m_rows[RowPosition(row)].Cells[ColumnPosition(column)];
}

const std::string& GridModel::Header(std::int32_t column) const
{
    return m_columns[ColumnPosition(column)].Header;
}

void GridModel::SetColumns(const std::vector<GridColumn>& columns)
{
    if (columns == m_columns)
        return;
    m_updates.Rebuild([&] {
        m_rows.clear();
        m_highlighted = 0;
        m_anchor = 0;
        m_sortedBy.reset();
        m_columns = columns;
    });
}

void GridModel::SetRowCount(double rows)
{
    if (!(rows >= 0 && rows == std::floor(rows) && rows <= INT32_MAX))
        Refuse("A grid can't have " + NumberText(rows) + " rows");
    const auto count = static_cast<std::size_t>(rows);
    if (count < m_rows.size())
    {
        m_updates.Rebuild([&] {
            m_rows.resize(count);
            m_highlighted = static_cast<std::int32_t>(
                std::ranges::count(m_rows, true, &GridRow::IsHighlighted));
            m_anchor = 0;
        });
        return;
    }
    m_updates.Append([&] {
        while (m_rows.size() < count)
            m_rows.push_back({std::make_unique<std::string[]>(m_columns.size())});
    });
}

std::string GridModel::GetTextRowCol(double row, double column) const
{
    return m_rows[RowPosition(row)].Cells[ColumnPosition(column)];
}

std::string GridModel::GetValueRowCol(double row, double column) const
{
    return row == 0 ? m_columns[ColumnPosition(column)].Header : GetTextRowCol(row, column);
}

void GridModel::SetValueRowCol(double row, double column, const std::string& text, std::int32_t)
{
    std::string& cell = m_rows[RowPosition(row)].Cells[ColumnPosition(column)];
    if (m_readOnly && m_lockReadOnly)
        Refuse("The grid is read-only");
    if (cell == text)
        return;
    cell = text;
    m_updates.RowChanged(static_cast<std::int32_t>(row));
}

void GridModel::ClearRows(std::int32_t)
{
    m_updates.Rebuild([&] {
        m_rows.clear();
        m_highlighted = 0;
        m_anchor = 0;
        m_sortedBy.reset();
    });
}

void GridModel::SetBackgroundColor(std::int32_t color)
{
    m_backgroundColor = color;
    m_updates.LookChanged();
}

void GridModel::SetDisabledState(std::int32_t state)
{
    m_disabledState = state;
    m_updates.LookChanged();
}

void GridModel::SetSetting(std::int32_t dispatchID, std::variant<std::int32_t, std::int16_t> value)
{
    // They settle how the control paints and takes the mouse, which is the front end's part here.
    const bool isLong = dispatchID == 18 || dispatchID == 6 || dispatchID == 27;
    if (isLong ? !std::holds_alternative<std::int32_t>(value)
               : dispatchID != 29 || !std::holds_alternative<std::int16_t>(value))
        Refuse("The grid has no such setting " + std::to_string(dispatchID));
}

Tamrivo::Properties GridModel::Properties() const
{
    auto properties = Gridocx::Properties();
    properties.insert(properties.end(), {{"LockReadOnly", m_lockReadOnly},
                                         {"BackgroundColor", m_backgroundColor},
                                         {"TextColor", m_textColor},
                                         {"DisabledState", m_disabledState}});
    return properties;
}

} // namespace Tamrivo
