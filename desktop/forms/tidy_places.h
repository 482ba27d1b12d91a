#pragma once

#include "controls/control.h"

#include <map>

namespace Tamrivo
{

class UserControl;

using Places = std::map<const Control*, Place>;

/// The declared places of a form's controls, in twips, with their small irregularities evened out:
/// what stands in one row with a field is centred on it, spin buttons stand against their fields,
/// and neighbours that overlap by a hair don't.
Places TidyPlaces(const UserControl& form);

inline int Right(const Place& place)
{
    return place.Left + place.Width;
}

inline int Bottom(const Place& place)
{
    return place.Top + place.Height;
}

inline bool OverlapAcross(const Place& a, const Place& b)
{
    return a.Left < Right(b) && b.Left < Right(a);
}

inline bool OverlapDown(const Place& a, const Place& b)
{
    return a.Top < Bottom(b) && b.Top < Bottom(a);
}

} // namespace Tamrivo
