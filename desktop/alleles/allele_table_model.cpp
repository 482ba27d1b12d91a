#include "desktop/alleles/allele_table_model.h"

#include "desktop/forms/actions.h"
#include "desktop/text.h"

#include <QApplication>
#include <QStyle>

#include <iterator>

namespace Tamrivo
{

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
    const auto rows = static_cast<int>(m_pane.Rows().size());
    if (rows == m_rows)
    {
        // No reset: an edit is on its way, and its editor is still open.
        if (rows > 0)
            emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int AlleleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int AlleleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(AlleleColumns));
}

QString AlleleTableModel::ProblemsOf(int row) const
{
    QStringList reasons;
    for (const AlleleProblem& problem : m_pane.Problems())
    {
        if (problem.Row == row + 1)
            reasons += ToQString(problem.Reason);
    }
    return reasons.join('\n');
}

QVariant AlleleTableModel::data(const QModelIndex& index, int role) const
{
    const AlleleColumn& column = AlleleColumns[index.column()];
    switch (role)
    {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return ToQString(CellText(*m_pane.Rows()[static_cast<std::size_t>(index.row())], column));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (index.column() == 0 ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: return ProblemsOf(index.row());
    case Qt::DecorationRole:
        if (index.column() == 0 && !ProblemsOf(index.row()).isEmpty())
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        return {};
    default: return {};
    }
}

QVariant AlleleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
        return QVariant(Qt::AlignVCenter | (section == 0 ? Qt::AlignLeft : Qt::AlignRight));
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? QVariant(ToQString(AlleleColumns[section].Title))
                                         : QVariant(section + 1);
}

Qt::ItemFlags AlleleTableModel::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool AlleleTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    std::int32_t row = index.row() + 1;
    const bool isDone = m_actions.Run([&] {
        row = User::EditAllele(m_control, row, AlleleColumns[index.column()],
                               FromQString(value.toString()));
    });
    if (isDone && row != index.row() + 1 && onMoved)
        onMoved(row - 1);
    return isDone;
}

} // namespace Tamrivo
