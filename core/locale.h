#pragma once

#include <locale>
#include <string>

namespace Tamrivo
{

/// How numbers are written: taken once from a locale.
struct NumberNotation
{
    std::string DecimalMark;
    std::string GroupingMark; ///< Empty: digits are never grouped.
    std::string Grouping; ///< Group sizes from the right, as `std::numpunct::grouping` gives them.
};

/// The locale of all numbers and dates that people read and write. The classic one until the host
/// sets another. The wide facets count, since a mark may take several bytes in UTF-8.
const std::locale& TextLocale();

/// Notation of `TextLocale`.
const NumberNotation& TextNotation();

/// Sets the locale. The host calls it once, at its start, before it opens a page.
void SetTextLocale(const std::locale& locale);

} // namespace Tamrivo
