#pragma once

#include <ctime>
#include <iterator>
#include <locale>
#include <string_view>

namespace Tamrivo
{

/// Reads a date or a time that is written by a picture of the platform's, such as "dd.MM.yyyy" or
/// "h:mm:ss tt". A picture with names of months or days can't be read.
/// @param afternoon the word at `tt` for hours from noon on
/// @param state gets `std::ios_base::failbit` for a text that isn't written so
std::time_get<wchar_t>::iter_type ReadDate(std::time_get<wchar_t>::iter_type in,
                                           std::time_get<wchar_t>::iter_type end,
                                           std::wstring_view picture, std::wstring_view afternoon,
                                           std::ios_base::iostate& state, std::tm& time);

} // namespace Tamrivo
