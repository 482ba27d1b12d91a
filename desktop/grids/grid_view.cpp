#include "desktop/grids/grid_view.h"

#include "desktop/common/actions.h"
#include "desktop/forms/appearance.h"
#include "desktop/grids/grid_table_model.h"
#include "host/grid/grid_model.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace Tamrivo
{

namespace
{

QItemSelection WholeRows(const QAbstractItemModel& table, const std::vector<std::int32_t>& rows)
{
    QItemSelection selection;
    const int lastColumn = table.columnCount() - 1;
    for (std::size_t i = 0; i < rows.size();)
    {
        std::size_t end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        selection.append(QItemSelectionRange(table.index(rows[i] - 1, 0),
                                             table.index(rows[end - 1] - 1, lastColumn)));
        i = end;
    }
    return selection;
}

} // namespace

GridView::GridView(User::GridControl& grid, QWidget& parent, const Actions& actions)
    : QTableView(&parent),
      m_control(grid),
      m_actions(actions),
      m_grid(ModelOf(grid.Object())),
      m_table(new GridTableModel(m_grid, this))
{
    // Before the header has as many sections as there are rows: it looks at each one.
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    FitRows();
    setModel(m_table);
    setSelectionMode(NoSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerItem);
    ConnectHeader();
    connect(m_table, &GridTableModel::NewHighlight, this, &GridView::ShowHighlight);
    connect(m_table, &GridTableModel::NewLook, this, &GridView::ShowLook);
    connect(m_table, &QAbstractItemModel::modelReset, this, [this] {
        ShowHighlight();
        ShowOrder();
    });
    ShowLook();
}

void GridView::ConnectHeader()
{
    QHeaderView& header = *horizontalHeader();
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    header.setResizeContentsPrecision(0); // The rows in view are enough to fit a column.
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&header, &QHeaderView::sectionResized, this, [this](int column) {
        // The last one is resized with the grid.
        if (!m_isFitting && column < m_grid.Columns() - 1)
            m_hasOwnWidths = true;
    });
    connect(&header, &QHeaderView::sectionClicked, this,
            [this](int column) { m_actions.Run([&] { User::Click(m_control, 0, column + 1); }); });
    connect(&header, &QWidget::customContextMenuRequested, this,
            [this, &header](const QPoint& place) {
                const int column = header.logicalIndexAt(place);
                if (column >= 0)
                    m_actions.Run([&] { User::RightClick(m_control, 0, column + 1); });
            });
}

void GridView::ShowOrder()
{
    const auto& sorted = m_grid.Sorted();
    horizontalHeader()->setSortIndicatorShown(sorted.has_value());
    if (sorted)
        horizontalHeader()->setSortIndicator(
            sorted->Column - 1, sorted->Descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void GridView::Refresh()
{
    ApplyReach(*this, m_control);
    ShowHighlight();
    ShowOrder();
}

QSize GridView::LeastSize() const
{
    return {0, 5 * fontMetrics().lineSpacing()};
}

void GridView::ShowHighlight()
{
    if (m_grid.ShownRows() != m_grid.Rows())
        return;
    selectionModel()->select(WholeRows(*m_table, m_grid.HighlightedRows()),
                             QItemSelectionModel::ClearAndSelect);
    // The keys go on from what the logic has highlighted.
    const int anchor = m_grid.Anchor();
    const bool isCurrent =
        CurrentRow() > 0 && CurrentRow() <= m_grid.Rows() && m_grid.IsHighlighted(CurrentRow());
    if (anchor > 0 && !isCurrent)
        GoTo(anchor);
}

void GridView::ShowLook()
{
    QPalette look;
    // White and black are what an enabled grid looks like; in a dark theme that is the theme's own.
    const bool isGreyed = m_grid.BackgroundColor() == GridColor::ButtonFace;
    if (isGreyed)
    {
        look.setColor(QPalette::Base, look.color(QPalette::Button));
        look.setColor(QPalette::Text, look.color(QPalette::Disabled, QPalette::Text));
    }
    setPalette(look);
}

void GridView::GoTo(int row)
{
    const QModelIndex cell = m_table->index(row - 1, std::max(0, currentIndex().column()));
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
}

void GridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell.isValid())
        return;
    const int row = cell.row() + 1;
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    m_actions.Run([&] {
        if (event->modifiers() & Qt::ControlModifier)
            User::Toggle(m_control, row);
        else if (event->modifiers() & Qt::ShiftModifier)
            User::ExtendTo(m_control, row);
        else
            User::Click(m_control, row, cell.column() + 1);
    });
}

