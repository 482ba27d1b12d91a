#pragma once

#include "core/event.h"
#include "desktop/forms/control_view.h"
#include "desktop/forms/form_layout.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>

namespace Tamrivo
{

class CommandButton;
class UserControl;

/// Draws a form from its declarations and keeps showing its state. Hears of the form's changes for
/// as long as it lives; the form must outlive it.
class FormView : public QWidget
{
public:
    FormView(UserControl& form, const Actions& actions, const HostedViewFactory& hosted,
             QWidget* parent = nullptr);

    UserControl& Form() const { return m_form; }
    /// The view of a control; null for one that isn't drawn.
    ControlView* ViewOf(const Control& control) const;

    /// Gives the first control of the form's focus order the focus.
    void FocusFirst();
    /// Turns to the tab that the control lies on.
    void BringToView(const Control& control);
    /// Goes from one part of the form to the next or the one before: the form's own controls, then
    /// the areas of what the host brought along, such as a grid.
    void FocusNextArea(bool forward);
    /// Asks before each click of the button; only an answer of true lets it through.
    void AskBefore(const CommandButton& button, std::function<bool()> question);
    /// Leaves the field that has the focus, which runs its repair; the focus goes to `to`.
    void LeaveFocus(QWidget& to);

    QSize sizeHint() const override { return m_layout.NaturalSize(); }
    QSize minimumSizeHint() const override { return m_layout.LeastSize(); }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void NameControl(const Control& control, ControlView& view) const;
    void SetTabOrder();
    void RefreshAll();
    void ShowChange(const Control& control);
    void Fit();
    void Arrange();
    std::vector<QWidget*> Areas() const;
    void FocusOwn();

    UserControl& m_form;
    const Actions& m_actions;
    FormLayout m_layout;
    std::map<const Control*, ControlView*> m_views;
    QPointer<QWidget> m_lastOwn; ///< What had the focus when the form's own part was left.
    Connections m_changes;
};

} // namespace Tamrivo
