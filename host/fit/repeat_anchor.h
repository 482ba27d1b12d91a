#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"
#include "host/fit/nucleotide_lattice.h"

#include <cstdint>
#include <set>
#include <span>
#include <string>

namespace Tamrivo
{

/// What tells how many nucleotides of repeats a size has: names of the alleles that the locus has,
/// or its shortest allele.
class RepeatAnchor
{
public:
    RepeatAnchor(const LocusFields& locus, std::span<const AlleleFields* const> known)
        : m_locus(locus), m_known(known)
    {}

    /// Nucleotides of repeats at place 0 of the lattice.
    std::int32_t NucleotidesAtStart(const Lattice& lattice) const;
    /// Whether the locus names any allele by its repeats.
    bool KnowsRepeatNames() const;
    double RepeatsInShortest() const;

private:
    std::int32_t StartOfCommonest(const Lattice& lattice) const;

    const LocusFields& m_locus;
    std::span<const AlleleFields* const> m_known;
};

/// Names by the locus's convention, or as the alleles that it has are named.
class ProposedNames
{
public:
    ProposedNames(const LocusFields& locus, const RepeatAnchor& anchor);

    /// The name of an allele; each has its own when they come by size.
    std::string NameOf(std::int32_t nucleotides, double size);

private:
    std::string LettersOf(std::int32_t steps, std::int32_t nucleotides) const;
    std::string WholeSize(double size);

    const LocusFields& m_locus;
    bool m_byRepeats;
    std::int32_t m_firstRepeats;
    std::set<std::int32_t> m_wholeSizes;
};

} // namespace Tamrivo
