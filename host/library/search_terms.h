#pragma once

#include "host/library/library.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// Whether the locus at a position meets a term. None: the term isn't finished, and all meet it.
using LocusCondition = std::function<bool(std::size_t position)>;

/// A kind of term in a search.
struct SearchTerm
{
    std::string_view Name; ///< Before the colon.
    /// Makes the condition for a folded value, which is empty only for a term that means something
    /// without one. Raises `ErrorNumber::InvalidArgument` with what would be right for a value that
    /// can't become right by typing on.
    LocusCondition (*Condition)(Library& library, const std::string& value);
    bool StandsAlone = false; ///< Means something without a value.
};

std::span<const SearchTerm> SearchTerms();

} // namespace Tamrivo
