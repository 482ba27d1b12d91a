#include "host/loci/dyes.h"

#include "core/error.h"
#include "core/text.h"

#include <algorithm>
#include <iterator>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "Dyes", "The dyes stay as they are: " + why);
}

bool IsPrintable(std::string_view text)
{
    return std::ranges::none_of(text, [](unsigned char c) { return c < ' ' || c == 0x7F; });
}

void RequireUnlike(const Dye& one, const Dye& other)
{
    if (one.Color == other.Color)
        Refuse("two of them are " + one.Color + ". Each dye needs a colour of its own");
    if (!one.Name.empty() && EqualNoCase(one.Name, other.Name))
        Refuse("two of them are named " + one.Name + ". Each dye needs a name of its own, or none");
}

} // namespace

const KnownColor* FindColor(std::string_view name)
{
    const std::string wanted = Trim(name);
    const auto* found = std::ranges::find_if(KnownColors, [&wanted](const KnownColor& color) {
        return EqualNoCase(wanted, color.Name);
    });
    return found == std::end(KnownColors) ? nullptr : found;
}

std::string ColorNames()
{
    std::string names;
    for (const KnownColor& color : KnownColors)
    {
        const bool isLast = &color == std::prev(std::end(KnownColors));
        names.append(names.empty() ? "" : isLast ? " or " : ", ").append(color.Name);
    }
    return names;
}

std::string DyeEntry(std::int32_t dyeIndex)
{
    return "D" + std::to_string(dyeIndex + 1);
}

Dyes::Dyes() : m_dyes{{"blue", ""}, {"green", ""}, {"yellow", ""}, {"red", ""}} {}

Dyes::Dyes(std::vector<Dye> dyes) : m_dyes(std::move(dyes))
{
    if (m_dyes.size() < FewestDyes || m_dyes.size() > MostDyes)
        Refuse("there would be " + std::to_string(m_dyes.size()) + " of them, and a store has " +
               std::to_string(FewestDyes) + " to " + std::to_string(MostDyes));
    for (auto dye = m_dyes.begin(); dye != m_dyes.end(); ++dye)
    {
        const KnownColor* color = FindColor(dye->Color);
        if (color == nullptr)
            Refuse("\"" + dye->Color + "\" is none of the colours " + ColorNames());
        dye->Color = color->Name;
        dye->Name = Trim(dye->Name);
        if (!IsPrintable(dye->Name) || CharacterCount(dye->Name) > MaxDyeNameLength)
            Refuse("the name of the " + dye->Color + " one must have at most " +
                   std::to_string(MaxDyeNameLength) + " characters, none of them a control " +
                   "character");
        std::for_each(m_dyes.begin(), dye,
                      [&dye](const Dye& earlier) { RequireUnlike(*dye, earlier); });
    }
}

std::string Dyes::ColorOf(std::int32_t dyeIndex) const
{
    const bool isKnown = dyeIndex >= 0 && dyeIndex < Count();
    return isKnown ? m_dyes[static_cast<std::size_t>(dyeIndex)].Color : std::to_string(dyeIndex);
}

std::string Dyes::TitleOf(std::int32_t dyeIndex) const
{
    const bool isNamed = dyeIndex >= 0 && dyeIndex < Count() &&
                         !m_dyes[static_cast<std::size_t>(dyeIndex)].Name.empty();
    return ColorOf(dyeIndex) +
           (isNamed ? " (" + m_dyes[static_cast<std::size_t>(dyeIndex)].Name + ")" : "");
}

std::optional<std::int32_t> Dyes::OfColor(std::string_view color) const
{
    const std::string name = Trim(color);
    const auto found = std::ranges::find_if(
        m_dyes, [&name](const Dye& dye) { return EqualNoCase(name, dye.Color); });
    if (found == m_dyes.end())
        return std::nullopt;
    return static_cast<std::int32_t>(found - m_dyes.begin());
}

} // namespace Tamrivo