void GridView::mouseMoveEvent(QMouseEvent* event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    const bool isDrag = event->buttons() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    if (isDrag && cell.isValid() && cell.row() + 1 != CurrentRow())
    {
        m_actions.Run([&] { User::ExtendTo(m_control, cell.row() + 1); });
        GoTo(cell.row() + 1);
    }
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && cell.isValid())
        m_actions.Run([&] { User::DoubleClick(m_control, cell.row() + 1, cell.column() + 1); });
}

void GridView::contextMenuEvent(QContextMenuEvent* event)
{
    const QModelIndex cell =
        event->reason() == QContextMenuEvent::Keyboard ? currentIndex() : indexAt(event->pos());
    if (cell.isValid())
        m_actions.Run([&] { User::RightClick(m_control, cell.row() + 1, cell.column() + 1); });
}

int GridView::RowOfKey(const QKeyEvent& event) const
{
    const int page = std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize() - 1);
    const int current = CurrentRow();
    // The first step into a grid without a highlight stays where the focus stands.
    const int step = m_grid.HighlightedCount() == 0 && current > 0 ? 0 : 1;
    int row = 0;
    switch (event.key())
    {
    case Qt::Key_Up: row = current - step; break;
    case Qt::Key_Down: row = current + step; break;
    case Qt::Key_PageUp: row = current - page; break;
    case Qt::Key_PageDown: row = current + page; break;
    case Qt::Key_Home: row = 1; break;
    case Qt::Key_End: row = m_grid.Rows(); break;
    default: return 0;
    }
    return m_grid.Rows() == 0 ? 0 : std::clamp(row, 1, m_grid.Rows());
}

void GridView::keyPressEvent(QKeyEvent* event)
{
    const int current = CurrentRow();
    if (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier)
        m_actions.Run(
            [&] { User::RightClick(m_control, 0, std::max(0, currentIndex().column()) + 1); });
    else if (const int row = RowOfKey(*event))
    {
        if (event->modifiers() & Qt::ShiftModifier)
            m_actions.Run([&] { User::ExtendTo(m_control, row); });
        else if (!(event->modifiers() & Qt::ControlModifier))
            m_actions.Run([&] { User::Click(m_control, row); });
        GoTo(row);
    }
    else if (event->matches(QKeySequence::SelectAll) && m_grid.Rows() > 0)
        m_actions.Run([&] {
            User::Click(m_control, 1);
            User::ExtendTo(m_control, m_grid.Rows());
        });
    else if (event->key() == Qt::Key_Space && current > 0)
        m_actions.Run([&] { User::Toggle(m_control, current); });
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && current > 0)
        m_actions.Run([&] { User::DoubleClick(m_control, current); });
    else if (!event->text().isEmpty() && event->text()[0].isPrint() &&
             !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        keyboardSearch(event->text());
    else
        event->ignore();
}

void GridView::keyboardSearch(const QString& search)
{
    QTableView::keyboardSearch(search);
    if (CurrentRow() > 0)
        m_actions.Run([&] { User::Click(m_control, CurrentRow()); });
}

void GridView::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    const auto reason = event->reason();
    const bool comesBack = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
    if (reason != Qt::MouseFocusReason && !comesBack && !User::Obstacle(m_control))
        m_actions.Run([this] { User::GotFocus(m_control); });
}

void GridView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitRows();
    if (event->type() == QEvent::ApplicationPaletteChange)
        ShowLook();
}

void GridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (!m_hasOwnWidths && m_grid.Columns() > 0)
        FitColumns();
}

void GridView::FitColumns()
{
    const QScopedValueRollback fitting(m_isFitting, true);
    // The last column shows all it has, if that leaves the others half of the room.
    const int last = m_grid.Columns() - 1;
    const int room = viewport()->width();
    const int needed = sizeHintForColumn(last) + fontMetrics().averageCharWidth();
    const int wanted = m_grid.Rows() > 0 ? needed : room * 9 / 20;
    for (int column = 0; column < last; ++column)
        horizontalHeader()->resizeSection(column, (room - std::min(wanted, room / 2)) / last);
}

void GridView::FitRows()
{
    const int height = fontMetrics().lineSpacing() * 3 / 2;
    if (verticalHeader()->defaultSectionSize() != height)
        verticalHeader()->setDefaultSectionSize(height);
}

} // namespace Tamrivo
