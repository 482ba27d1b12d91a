#pragma once

#include "core/event.h"
#include "desktop/forms/control_view.h"
#include "host/alleles/pane_user.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QAction;

namespace Tamrivo
{

struct LengthRange;
class AllelePicture;
class AlleleTable;
class AlleleTableModel;
class AlleleTools;
class ObservedComparison;

/// The allele pane of a form: the rows as a table beside a picture of their bins, with buttons
/// above. The Tab key of the form passes it by; in it, Tab goes from the table to the buttons, the
/// picture and the table again.
class AllelePaneView : public QWidget, public ControlView
{
public:
    AllelePaneView(User::AllelePaneControl& pane, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    bool CanGrow() const override { return true; }
    QWidget& FocusWidget() override;
    std::vector<QWidget*> Areas() override;
    void FormChanged(const Control& control) override;

    /// Leaves undo and redo to the page, which has them for the fields too.
    void LeaveUndoToPage();
    /// Selects a row, counted from 1, and gives it the focus.
    void GoTo(std::int32_t row);
    /// Chooses the first row of an allele with the name, if there is one.
    void ChooseAllele(const std::string& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void LayOut();
    void MakeActions();
    void FollowPerson();
    QAction* AddAction(const QString& text, const char* icon, const QList<QKeySequence>& shortcuts,
                       const std::function<void()>& action);
    void ShowRows();
    void ShowPicture();
    void ShowState();
    void MarkSelected();
    /// The locus's fragment range, as the page has it; none without a locus.
    std::optional<LengthRange> Range() const;

    void LeaveRow();
    void AddRow();
    void RemoveRows();
    void Paste();
    /// Asks for a table of observed sizes.
    void Compare();

    User::AllelePaneControl& m_control;
    const Actions& m_actions;
    AllelePane& m_pane;
    AlleleTableModel* m_model;
    AlleleTools* m_tools;
    AlleleTable* m_table;
    AllelePicture* m_picture;
    ObservedComparison* m_observed;
    QAction* m_remove = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    Connection m_changes;
};

} // namespace Tamrivo
