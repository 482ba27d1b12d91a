#include "host/panels/osiris/kit_names.h"

#include "core/text.h"
#include "host/panels/cells.h"

#include <cmath>
#include <optional>

namespace Tamrivo
{

namespace
{

/// "9.3" for "9.30"; none for what is no number of tenths from 0 on.
std::optional<std::string> NumberName(const std::string& name)
{
    const auto number = CellNumber(name);
    if (!number || *number < 0 || *number >= 100'000)
        return std::nullopt;
    std::string text = NumberCell(*number);
    const std::size_t point = text.find('.');
    const bool isTenths = point == std::string::npos || text.size() == point + 2;
    return isTenths && text.find('e') == std::string::npos ? std::optional(text) : std::nullopt;
}

} // namespace

std::string KitAlleleName(const AlleleFields& allele)
{
    struct Letter
    {
        std::string_view Name;
        const char* Number;
    };
    constexpr Letter letters[] = {{"X", "1"}, {"Y", "2"}, {"Q", "1"}, {"S", "2"}};
    for (const Letter& letter : letters)
    {
        if (EqualNoCase(Trim(allele.AlleleText1), letter.Name))
            return letter.Number;
    }
    return NumberName(allele.AlleleText1).value_or(NumberCell(std::round(allele.AlleleReal1)));
}

bool IsRenamedInKit(const AlleleFields& allele)
{
    return KitAlleleName(allele) != Trim(allele.AlleleText1);
}

} // namespace Tamrivo
