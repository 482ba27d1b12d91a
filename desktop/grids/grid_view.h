#pragma once

#include "desktop/forms/control_view.h"
#include "host/grid/grid_user.h"

#include <QTableView>

namespace Tamrivo
{

class GridModel;
class GridTableModel;

/// A grid on a form. The highlight is the grid's own: clicks and keys are handed on, and the view
/// shows what the grid then has.
///
/// Keys: arrows, Home, End and the page keys go to a row, with Shift they extend the highlight,
/// with Ctrl they leave it alone; Space takes the current row into the highlight or out of it;
/// Return is a double click; Alt+Down opens the column's menu; Ctrl+A highlights all; typing goes
/// to the next row that begins so.
class GridView : public QTableView, public ControlView
{
public:
    GridView(User::GridControl& grid, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    bool CanGrow() const override { return true; }
    std::vector<QWidget*> Areas() override { return {this}; }

    void keyboardSearch(const QString& search) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectHeader();
    void ShowHighlight();
    void ShowOrder();
    void ShowLook();
    void FitColumns();
    void FitRows();
    /// The row that a key leads to, counted from 1; 0 when it leads nowhere.
    int RowOfKey(const QKeyEvent& event) const;
    int CurrentRow() const { return currentIndex().row() + 1; }
    void GoTo(int row);

    User::GridControl& m_control;
    const Actions& m_actions;
    GridModel& m_grid;
    GridTableModel* m_table;
    bool m_isFitting = false;
    bool m_hasOwnWidths = false; ///< The person has given the columns their widths.
};

} // namespace Tamrivo
