#include "host/library/search_words.h"

#include <utility>

namespace Tamrivo
{

namespace
{

constexpr std::string_view blanks = " \t\r\n";

bool IsBlank(char character)
{
    return blanks.find(character) != std::string_view::npos;
}

/// Takes the word that the search begins with from it.
SearchWord TakeWord(std::string_view& search)
{
    SearchWord word;
    if (search.front() == '-')
    {
        word.IsNegated = true;
        search.remove_prefix(1);
    }
    bool isQuoted = false;
    bool hadQuotes = false;
    while (!search.empty() && (isQuoted || !IsBlank(search.front())))
    {
        const char character = search.front();
        search.remove_prefix(1);
        if (character == '"')
        {
            isQuoted = !isQuoted;
            hadQuotes = true;
        }
        else if (character == ':' && !hadQuotes && !word.HasTerm)
        {
            word.HasTerm = true;
            word.Term = std::exchange(word.Text, {});
        }
        else
        {
            word.Text += character;
        }
    }
    return word;
}

} // namespace

std::vector<SearchWord> SearchWordsOf(std::string_view search)
{
    std::vector<SearchWord> words;
    while (!search.empty())
    {
        if (IsBlank(search.front()))
            search.remove_prefix(1);
        else
            words.push_back(TakeWord(search));
    }
    return words;
}

} // namespace Tamrivo
