#pragma once

#include "host/reports/report.h"

#include <QAbstractTableModel>

#include <vector>

namespace Tamrivo
{

/// A report for Qt's views. Its rows are sorted here, so that what is saved and printed has the
/// order that is shown.
class ReportTableModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows a report in its own order.
    void Show(Report report);
    /// The report in the order shown.
    const Report& Shown() const { return m_report; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Numbers inside texts count by their value, dates by time.
    void sort(int column, Qt::SortOrder order) override;

private:
    Report m_report;
    Table m_table;
};

} // namespace Tamrivo
