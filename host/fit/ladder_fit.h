#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// An allele that observed sizes propose.
struct ProposedAllele
{
    AlleleFields Fields;   ///< Name, size (the median), bin and number of repeats.
    std::size_t Count = 0; ///< Sizes that made it.
};

/// What observed sizes say about the repeat ladder of a locus.
///
/// Sizes of alleles stand at `Offset` and whole multiples of a nucleotide's share of `Period` from
/// there on. The period is free within 0.9 to 1.1 of the repeat length, since fragments don't run
/// exactly as their length (Idury and Cardon 1997; Matschiner and Salzburger 2009).
struct LadderFit
{
    bool IsProposed = false;
    std::string Reason;                ///< Why nothing is proposed, a sentence without a full stop.
    std::vector<std::string> Cautions; ///< What to look at before the proposal is taken over.

    double Period = 0;       ///< nt a repeat
    double PeriodError = 0;  ///< Standard error, nt.
    double Offset = 0;       ///< Size that the ladder would have at no repeats, nt.
    double OffsetError = 0;  ///< Standard error, nt.
    double MeanResidual = 0; ///< Mean distance of the placed sizes from the ladder, nt.
    double ShareInBins = 0;  ///< Of the sizes, those inside the proposed bins.
    /// How much sharper the ladder stands out than from as many random sizes, where it is near 1.
    double Gain = 0;
    std::vector<double> Unplaced;        ///< Sizes that no allele takes, ascending.
    std::vector<ProposedAllele> Alleles; ///< By size.
};

inline constexpr std::size_t FewestPeaks = 8;
inline constexpr std::size_t FewestNames = 3;
inline constexpr double MostObservedSize = 10'000; ///< nt

/// Fits the ladder of the locus to sizes, nt, in any order.
/// @param known alleles that the locus has already: names of theirs that are repeats tell how many
/// repeats a size has; without any, the shortest allele size and its repeats do
LadderFit FitLadder(const LocusFields& locus, std::span<const AlleleFields* const> known,
                    std::span<const double> sizes);

} // namespace Tamrivo
