#include "desktop/history/history_list.h"

#include "desktop/common/text.h"

#include <QDateTime>
#include <QLocale>

namespace Tamrivo
{

namespace
{

/// "anna", or "anna as lab" where the server takes her for someone else.
QString WhoOf(const HistoryRecord& record)
{
    const bool isSame = record.ServerUser.empty() || record.ServerUser == record.Who;
    return ToQString(record.Who + (isSame ? "" : " as " + record.ServerUser));
}

QString WhenOf(const HistoryRecord& record)
{
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(record.WrittenAt),
                              QLocale::ShortFormat);
}

} // namespace

HistoryList::HistoryList(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("historyList");
    setAccessibleName("Changes");
    setHeaderLabels({"When", "Who", "Change", "Kind", "Name", "Revision", "Reason"});
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void HistoryList::Show(std::vector<HistoryRecord> records)
{
    clear();
    m_records = std::move(records);
    QList<QTreeWidgetItem*> rows;
    for (const HistoryRecord& record : m_records)
    {
        auto* row = new QTreeWidgetItem(QStringList{
            WhenOf(record), WhoOf(record), ToQString(record.Operation), ToQString(record.Kind),
            ToQString(record.Name), QString::number(record.Revision), ToQString(record.Reason)});
        row->setToolTip(0, ToQString(IsoTime(record.When())));
        row->setToolTip(1, ToQString(record.Program + " on " + record.Machine));
        rows.append(row);
    }
    addTopLevelItems(rows);
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
    if (!m_records.empty())
        setCurrentItem(topLevelItem(0));
}

std::vector<const HistoryRecord*> HistoryList::Chosen() const
{
    std::vector<const HistoryRecord*> chosen;
    for (int row = 0; row < topLevelItemCount(); ++row)
    {
        if (topLevelItem(row)->isSelected())
            chosen.push_back(&m_records[static_cast<std::size_t>(row)]);
    }
    return chosen;
}

} // namespace Tamrivo
