#pragma once

#include "core/utf8.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace Tamrivo
{

// All text is UTF-8. Bytes that aren't valid UTF-8 count as one character each and stay as they
// are.

/// Without blanks at the right end. Only the blank character counts.
std::string TrimRight(std::string_view text);

/// Without blanks at both ends. Only the blank character counts.
std::string Trim(std::string_view text);

/// The text with every letter replaced by its partner in Unicode's simple case folding, so that two
/// texts differ in case alone exactly when their folded texts are equal.
std::string FoldCase(std::string_view text);

/// Orders texts without minding case: negative, 0 or positive. Inline, since a program that loads
/// the library at run time shares collections with it and can't link this.
inline int CompareNoCase(std::string_view left, std::string_view right)
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

/// Whether the texts are equal apart from upper and lower case. Blanks count.
inline bool EqualNoCase(std::string_view left, std::string_view right)
{
    return CompareNoCase(left, right) == 0;
}

/// Less-than without minding case, for ordered containers.
struct LessNoCase
{
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const
    {
        return CompareNoCase(left, right) < 0;
    }
};

/// Number of characters (code points).
std::size_t CharacterCount(std::string_view text);

/// The characters from `first` on (0-based), at most `count` of them.
std::string Characters(std::string_view text, std::size_t first,
                       std::size_t count = std::string_view::npos);

/// UTF-8 to code points; an invalid byte b becomes the lone surrogate 0xDC00 + b.
std::u32string Decode(std::string_view text);

/// Code points to UTF-8; undoes Decode for every text.
std::string Encode(std::u32string_view characters);

/// Whether the text is valid UTF-8.
bool IsUtf8(std::string_view text);

} // namespace Tamrivo
