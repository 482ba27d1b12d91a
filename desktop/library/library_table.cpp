#include "desktop/library/library_table.h"

#include "desktop/library/library_columns.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QMenu>
#include <QSettings>

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr const char* columnsKey = "library/columns";

} // namespace

LibraryTable::LibraryTable(QWidget* parent) : QTableView(parent)
{
    setObjectName("loci");
    setAccessibleName("Loci");
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    QHeaderView& header = *horizontalHeader();
    header.setHighlightSections(false);
    header.setSectionsMovable(true);
    header.setStretchLastSection(true);
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&header, &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { OfferColumns(horizontalHeader()->mapToGlobal(place)); });
    connect(this, &QTableView::doubleClicked, this, &LibraryTable::EditAsked);
    FitRows();
}

LibraryTable::~LibraryTable()
{
    QSettings().setValue(columnsKey, horizontalHeader()->saveState());
}

void LibraryTable::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    const auto columns = LibraryColumns();
    horizontalHeader()->setSortIndicator(TagColumn, Qt::AscendingOrder);
    if (!horizontalHeader()->restoreState(QSettings().value(columnsKey).toByteArray()))
    {
        for (std::size_t column = 0; column < columns.size(); ++column)
            setColumnHidden(static_cast<int>(column), !columns[column].IsShown);
        WidenColumns();
    }
    setSortingEnabled(true);
}

void LibraryTable::WidenColumns()
{
    constexpr int widths[] = {18, 12, 12, 0, 0, 12, 12, 0, 22, 26, 14}; // Characters.
    const int character = fontMetrics().averageCharWidth();
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
    {
        const QString title = LibraryColumns()[static_cast<std::size_t>(column)].Title;
        setColumnWidth(column, std::max(widths[column] * character,
                                        fontMetrics().horizontalAdvance(title) + 4 * character));
    }
}

void LibraryTable::FitRows()
{
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
}

void LibraryTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
    {
        FitRows();
        WidenColumns();
    }
}

std::vector<int> LibraryTable::ChosenRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
    {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void LibraryTable::ChooseRows(const std::vector<int>& rows)
{
    QItemSelection selection;
    const int last = model()->columnCount() - 1;
    for (std::size_t at = 0; at < rows.size();)
    {
        std::size_t end = at;
        while (end + 1 < rows.size() && rows[end + 1] == rows[end] + 1)
            ++end;
        selection.append({model()->index(rows[at], 0), model()->index(rows[end], last)});
        at = end + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (rows.empty())
        return;
    const QModelIndex first = model()->index(rows.front(), 0);
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    scrollTo(first);
}

void LibraryTable::CopyChosen() const
{
    QString text;
    const auto addLine = [&](auto&& textOf) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column)
        {
            if (!isColumnHidden(column))
                cells += textOf(column).toString();
        }
        text += cells.join('\t') + '\n';
    };
    addLine([&](int column) { return model()->headerData(column, Qt::Horizontal); });
    for (const int row : ChosenRows())
        addLine([&](int column) { return model()->index(row, column).data(); });
    QApplication::clipboard()->setText(text);
}

void LibraryTable::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn)
        emit EditAsked();
    else if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier)
        emit DeleteAsked();
    else
        QTableView::keyPressEvent(event);
}

void LibraryTable::OfferColumns(QPoint place)
{
    QMenu menu(this);
    const auto columns = LibraryColumns();
    for (int column = 0; column < static_cast<int>(columns.size()); ++column)
    {
        QAction* action = menu.addAction(columns[static_cast<std::size_t>(column)].Title);
        action->setCheckable(true);
        action->setChecked(!isColumnHidden(column));
        action->setEnabled(column != TagColumn);
        connect(action, &QAction::toggled, this,
                [this, column](bool isOn) { setColumnHidden(column, !isOn); });
    }
    menu.exec(place);
}

} // namespace Tamrivo
