#include "desktop/grids/grid_table_model.h"

#include "desktop/common/text.h"
#include "host/grid/grid_model.h"

namespace Tamrivo
{

GridTableModel::GridTableModel(GridModel& grid, QObject* parent)
    : QAbstractTableModel(parent), m_grid(grid)
{
    m_grid.Observe(*this);
}

int GridTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_grid.ShownRows();
}

int GridTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_grid.Columns();
}

QVariant GridTableModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return ToQString(m_grid.Cell(index.row() + 1, index.column() + 1));
    return {};
}

QVariant GridTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return ToQString(m_grid.Header(section + 1));
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

void GridTableModel::BeginInsertRows(std::int32_t first, std::int32_t count)
{
    beginInsertRows({}, first - 1, first + count - 2);
}

void GridTableModel::EndInsertRows()
{
    endInsertRows();
}

void GridTableModel::BeginRemoveRows(std::int32_t first, std::int32_t count)
{
    beginRemoveRows({}, first - 1, first + count - 2);
}

void GridTableModel::EndRemoveRows()
{
    endRemoveRows();
}

void GridTableModel::BeginReset()
{
    beginResetModel();
}

void GridTableModel::EndReset()
{
    endResetModel();
}

void GridTableModel::RowsChanged(std::int32_t first, std::int32_t last)
{
    emit dataChanged(index(first - 1, 0), index(last - 1, m_grid.Columns() - 1));
}

void GridTableModel::HighlightChanged()
{
    emit NewHighlight();
}

void GridTableModel::LookChanged()
{
    emit NewLook();
}

} // namespace Tamrivo
