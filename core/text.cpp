#include "core/text.h"

#include "core/utf8.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

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
    // What is ASCII, mostly all, needs no decoding.
    std::string folded(text);
    const auto rest =
        std::ranges::find_if(folded, [](char byte) { return static_cast<signed char>(byte) < 0; });
    std::transform(folded.begin(), rest, folded.begin(), [](char letter) {
        return static_cast<char>(FoldCase(static_cast<char32_t>(letter)));
    });
    const auto ascii = static_cast<std::size_t>(rest - folded.begin());
    folded.resize(ascii);
    text.remove_prefix(ascii);
    while (!text.empty())
        AppendEncoded(folded, TakeFolded(text));
    return folded;
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
