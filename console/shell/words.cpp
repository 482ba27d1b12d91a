#include "console/shell/words.h"

#include "controls/user.h"
#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

struct Escape
{
    char Letter;
    char Meaning;
};

constexpr Escape escapes[] = {{'"', '"'}, {'\\', '\\'}, {'t', '\t'}, {'r', '\r'}, {'n', '\n'}};

bool IsBlank(char character)
{
    return character == ' ' || character == '\t';
}

char Meaning(char letter)
{
    const auto* escape = std::ranges::find(escapes, letter, &Escape::Letter);
    if (escape == std::end(escapes))
        throw User::Refusal(std::string("unknown escape \\") + letter +
                            R"( in quotes; there are \" \\ \t \r \n)");
    return escape->Meaning;
}

/// Takes a quoted word from the front of `rest`, whose first character is the quote.
std::string TakeQuoted(std::string_view& rest)
{
    std::string word;
    for (std::size_t i = 1; i < rest.size(); ++i)
    {
        if (rest[i] == '"')
        {
            rest.remove_prefix(i + 1);
            if (!rest.empty() && !IsBlank(rest.front()))
                throw User::Refusal("a blank is missing behind \"" + word + "\"");
            return word;
        }
        if (rest[i] != '\\')
            word += rest[i];
        else if (++i < rest.size())
            word += Meaning(rest[i]);
    }
    throw User::Refusal("the closing double quote is missing");
}

std::string TakePlain(std::string_view& rest)
{
    const std::size_t end = std::min(rest.find_first_of(" \t"), rest.size());
    std::string word(rest.substr(0, end));
    rest.remove_prefix(end);
    return word;
}

std::string Escaped(std::string_view text, std::string_view only)
{
    std::string escaped;
    for (const char character : text)
    {
        const auto* escape = std::ranges::find(escapes, character, &Escape::Meaning);
        if (escape != std::end(escapes) && only.find(character) != std::string_view::npos)
            escaped += {'\\', escape->Letter};
        else
            escaped += character;
    }
    return escaped;
}

} // namespace

Words SplitWords(std::string_view line)
{
    if (!IsUtf8(line))
        throw User::Refusal("the line is not UTF-8 text");

    Words words;
    while (true)
    {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        if (line.empty() || (words.empty() && line.front() == '#'))
            return words;
        words.push_back(line.front() == '"' ? TakeQuoted(line) : TakePlain(line));
    }
}

std::string Quoted(std::string_view text)
{
    return '"' + Escaped(text, "\"\\\t\r\n") + '"';
}

std::string OnOneLine(std::string_view text)
{
    return Escaped(text, "\t\r\n");
}

} // namespace Tamrivo
