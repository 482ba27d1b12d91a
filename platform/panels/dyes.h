#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// The colours by which panel tables name the dyes; the position is `LocusFields::DyeIndex`.
inline constexpr std::string_view DyeColors[] = {"blue", "green", "yellow", "red"};

/// The colour of a dye; for a position that has none, the number.
std::string DyeColor(std::int32_t dyeIndex);
/// The dye of a colour, case and blanks around it aside, or none.
std::optional<std::int32_t> DyeOfColor(std::string_view color);

} // namespace Tamrivo
