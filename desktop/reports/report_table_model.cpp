#include "desktop/reports/report_table_model.h"

#include "desktop/common/text.h"
#include "host/grid/sort_key.h"

#include <algorithm>
#include <functional>

namespace Tamrivo
{

namespace
{

QVariant AlignmentOf(const Table::Column& column)
{
    const bool isText = column.Kind == Table::Text;
    return QVariant((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

} // namespace

void ReportTableModel::Show(Report report)
{
    beginResetModel();
    m_table = TableOf(report, Audience::People);
    m_report = std::move(report);
    endResetModel();
}

int ReportTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.Rows.size());
}

int ReportTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.Columns.size());
}

QVariant ReportTableModel::data(const QModelIndex& index, int role) const
{
    const auto column = static_cast<std::size_t>(index.column());
    if (role == Qt::DisplayRole)
        return ToQString(m_table.Rows[static_cast<std::size_t>(index.row())][column]);
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(m_table.Columns[column]);
    return {};
}

QVariant ReportTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const Table::Column& column = m_table.Columns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return ToQString(column.Title);
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(column);
    return {};
}

void ReportTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0)
        return;
    const auto at = static_cast<std::size_t>(column);
    const ColumnKind kind =
        m_table.Columns[at].Kind == Table::Date ? ColumnKind::Dates : ColumnKind::Tags;
    std::vector<std::pair<std::string, std::size_t>> keys;
    for (std::size_t row = 0; row < m_table.Rows.size(); ++row)
        keys.emplace_back(SortKey(kind, m_table.Rows[row][at], false), row);
    const auto byKey = &std::pair<std::string, std::size_t>::first;
    if (order == Qt::AscendingOrder)
        std::ranges::stable_sort(keys, std::ranges::less(), byKey);
    else
        std::ranges::stable_sort(keys, std::ranges::greater(), byKey);

    Report sorted{m_report.Subject, {}, {}, m_report.OfStore};
    for (const auto& [key, row] : keys)
    {
        sorted.Keys.push_back(m_report.Keys[row]);
        sorted.Items.push_back(m_report.Items[row]);
    }
    Show(std::move(sorted));
}

} // namespace Tamrivo
