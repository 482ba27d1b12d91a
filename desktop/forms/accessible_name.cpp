#include "desktop/forms/accessible_name.h"

#include "controls/buttons.h"
#include "controls/container.h"
#include "controls/label.h"
#include "controls/spin_button.h"
#include "controls/text_field.h"
#include "desktop/forms/tidy_places.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

int Middle(const Place& place)
{
    return place.Top + place.Height / 2;
}

/// Whether `left` stands in the row of `control`, on its left.
bool IsLeftInRow(const Control& left, const Control& control)
{
    const Place& place = control.Place();
    const int middle = Middle(left.Place());
    return Right(left.Place()) <= place.Left && place.Top <= middle && middle <= Bottom(place);
}

/// What stands next to the left in the control's row; null at its beginning.
const Control* NextLeft(const Control& control, const Control& row)
{
    const Control* nearest = nullptr;
    for (const Control* other : control.Parent().Children())
    {
        const bool isNearer = nearest == nullptr || other->Place().Left > nearest->Place().Left;
        if (other != &control && other->Place().Left < control.Place().Left &&
            IsLeftInRow(*other, row) && isNearer)
            nearest = other;
    }
    return nearest;
}

const Label* LabelAbove(const Control& control)
{
    const Label* nearest = nullptr;
    for (const Control* other : control.Parent().Children())
    {
        const auto* label = dynamic_cast<const Label*>(other);
        if (label == nullptr || Middle(label->Place()) >= control.Place().Top ||
            !OverlapAcross(label->Place(), control.Place()))
            continue;
        if (nearest == nullptr || label->Place().Top > nearest->Place().Top)
            nearest = label;
    }
    return nearest;
}

/// Caption of a label, check box or option button, without the mark of its access key.
std::string CaptionOf(const Control* control)
{
    std::string caption;
    if (const auto* label = dynamic_cast<const Label*>(control))
        caption = label->Caption();
    else if (const auto* box = dynamic_cast<const CheckBox*>(control))
        caption = box->Caption();
    else if (const auto* option = dynamic_cast<const OptionButton*>(control))
        caption = option->Caption();
    std::erase(caption, '&');
    return caption;
}

} // namespace

const Label* LabelOf(const Control& control)
{
    if (const auto* label = dynamic_cast<const Label*>(NextLeft(control, control)))
        return label;
    return LabelAbove(control);
}

std::string AccessibleName(const Control& control)
{
    const auto* spin = dynamic_cast<const SpinButton*>(&control);
    if (spin != nullptr && spin->Linked() != nullptr)
        return AccessibleName(*spin->Linked());

    std::string name;
    bool mayCrossField = spin != nullptr;
    for (const Control* left = NextLeft(control, control); left != nullptr;
         left = NextLeft(*left, control))
    {
        const std::string caption = CaptionOf(left);
        const bool isField = dynamic_cast<const TextField*>(left) != nullptr;
        if (caption.empty() && !(isField && mayCrossField))
            break;
        if (!caption.empty())
            name = caption + (name.empty() ? "" : " " + name);
        mayCrossField = !caption.ends_with(':');
    }
    if (name.empty())
        name = CaptionOf(LabelAbove(control));
    if (name.ends_with(':'))
        name.pop_back();
    return name;
}

} // namespace Tamrivo
