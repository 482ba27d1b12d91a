#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

class Library;

/// What a search has found, or what is wrong with it.
struct SearchResult
{
    std::vector<std::uint32_t> Loci; ///< Positions in the library, ascending; none with errors.
    std::vector<std::string> Errors; ///< One sentence for each faulty term.
};

/// The loci that meet every word and term of a search.
///
/// A word is looked for anywhere in tag, name, panel, project and accession. A term is a name, a
/// colon and a value:
///
///     dye:blue  panel:H24  project:"Cold cases"     begin with the value
///     allele:9.3                                    has an allele whose name begins with it
///     range:100-200  range:150                      the range has a length in common, nt
///     repeat:4                                      the length of the repeat unit, nt
///     used:yes  used:no                             by an analysis parameter, or by none
///     changed:2026-01  changed:>2026-01-01          in local time; also <, >=, <=
///
/// A "-" before a word or term means that it must not be met. Quotes hold blanks together. Case
/// counts nowhere. A term that isn't finished yet, such as "range:100-", is met by all. Raises
/// failures of the store when names of alleles are looked for that aren't read yet.
SearchResult Search(Library& library, std::string_view search);

/// The names of the terms, for completion: "dye:", "panel:" and so on.
std::vector<std::string> SearchTermNames();

} // namespace Tamrivo
