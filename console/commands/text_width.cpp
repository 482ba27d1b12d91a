#include "console/commands/text_width.h"

#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

struct CharacterRange
{
    char32_t First;
    char32_t Last;
};

constexpr CharacterRange combining[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A}, {0x064B, 0x065F},
    {0x0900, 0x0902}, {0x093C, 0x093C}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F},
    {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F},
};

constexpr CharacterRange wide[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
};

template <std::size_t count>
bool IsIn(char32_t character, const CharacterRange (&ranges)[count])
{
    return std::ranges::any_of(ranges, [character](const CharacterRange& range) {
        return character >= range.First && character <= range.Last;
    });
}

bool IsPrintable(char32_t character)
{
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    const bool isInvalidByte = character >= 0xDC00 && character <= 0xDFFF;
    return !isControl && !isInvalidByte;
}

} // namespace

std::size_t TextWidth(std::string_view text)
{
    std::size_t width = 0;
    for (const char32_t character : Decode(text))
        width += IsIn(character, combining) ? 0U : IsIn(character, wide) ? 2U : 1U;
    return width;
}

std::string PrintableText(std::string_view text)
{
    std::u32string characters = Decode(text);
    std::ranges::replace_if(
        characters, [](char32_t character) { return !IsPrintable(character); }, U'\uFFFD');
    return Encode(characters);
}

} // namespace Tamrivo
