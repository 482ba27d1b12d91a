#pragma once

#include "host/fit/ladder_fit.h"

#include <vector>

namespace Tamrivo
{

/// The alleles of a locus with a proposal taken over, by size: the proposed ones, with what the
/// locus says of those that it has (virtual, say), and those that weren't observed, as far as their
/// bins lie apart from the proposed ones.
std::vector<AlleleFields> WithProposal(std::span<const AlleleFields* const> known,
                                       const LadderFit& fit);

/// Whether the allele has the name, case and blanks around it aside.
bool HasAlleleName(const AlleleFields& allele, const std::string& name);

/// The proposed allele whose bin has the size, or none.
const ProposedAllele* CallSize(const LadderFit& fit, double size);

} // namespace Tamrivo
