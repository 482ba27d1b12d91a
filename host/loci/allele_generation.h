#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <vector>

namespace Tamrivo
{

/// The most rows that a generated list may have.
inline constexpr std::int64_t MaximumGeneratedAlleles = 10'000;

/// How far a new bin reaches to either side of its allele's size, nt: the confidence interval that
/// counts, which is `ConfInt` when the user specified one, else `SystemConfInt`. A locus that has
/// no system interval yet takes the one that a new locus is created with; the nought that a user
/// specifies stands.
double BinReach(const LocusFields& locus);

/// The alleles that the definition of a locus describes: one for each size from the shortest allele
/// size up to the end of the fragment range, in steps of the repeat unit; none when the shortest
/// allele lies past that end.
///
/// Each has its size and its name by the naming convention (the size; letters from
/// `StartAtAlphanumeric` on; numbers from `StartAtNumeric` on), a bin that reaches as far as
/// `BinReach` to either side of the size, and its number of repeats, counted from
/// `RepeatsInShortestAllele` on.
///
/// Raises `ErrorNumber::InvalidArgument` for a repeat unit below 1 nt, an unknown naming convention
/// or a list of more than `MaximumGeneratedAlleles` rows, `ErrorNumber::NotANumber` when
/// `RepeatsInShortestAllele` is no number, `ErrorNumber::OutOfRange` for a name past 32 bits.
std::vector<AlleleFields> GenerateAlleleRows(const LocusFields& locus);

} // namespace Tamrivo
