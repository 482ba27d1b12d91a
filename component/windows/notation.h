#pragma once

#include <locale>

namespace Tamrivo
{

/// How the person who is logged on has numbers and dates written: decimal mark, digit grouping,
/// short date and time, as the platform's settings are now. `std::locale` knows only "C" there.
std::locale NotationOfPerson();

/// Makes it the `TextLocale`, once, unless a host has set another one.
void TakeNotationOfPerson();

} // namespace Tamrivo
