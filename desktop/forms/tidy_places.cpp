#include "desktop/forms/tidy_places.h"

#include "controls/frames.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/spin_button.h"
#include "controls/text_field.h"
#include "controls/user_control.h"

#include <cstdlib>

namespace Tamrivo
{

namespace
{

constexpr int offCentre = 120; ///< Most by which a control in a row misses the row's middle, twips.
constexpr int hairOverlap = 60; ///< twips

int DoubleMiddle(const Place& place)
{
    return 2 * place.Top + place.Height;
}

bool IsField(const Control& control)
{
    return dynamic_cast<const TextField*>(&control) != nullptr ||
           dynamic_cast<const ComboBox*>(&control) != nullptr;
}

bool IsLabel(const Control& control)
{
    return dynamic_cast<const Label*>(&control) != nullptr;
}

/// What the row of a control is centred on: its first field, in a row of labels the first label.
/// Null when the control stands in no row.
const Control* LeaderOfRow(const Control& control, const Places& places)
{
    const auto first = [&](bool (*isLeader)(const Control&)) -> const Control* {
        for (const Control* leader : control.Parent().Children())
        {
            const int distance =
                DoubleMiddle(places.at(leader)) - DoubleMiddle(places.at(&control));
            if (isLeader(*leader) && std::abs(distance) <= 2 * offCentre)
                return leader;
        }
        return nullptr;
    };
    const Control* field = first(IsField);
    return field == nullptr && IsLabel(control) ? first(IsLabel) : field;
}

void CentreRows(Places& places)
{
    for (auto& [control, place] : places)
    {
        if (dynamic_cast<const Container*>(control) != nullptr)
            continue;
        const Control* leader = LeaderOfRow(*control, places);
        if (leader == nullptr)
            continue;
        if (IsLabel(*control) && IsLabel(*leader))
            place.Height = places.at(leader).Height;
        place.Top = (DoubleMiddle(places.at(leader)) - place.Height) / 2;
    }
}

void JoinSpinButtons(Places& places)
{
    for (auto& [control, place] : places)
    {
        const auto* spin = dynamic_cast<const SpinButton*>(control);
        if (spin == nullptr || spin->Linked() == nullptr)
            continue;
        const Place& field = places.at(spin->Linked());
        place = {Right(field), field.Top, place.Width, field.Height};
    }
}

void TrimOverlaps(Places& places)
{
    for (auto& [control, place] : places)
    {
        for (const Control* below : control->Parent().Children())
        {
            const Place& other = places.at(below);
            const int overlap = Bottom(place) - other.Top;
            if (other.Top > place.Top && overlap > 0 && overlap <= hairOverlap &&
                OverlapAcross(place, other))
                place.Height -= overlap;
        }
    }
}

} // namespace

Places TidyPlaces(const UserControl& form)
{
    Places places;
    for (const Control* control : form.Controls())
        places[control] = control->Place();
    CentreRows(places);
    JoinSpinButtons(places);
    TrimOverlaps(places);
    return places;
}

} // namespace Tamrivo
