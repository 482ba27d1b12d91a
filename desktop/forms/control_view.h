#pragma once

#include <QSize>

#include <functional>
#include <vector>

class QWidget;

namespace Tamrivo
{

class Actions;
class Control;

/// The widget that draws one control and passes on what a person does with it. Widgets belong to
/// the widget that they lie in.
class ControlView
{
public:
    virtual ~ControlView() = default;

    virtual QWidget& Widget() = 0;

    /// Brings the widget in line with the control's state.
    virtual void Refresh() = 0;

    /// Some control of the form has changed, this one or another.
    virtual void FormChanged(const Control&) {}

    /// The smallest size at which all that the form declares of the control can be read.
    virtual QSize LeastSize() const = 0;

    /// Whether a caption may reach into the free room on its right.
    virtual bool MayReachRight() const { return false; }

    /// Whether the control can use the room that the form has beyond its natural size.
    virtual bool CanGrow() const { return false; }

    /// Height that a container needs above its children, for its caption or its tabs.
    virtual int HeaderHeight() const { return 0; }

    /// The widget that a control of this container lies in.
    virtual QWidget& PlaceFor(const Control&) { return Widget(); }

    /// The widget that takes the focus.
    virtual QWidget& FocusWidget() { return Widget(); }

    /// The parts of a hosted control to which F6 goes, apart from the rest of the form. One that
    /// contains another comes before it.
    virtual std::vector<QWidget*> Areas() { return {}; }
};

/// Makes the view of a control that the host brought along; gives null for one that it doesn't
/// know.
using HostedViewFactory =
    std::function<ControlView*(Control& control, QWidget& parent, const Actions& actions)>;

/// Makes the view of a control in `parent`; null for a menu, which is shown on demand only.
ControlView* NewControlView(Control& control, QWidget& parent, const Actions& actions,
                            const HostedViewFactory& hosted);

} // namespace Tamrivo
