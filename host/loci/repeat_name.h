#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// An allele's name as a number of repeats: "9.3" is nine whole repeats and three nucleotides of a
/// tenth.
struct RepeatName
{
    std::int32_t Repeats = 0;
    std::int32_t Nucleotides = 0; ///< 0 to 9.

    /// Nucleotides in all, by the length of the repeat unit.
    double Length(std::int32_t repeatLength) const
    {
        return static_cast<double>(Repeats) * repeatLength + Nucleotides;
    }
    /// "9.3"; "9" without nucleotides.
    std::string Text() const;

    bool operator==(const RepeatName&) const = default;
};

/// The name as repeats, or none. Blanks around it don't count; "9.30" is "9.3".
std::optional<RepeatName> ReadRepeatName(std::string_view name);

} // namespace Tamrivo
