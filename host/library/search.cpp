#include "host/library/search.h"

#include "core/error.h"
#include "core/text.h"
#include "host/library/search_terms.h"
#include "host/library/search_words.h"

#include <algorithm>
#include <numeric>

namespace Tamrivo
{

namespace
{

std::string TermNames()
{
    std::string names;
    for (const std::string& name : SearchTermNames())
        names.append(names.empty() ? "" : ", ").append(name);
    return names;
}

LocusCondition Containing(Library& library, std::string word)
{
    return [&words = library.Words(), word = std::move(word)](std::size_t position) {
        return words[position].find(word) != std::string_view::npos;
    };
}

LocusCondition ConditionOf(const SearchWord& word, Library& library)
{
    const std::string value = FoldCase(word.Text);
    if (!word.HasTerm)
        return value.empty() ? LocusCondition() : Containing(library, value);
    const auto terms = SearchTerms();
    const auto term = std::ranges::find_if(
        terms, [&](const SearchTerm& one) { return EqualNoCase(one.Name, word.Term); });
    if (term == terms.end())
        throw Failure(ErrorNumber::InvalidArgument, "Search",
                      "There is no such term. Terms are " + TermNames() +
                          "; a word with a colon stands in quotes");
    return value.empty() && !term->StandsAlone ? LocusCondition() : term->Condition(library, value);
}

} // namespace

SearchResult Search(Library& library, std::string_view search)
{
    SearchResult result;
    result.Loci.resize(library.Loci().size());
    std::iota(result.Loci.begin(), result.Loci.end(), 0U);
    for (const SearchWord& word : SearchWordsOf(search))
    {
        try
        {
            const LocusCondition meets = ConditionOf(word, library);
            if (meets)
                std::erase_if(result.Loci, [&](std::uint32_t position) {
                    return meets(position) == word.IsNegated;
                });
        }
        catch (const Failure& failure)
        {
            if (failure.Record().Number != ErrorNumber::InvalidArgument)
                throw;
            result.Errors.push_back("\"" + word.Term + ":" + word.Text +
                                    "\": " + failure.Record().Description + ".");
        }
    }
    if (!result.Errors.empty())
        result.Loci.clear();
    return result;
}

std::vector<std::string> SearchTermNames()
{
    std::vector<std::string> names;
    for (const SearchTerm& term : SearchTerms())
        names.push_back(std::string(term.Name) + ":");
    return names;
}

} // namespace Tamrivo
