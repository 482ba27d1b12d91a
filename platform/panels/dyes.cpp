#include "platform/panels/dyes.h"

#include "core/text.h"

#include <iterator>

namespace Tamrivo
{

std::string DyeColor(std::int32_t dyeIndex)
{
    const bool known = dyeIndex >= 0 && dyeIndex < std::ssize(DyeColors);
    return known ? std::string(DyeColors[dyeIndex]) : std::to_string(dyeIndex);
}

std::optional<std::int32_t> DyeOfColor(std::string_view color)
{
    const std::string name = Trim(color);
    for (std::int32_t dye = 0; dye < std::ssize(DyeColors); ++dye)
    {
        if (EqualNoCase(name, DyeColors[dye]))
            return dye;
    }
    return std::nullopt;
}

} // namespace Tamrivo
