#include "core/locale.h"

#include "core/text.h"

namespace Tamrivo
{

namespace
{

std::string Mark(wchar_t character)
{
    return Encode(std::u32string(1, static_cast<char32_t>(character)));
}

NumberNotation ReadNotation(const std::locale& locale)
{
    const auto& facet = std::use_facet<std::numpunct<wchar_t>>(locale);
    const bool groups = !facet.grouping().empty();
    return {Mark(facet.decimal_point()), groups ? Mark(facet.thousands_sep()) : "",
            facet.grouping()};
}

struct State
{
    std::locale Locale = std::locale::classic();
    NumberNotation Notation = ReadNotation(Locale);
};

State& Current()
{
    static State state;
    return state;
}

} // namespace

const std::locale& TextLocale()
{
    return Current().Locale;
}

const NumberNotation& TextNotation()
{
    return Current().Notation;
}

void SetTextLocale(const std::locale& locale)
{
    Current() = {locale, ReadNotation(locale)};
}

} // namespace Tamrivo
