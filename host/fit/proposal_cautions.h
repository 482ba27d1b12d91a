#pragma once

#include "host/fit/ladder_fit.h"

#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// What to look at before proposed alleles are taken over, sentences without a full stop:
///
/// - names that disagree with the alleles that the locus has. Their sizes may be those of another
///   kit; the ladder is then hung up in the wrong place, and all names are off. It shows by alleles
///   of another name where the sizes are, or by most of the names being new although the locus has
///   as many alleles;
/// - alleles outside the locus's range.
std::vector<std::string> CautionsOf(const LocusFields& locus,
                                    std::span<const AlleleFields* const> known,
                                    std::span<const ProposedAllele> proposed);

} // namespace Tamrivo
