#pragma once

#include "desktop/forms/control_view.h"
#include "platform/alleles/pane_user.h"

#include <QWidget>

#include <optional>

class QAction;
class QLabel;
class QTableView;

namespace Tamrivo
{

struct LengthRange;
class AllelePicture;
class AlleleTableModel;

/// The allele pane of a form: the rows as a table beside a picture of their bins.
class AllelePaneView : public QWidget, public ControlView
{
public:
    AllelePaneView(User::AllelePaneControl& pane, QWidget& parent, const Actions& actions);
    ~AllelePaneView() override;

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    bool CanGrow() const override { return true; }
    QWidget& FocusWidget() override;
    void FormChanged(const Control& control) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void MakeActions();
    void FitTable();
    QAction* AddAction(const QString& text, const char* icon, const QList<QKeySequence>& shortcuts,
                       const std::function<void()>& action);
    void ShowRows();
    void ShowPicture();
    void ShowState();
    void MarkSelected();
    void SelectRow(int row);
    std::vector<std::int32_t> SelectedRows() const;
    /// The locus's fragment range, as the page has it; none without a locus.
    std::optional<LengthRange> Range() const;

    void AddRow();
    void RemoveRows();
    void Copy() const;
    void Paste();

    User::AllelePaneControl& m_control;
    const Actions& m_actions;
    AllelePane& m_pane;
    AlleleTableModel* m_model;
    QTableView* m_table;
    AllelePicture* m_picture;
    QLabel* m_state;
    QAction* m_remove = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
};

} // namespace Tamrivo
