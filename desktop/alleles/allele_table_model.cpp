#include "desktop/alleles/allele_table_model.h"

#include "desktop/common/actions.h"
#include "desktop/common/text.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace Tamrivo
{

namespace
{

using AlleleSet = std::unordered_set<std::shared_ptr<Allele>>;

AlleleSet SetOf(const AlleleRows& rows)
{
    return {rows.begin(), rows.end()};
}

QStringList ReasonsOf(int row, const std::vector<AlleleProblem>& reasons)
{
    QStringList lines;
    for (const AlleleProblem& reason : reasons)
    {
        if (reason.Row == row + 1)
            lines += ToQString(reason.Reason);
    }
    return lines;
}

Qt::Alignment AlignmentOf(int column)
{
    const bool isNumber = AlleleColumns[column].Kind == CellKind::Number;
    return Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace

AlleleTableModel::AlleleTableModel(User::AllelePaneControl& pane, const Actions& actions,
                                   QObject* parent)
    : QAbstractTableModel(parent),
      m_control(pane),
      m_actions(actions),
      m_pane(User::AllelesOf(pane))
{
    Refresh();
}

void AlleleTableModel::Refresh()
{
    const AlleleRows rows = m_pane.Rows();
    const AlleleSet wanted = SetOf(rows);
    if (std::ranges::none_of(m_rows, [&](const auto& row) { return wanted.contains(row); }))
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
        return;
    }
    RemoveAllBut(rows);
    Reorder(rows);
    InsertMissing(rows);
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void AlleleTableModel::RemoveAllBut(const AlleleRows& rows)
{
    const AlleleSet wanted = SetOf(rows);
    for (int row = rowCount() - 1; row >= 0; --row)
    {
        if (wanted.contains(m_rows[static_cast<std::size_t>(row)]))
            continue;
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }
}

void AlleleTableModel::Reorder(AlleleRows rows)
{
    std::erase_if(rows, [shown = SetOf(m_rows)](const auto& row) { return !shown.contains(row); });
    if (rows == m_rows)
        return;
    emit layoutAboutToBeChanged();
    const AlleleRows before = std::exchange(m_rows, std::move(rows));
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    for (const QModelIndex& cell : from)
        to += index(RowOf(before[static_cast<std::size_t>(cell.row())]), cell.column());
    changePersistentIndexList(from, to);
    emit layoutChanged();
}

void AlleleTableModel::InsertMissing(const AlleleRows& rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        if (i < m_rows.size() && m_rows[i] == rows[i])
            continue;
        const int row = static_cast<int>(i);
        beginInsertRows({}, row, row);
        m_rows.insert(m_rows.begin() + row, rows[i]);
        endInsertRows();
    }
}

int AlleleTableModel::RowOf(const std::shared_ptr<Allele>& allele) const
{
    return static_cast<int>(std::ranges::find(m_rows, allele) - m_rows.begin());
}

int AlleleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int AlleleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(AlleleColumns));
}

QVariant AlleleTableModel::data(const QModelIndex& index, int role) const
{
    const AlleleColumn& column = AlleleColumns[index.column()];
    if (column.Kind == CellKind::Truth && role != Qt::ToolTipRole)
        return TruthOf(index, role);
    switch (role)
    {
    case Qt::DisplayRole:
    case Qt::EditRole: return ToQString(column.Text(AlleleAt(index.row())));
    case Qt::TextAlignmentRole: return QVariant(AlignmentOf(index.column()));
    case Qt::ForegroundRole:
        if (column.SetText == nullptr)
            return QApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return (ReasonsOf(index.row(), m_pane.Problems()) +
                ReasonsOf(index.row(), m_pane.Warnings()))
            .join('\n');
    case Qt::DecorationRole: return index.column() == 0 ? MarkOf(index.row()) : QVariant();
    default: return {};
    }
}

QVariant AlleleTableModel::MarkOf(int row) const
{
    const QStyle& style = *QApplication::style();
    if (!ReasonsOf(row, m_pane.Problems()).isEmpty())
        return style.standardIcon(QStyle::SP_MessageBoxWarning);
    if (!ReasonsOf(row, m_pane.Warnings()).isEmpty())
        return style.standardIcon(QStyle::SP_MessageBoxInformation);
    return {};
}

QVariant AlleleTableModel::TruthOf(const QModelIndex& index, int role) const
{
    const AlleleColumn& column = AlleleColumns[index.column()];
    const QString text = ToQString(column.Text(AlleleAt(index.row())));
    switch (role)
    {
    case Qt::CheckStateRole: return text == "true" ? Qt::Checked : Qt::Unchecked;
    case Qt::EditRole: return text;
    case Qt::AccessibleTextRole: return ToQString(column.Title) + ": " + text;
    default: return {};
    }
}

QVariant AlleleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
        return QVariant(AlignmentOf(section));
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? QVariant(ToQString(AlleleColumns[section].Title))
                                         : QVariant(section + 1);
}

Qt::ItemFlags AlleleTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags common = QAbstractTableModel::flags(index);
    const AlleleColumn& column = AlleleColumns[index.column()];
    if (column.SetText == nullptr)
        return common;
    return common | (column.Kind == CellKind::Truth ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool AlleleTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole && role != Qt::CheckStateRole)
        return false;
    const QString text = role == Qt::EditRole             ? value.toString()
                         : value.toInt() == Qt::Unchecked ? "false"
                                                          : "true";
    return m_actions.Run([&] {
        User::EditAllele(m_control, index.row() + 1, AlleleColumns[index.column()],
                         FromQString(text));
    });
}

} // namespace Tamrivo
