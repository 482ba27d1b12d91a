#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tamrivo
{

// Numbers as text, in the notation of `TextLocale`.

/// Whether the whole text reads as a number that a 64-bit float can hold: sign, digits (grouped as
/// the locale groups them or not at all), decimal mark and exponent, with blanks around it. The
/// empty text is no number.
bool IsNumeric(std::string_view text);

/// The text as a 32-bit signed integer. A fraction is rounded to the nearest whole number, a half
/// to the even neighbour.
/// Raises `ErrorNumber::NotANumber` or, past 32 bits, `ErrorNumber::OutOfRange`.
std::int32_t ToInteger(std::string_view text);

/// The text as a 64-bit float. Raises `ErrorNumber::NotANumber`.
double ToDouble(std::string_view text);

/// The decimal text of an integer, digits not grouped.
std::string IntegerText(std::int32_t value);

/// The shortest text that reads back as the same value, with an exponent only below 0.0001 and from
/// 10^15 on.
std::string DoubleText(double value);

/// The value with 2 digits after the decimal mark; sign and grouping as the locale has them.
std::string TwoDecimals(double value);

} // namespace Tamrivo
