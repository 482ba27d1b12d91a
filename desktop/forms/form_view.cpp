#include "desktop/forms/form_view.h"

#include "controls/label.h"
#include "controls/user.h"
#include "controls/user_control.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/forms/accessible_name.h"
#include "desktop/forms/button_views.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tamrivo
{

FormView::FormView(UserControl& form, const Actions& actions, const HostedViewFactory& hosted,
                   QWidget* parent)
    : QWidget(parent), m_form(form), m_actions(actions), m_layout(form)
{
    setObjectName(ToQString(form.Name()));
    for (Control* control : form.Controls())
    {
        const Control* container = control->Parent().AsControl();
        ControlView* outer = container != nullptr ? ViewOf(*container) : nullptr;
        if (container != nullptr && outer == nullptr)
            continue;
        QWidget& place = outer != nullptr ? outer->PlaceFor(*control) : *this;
        if (ControlView* view = NewControlView(*control, place, actions, hosted))
            m_views[control] = view;
    }
    for (const auto& [control, view] : m_views)
        NameControl(*control, *view);
    RefreshAll();
    SetTabOrder();
    Fit();
    m_changes.On(m_form.ControlChanged, [this](Control& control) { ShowChange(control); });
    m_changes.On(m_form.EnabledChanged, [this] { RefreshAll(); });
}

void FormView::RefreshAll()
{
    for (const auto& [control, view] : m_views)
        view->Refresh();
}

void FormView::ShowChange(const Control& control)
{
    // What lies in a container is out of reach with it.
    if (dynamic_cast<const Container*>(&control) != nullptr)
        RefreshAll();
    else if (ControlView* view = ViewOf(control))
        view->Refresh();
    for (const auto& [other, view] : m_views)
        view->FormChanged(control);
}

ControlView* FormView::ViewOf(const Control& control) const
{
    const auto found = m_views.find(&control);
    return found == m_views.end() ? nullptr : found->second;
}

void FormView::NameControl(const Control& control, ControlView& view) const
{
    QWidget& widget = view.Widget();
    widget.setObjectName(ToQString(control.Name()));
    if (dynamic_cast<const Label*>(&control) != nullptr)
        return;
    if (widget.accessibleName().isEmpty())
        view.FocusWidget().setAccessibleName(ToQString(AccessibleName(control)));
    const Label* label = LabelOf(control);
    if (label != nullptr && control.IsTabStop() && label->Caption().find('&') != std::string::npos)
        dynamic_cast<QLabel&>(ViewOf(*label)->Widget()).setBuddy(&view.FocusWidget());
}

void FormView::SetTabOrder()
{
    QWidget* last = nullptr;
    for (const Control* control : m_form.FocusOrder())
    {
        ControlView* view = ViewOf(*control);
        if (view == nullptr)
            continue;
        if (last != nullptr)
            setTabOrder(last, &view->FocusWidget());
        last = &view->FocusWidget();
    }
}

void FormView::FocusFirst()
{
    for (const Control* control : m_form.FocusOrder())
    {
        ControlView* view = ViewOf(*control);
        if (view != nullptr && view->FocusWidget().isEnabled() &&
            view->FocusWidget().isVisibleTo(this))
            return view->FocusWidget().setFocus(Qt::TabFocusReason);
    }
}

void FormView::BringToView(const Control& control)
{
    for (const Control* inner = &control; inner != nullptr; inner = inner->Parent().AsControl())
    {
        const auto* frame = dynamic_cast<const Frame*>(inner);
        const Control* outer = inner->Parent().AsControl();
        auto* strip =
            outer != nullptr ? dynamic_cast<TabStrip*>(m_form.Find(outer->Name())) : nullptr;
        if (frame != nullptr && strip != nullptr)
            m_actions.Run([&] { User::Turn(*strip, frame->Tab()); });
    }
}

void FormView::AskBefore(const CommandButton& button, std::function<bool()> question)
{
    dynamic_cast<ButtonView&>(*ViewOf(button)).AskFirst(std::move(question));
}

void FormView::LeaveFocus(QWidget& to)
{
    QWidget* focus = window()->focusWidget();
    if (focus != nullptr && isAncestorOf(focus))
        to.setFocus(Qt::OtherFocusReason);
}

void FormView::Fit()
{
    ensurePolished();
    m_layout.Fit([this](const Control& control) { return ViewOf(control); }, fontMetrics());
    updateGeometry();
}

void FormView::Arrange()
{
    for (const auto& [control, view] : m_views)
    {
        QRect rect = m_layout.Rect(*control, *view, size());
        const Control* container = control->Parent().AsControl();
        if (container != nullptr)
        {
            // A container may hold its children in a widget further in, such as a tab's page.
            ControlView& outer = *ViewOf(*container);
            rect.translate(-outer.PlaceFor(*control).mapTo(&outer.Widget(), QPoint()));
        }
        view->Widget().setGeometry(rect);
    }
}

void FormView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
    {
        Fit();
        Arrange();
    }
}

void FormView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Arrange();
}

void FormView::showEvent(QShowEvent* event)
{
    // Pages of a tab strip have no place before it is laid out.
    Fit();
    Arrange();
    QWidget::showEvent(event);
}

void FormView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F6)
        FocusNextArea(!(event->modifiers() & Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}

std::vector<QWidget*> FormView::Areas() const
{
    std::vector<QWidget*> areas;
    for (const Control* control : m_form.InTabOrder())
    {
        ControlView* view = ViewOf(*control);
        if (view != nullptr && view->Widget().isVisible() && view->Widget().isEnabled())
            std::ranges::copy(view->Areas(), std::back_inserter(areas));
    }
    return areas;
}

void FormView::FocusNextArea(bool forward)
{
    QWidget* focus = window()->focusWidget();
    const std::vector<QWidget*> areas = Areas();
    // 0 is the form's own part.
    std::size_t present = 0;
    for (std::size_t i = 0; i < areas.size(); ++i)
    {
        if (areas[i] == focus || areas[i]->isAncestorOf(focus))
            present = i + 1;
    }
    if (present == 0 && isAncestorOf(focus))
        m_lastOwn = focus;
    const std::size_t count = areas.size() + 1;
    const std::size_t next = (present + (forward ? 1 : count - 1)) % count;
    if (next == 0)
        FocusOwn();
    else
        areas[next - 1]->setFocus(Qt::ShortcutFocusReason);
}

void FormView::FocusOwn()
{
    if (m_lastOwn && m_lastOwn->isEnabled() && m_lastOwn->isVisible())
        return m_lastOwn->setFocus(Qt::ShortcutFocusReason);
    for (const Control* control : m_form.FocusOrder())
    {
        ControlView* view = ViewOf(*control);
        if (view != nullptr && view->Areas().empty() && view->FocusWidget().isEnabled() &&
            view->FocusWidget().isVisible())
            return view->FocusWidget().setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace Tamrivo
