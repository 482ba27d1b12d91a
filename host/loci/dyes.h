#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// A colour that a dye may have, by the name that panel tables use.
struct KnownColor
{
    std::string_view Name;
    std::uint32_t OnLight; ///< The shade that is read on a light ground, 0xRRGGBB.
    std::uint32_t OnDark;  ///< The shade that is read on a dark ground.
};

/// Each shade has a contrast of at least 3 to 1 with the ground it is for (WCAG 2.1, 1.4.11).
inline constexpr KnownColor KnownColors[] = {
    {"blue", 0x1F5FBF, 0x6FA8FF},  {"green", 0x1B7F3B, 0x5FCB7F},  {"yellow", 0x967200, 0xF2D24B},
    {"red", 0xC0282D, 0xFF7B76},   {"purple", 0x7B3FA0, 0xC79BF0}, {"orange", 0xB85A00, 0xFFA552},
    {"black", 0x202020, 0xBDBDBD}, {"cyan", 0x007C8A, 0x4FD1DE},   {"brown", 0x7A4A21, 0xC9976B},
};

/// The known colour of the name, case and blanks around it aside, or null.
const KnownColor* FindColor(std::string_view name);
/// "blue, green, ... or brown".
std::string ColorNames();

/// The entry of a dye in the editor's list: "D1" for the position 0.
std::string DyeEntry(std::int32_t dyeIndex);

/// A dye of the lab.
struct Dye
{
    std::string Color; ///< The `Name` of a `KnownColor`.
    std::string Name;  ///< What the lab calls it; may be empty.

    bool operator==(const Dye&) const = default;
};

inline constexpr std::size_t FewestDyes = 4; ///< As many as the editor declares itself.
inline constexpr std::size_t MostDyes = 8;
inline constexpr std::size_t MaxDyeNameLength = 50;

/// The dyes of a lab; the position is `LocusFields::DyeIndex`.
class Dyes
{
public:
    /// Blue, green, yellow and red, those of a new store.
    Dyes();
    /// Brings the colours to the names of `KnownColor`. Raises `ErrorNumber::InvalidArgument` for
    /// fewer than `FewestDyes` or more than `MostDyes`, for a colour that isn't known, for a colour
    /// or name that comes twice, and for a name that is too long or can't be printed.
    explicit Dyes(std::vector<Dye> dyes);

    const std::vector<Dye>& All() const { return m_dyes; }
    std::int32_t Count() const { return static_cast<std::int32_t>(m_dyes.size()); }

    /// The colour of a dye; for a position that has none, the number.
    std::string ColorOf(std::int32_t dyeIndex) const;
    /// The colour, and the name if it has one: "purple (Dye5)".
    std::string TitleOf(std::int32_t dyeIndex) const;
    /// The dye of a colour, case and blanks around it aside, or none.
    std::optional<std::int32_t> OfColor(std::string_view color) const;

    bool operator==(const Dyes&) const = default;

private:
    std::vector<Dye> m_dyes;
};

} // namespace Tamrivo
