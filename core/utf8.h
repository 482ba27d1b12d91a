#pragma once

#include "core/case_folding.h"

#include <cstddef>
#include <string_view>

namespace Tamrivo
{

/// An invalid byte b counts as the character with this number plus b, a lone surrogate.
inline constexpr char32_t InvalidByteBase = 0xDC00;

/// A code point and the number of bytes that it takes.
struct Decoded
{
    char32_t Character;
    std::size_t Length;
};

/// The first character of a text that isn't empty.
inline Decoded DecodeFirst(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {lead, 1};

    const std::size_t length = lead >= 0xF0 && lead < 0xF5   ? 4
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xC2 && lead < 0xE0 ? 2
                                                             : 0;
    const Decoded invalid{InvalidByteBase + lead, 1};
    if (length == 0 || text.size() < length)
        return invalid;

    char32_t character = lead & (0x7FU >> length);
    for (const char next : text.substr(1, length - 1))
    {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0U) != 0x80U)
            return invalid;
        character = (character << 6U) | (byte & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < smallest[length] || surrogate || character > 0x10FFFF)
        return invalid;
    return {character, length};
}

/// Takes the first character off the text, folded.
inline char32_t TakeFolded(std::string_view& text)
{
    const auto [character, length] = DecodeFirst(text);
    text.remove_prefix(length);
    return FoldCase(character);
}

} // namespace Tamrivo
