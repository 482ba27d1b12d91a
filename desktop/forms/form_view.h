#pragma once

#include "desktop/forms/control_view.h"
#include "desktop/forms/form_layout.h"

#include <QWidget>

#include <map>

namespace Tamrivo
{

class UserControl;

/// Draws a form from its declarations and keeps showing its state. Hears of the form's changes for
/// as long as it lives; the form must outlive it.
class FormView : public QWidget
{
public:
    FormView(UserControl& form, const Actions& actions, const HostedViewFactory& hosted,
             QWidget* parent = nullptr);
    ~FormView() override;

    UserControl& Form() const { return m_form; }
    /// The view of a control; null for one that isn't drawn.
    ControlView* ViewOf(const Control& control) const;

    /// Gives the first control of the form's focus order the focus.
    void FocusFirst();
    /// Turns to the tab that the control lies on.
    void BringToView(const Control& control);
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
    void Fit();
    void Arrange();
    void FocusNextHosted();

    UserControl& m_form;
    const Actions& m_actions;
    FormLayout m_layout;
    std::map<const Control*, ControlView*> m_views;
};

} // namespace Tamrivo
