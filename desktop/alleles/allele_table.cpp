#include "desktop/alleles/allele_table.h"

#include "desktop/alleles/allele_table_model.h"
#include "desktop/common/text.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <set>

namespace Tamrivo
{

namespace
{

/// The longest text of a column whose texts are few.
QString WidestWord(int column)
{
    AlleleFields allele;
    allele.AlleleInt1 = AlleleOrigin::Generated;
    return ToQString(AlleleColumns[column].Text(allele));
}

} // namespace

AlleleTable::AlleleTable(AlleleTableModel& rows, QWidget* parent) : QTableView(parent)
{
    setModel(&rows);
    setAccessibleName("Alleles");
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    Fit();
}

bool AlleleTable::Holds(const QWidget* widget) const
{
    return widget != nullptr && (widget == this || isAncestorOf(widget));
}

void AlleleTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Fit();
}

void AlleleTable::Fit()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    // Every heading can be read, whatever the splitter leaves to the table; a mark stands beside
    // the name.
    int width = verticalHeader()->sizeHint().width() + verticalScrollBar()->sizeHint().width() +
                2 * frameWidth();
    for (int column = 0; column < model()->columnCount(); ++column)
    {
        const QString title = ToQString(AlleleColumns[column].Title);
        const QString widest = column == 0 ? title + title : title;
        const int section = std::max(fontMetrics().horizontalAdvance(widest),
                                     fontMetrics().horizontalAdvance(WidestWord(column))) +
                            2 * fontMetrics().averageCharWidth();
        horizontalHeader()->resizeSection(column, section);
        width += section;
    }
    setMinimumWidth(width);
}

std::vector<std::int32_t> AlleleTable::SelectedRows() const
{
    std::set<std::int32_t> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        rows.insert(index.row() + 1);
    return {rows.begin(), rows.end()};
}

void AlleleTable::SelectRow(int row)
{
    const QModelIndex cell = model()->index(row, 0);
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
    scrollTo(cell);
}

void AlleleTable::EditCurrent()
{
    if (currentIndex().flags() & Qt::ItemIsEditable)
        edit(currentIndex());
}

void AlleleTable::CloseEditor()
{
    // What stands in the editor is entered.
    if (QWidget* focus = QApplication::focusWidget(); focus != this && Holds(focus))
        setFocus(Qt::OtherFocusReason);
}

} // namespace Tamrivo
