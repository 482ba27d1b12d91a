#include "host/loci/start_at.h"

namespace Tamrivo
{

namespace
{

// Not std::isalpha, which would follow the locale.
bool IsUpper(char character)
{
    return character >= 'A' && character <= 'Z';
}

bool IsLetter(char character)
{
    return IsUpper(character) || (character >= 'a' && character <= 'z');
}

/// The letter in upper case, in the case of another one.
char WithCaseOf(char upperLetter, char other)
{
    return IsUpper(other) ? upperLetter : static_cast<char>(upperLetter - 'A' + 'a');
}

/// Where the letters at the end begin.
std::size_t SeriesStart(std::string_view text)
{
    std::size_t start = text.size();
    while (start > 0 && IsLetter(text[start - 1]))
        --start;
    return start;
}

} // namespace

std::string NextStartAt(std::string_view text)
{
    std::string next(text);
    const std::size_t start = SeriesStart(text);
    if (start == text.size())
        return next + 'A';

    for (std::size_t position = next.size(); position > start; --position)
    {
        char& letter = next[position - 1];
        if (letter != WithCaseOf('Z', letter))
        {
            ++letter;
            return next;
        }
        letter = WithCaseOf('A', letter);
    }
    next.insert(start, 1, next[start]);
    return next;
}

std::string PreviousStartAt(std::string_view text)
{
    std::string previous(text);
    const std::size_t start = SeriesStart(text);
    for (std::size_t position = previous.size(); position > start; --position)
    {
        char& letter = previous[position - 1];
        if (letter != WithCaseOf('A', letter))
        {
            --letter;
            return previous;
        }
        letter = WithCaseOf('Z', letter);
    }
    // All letters were "A": one letter fewer, or nothing lower.
    if (text.size() - start < 2)
        return std::string(text);
    return previous.erase(start, 1);
}

} // namespace Tamrivo
