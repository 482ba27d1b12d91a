#include "desktop/import/difference_view.h"

#include "desktop/common/text.h"

#include <QHeaderView>

namespace Tamrivo
{

DifferenceView::DifferenceView(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("importDifferences");
    setAccessibleName("What is different in the store");
    setHeaderLabels({"Allele", "Field", "In the store", "In the file"});
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    hide();
}

void DifferenceView::Show(const PlannedLocus* locus)
{
    clear();
    setVisible(locus != nullptr && !locus->Differences.empty());
    if (locus == nullptr)
        return;
    QList<QTreeWidgetItem*> rows;
    for (const Difference& difference : locus->Differences)
        rows.append(new QTreeWidgetItem(
            QStringList{ToQString(difference.Allele), ToQString(difference.Field),
                        difference.Stored.empty() ? "(nothing)" : ToQString(difference.Stored),
                        difference.File.empty() ? "(nothing)" : ToQString(difference.File)}));
    addTopLevelItems(rows);
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

} // namespace Tamrivo
