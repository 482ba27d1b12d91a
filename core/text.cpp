#include "core/text.h"

#include "core/case_folding.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr char32_t InvalidByteBase = 0xDC00;

/// A code point and the number of bytes that it takes.
struct Decoded
{
    char32_t Character;
    std::size_t Length;
};

Decoded DecodeFirst(std::string_view text)
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

void AppendEncoded(std::string& text, char32_t character)
{
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80)
    {
        append(character);
    }
    else if (character >= InvalidByteBase && character < InvalidByteBase + 0x100)
    {
        append(character - InvalidByteBase);
    }
    else if (character < 0x800)
    {
        append(0xC0U | (character >> 6U));
        append(0x80U | (character & 0x3FU));
    }
    else if (character < 0x10000)
    {
        append(0xE0U | (character >> 12U));
        append(0x80U | ((character >> 6U) & 0x3FU));
        append(0x80U | (character & 0x3FU));
    }
    else
    {
        append(0xF0U | (character >> 18U));
        append(0x80U | ((character >> 12U) & 0x3FU));
        append(0x80U | ((character >> 6U) & 0x3FU));
        append(0x80U | (character & 0x3FU));
    }
}

/// Takes the first character off the text, folded.
char32_t TakeFolded(std::string_view& text)
{
    const auto [character, length] = DecodeFirst(text);
    text.remove_prefix(length);
    return FoldCase(character);
}

} // namespace

std::string TrimRight(std::string_view text)
{
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string Trim(std::string_view text)
{
    return TrimRight(text.substr(std::min(text.find_first_not_of(' '), text.size())));
}

std::string FoldCase(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty())
        AppendEncoded(folded, TakeFolded(text));
    return folded;
}

int CompareNoCase(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty())
    {
        const char32_t leftCharacter = TakeFolded(left);
        const char32_t rightCharacter = TakeFolded(right);
        if (leftCharacter != rightCharacter)
            return leftCharacter < rightCharacter ? -1 : 1;
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

bool EqualNoCase(std::string_view left, std::string_view right)
{
    return CompareNoCase(left, right) == 0;
}

std::size_t CharacterCount(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(DecodeFirst(text).Length);
    return count;
}

std::string Characters(std::string_view text, std::size_t first, std::size_t count)
{
    for (; first > 0 && !text.empty(); --first)
        text.remove_prefix(DecodeFirst(text).Length);
    std::size_t length = 0;
    for (; count > 0 && length < text.size(); --count)
        length += DecodeFirst(text.substr(length)).Length;
    return std::string(text.substr(0, length));
}

std::u32string Decode(std::string_view text)
{
    std::u32string characters;
    while (!text.empty())
    {
        const auto [character, length] = DecodeFirst(text);
        characters += character;
        text.remove_prefix(length);
    }
    return characters;
}

std::string Encode(std::u32string_view characters)
{
    std::string text;
    for (const char32_t character : characters)
        AppendEncoded(text, character);
    return text;
}

bool IsUtf8(std::string_view text)
{
    while (!text.empty())
    {
        const auto [character, length] = DecodeFirst(text);
        if (character >= InvalidByteBase && character < InvalidByteBase + 0x100)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

} // namespace Tamrivo
