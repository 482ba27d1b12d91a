#pragma once

#include "host/grid/grid_updates.h"

#include <QAbstractTableModel>

namespace Tamrivo
{

class GridModel;

/// The cells of a grid for Qt's views, read where they are.
class GridTableModel : public QAbstractTableModel, private GridObserver
{
    Q_OBJECT

public:
    /// The grid must outlive what is asked of the model, which becomes its observer.
    GridTableModel(GridModel& grid, QObject* parent);

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    void NewHighlight();
    /// The grid's colours or state have changed.
    void NewLook();

private:
    void BeginInsertRows(std::int32_t first, std::int32_t count) override;
    void EndInsertRows() override;
    void BeginRemoveRows(std::int32_t first, std::int32_t count) override;
    void EndRemoveRows() override;
    void BeginReset() override;
    void EndReset() override;
    void RowsChanged(std::int32_t first, std::int32_t last) override;
    void HighlightChanged() override;
    void LookChanged() override;

    GridModel& m_grid;
};

} // namespace Tamrivo
