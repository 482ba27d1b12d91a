#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// A piece of a search, between blanks that don't stand in quotes.
struct SearchWord
{
    bool IsNegated = false; ///< Begins with "-".
    std::string Term;       ///< What stands before the first colon outside quotes; may be empty.
    bool HasTerm = false;
    std::string Text; ///< The rest, without its quotes.
};

/// Splits a search into its words. A quote that is still open reaches to the end.
std::vector<SearchWord> SearchWordsOf(std::string_view search);

} // namespace Tamrivo
