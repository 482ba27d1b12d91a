#include "desktop/forms/control_view.h"

#include "desktop/forms/button_views.h"
#include "desktop/forms/container_views.h"
#include "desktop/forms/label_view.h"
#include "desktop/forms/list_views.h"
#include "desktop/forms/spin_view.h"
#include "desktop/forms/text_field_view.h"

namespace Tamrivo
{

namespace
{

template <class View, class Kind>
ControlView* NewOf(Control& control, QWidget& parent, const Actions& actions)
{
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind == nullptr ? nullptr : new View(*kind, parent, actions);
}

constexpr ControlView* (*kinds[])(Control&, QWidget&, const Actions&) = {
    NewOf<TextFieldView, TextField>, NewOf<LabelView, Label>,
    NewOf<CheckBoxView, CheckBox>,   NewOf<OptionView, OptionButton>,
    NewOf<ComboView, ComboBox>,      NewOf<ListView, ListBox>,
    NewOf<SpinView, SpinButton>,     NewOf<ButtonView, CommandButton>,
    NewOf<FrameView, Frame>,         NewOf<TabStripView, TabStrip>,
};

} // namespace

ControlView* NewControlView(Control& control, QWidget& parent, const Actions& actions,
                            const HostedViewFactory& hosted)
{
    for (const auto newView : kinds)
    {
        if (ControlView* view = newView(control, parent, actions))
            return view;
    }
    return hosted ? hosted(control, parent, actions) : nullptr;
}

} // namespace Tamrivo
