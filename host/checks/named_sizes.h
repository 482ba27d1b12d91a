#pragma once

#include "host/checks/checked_locus.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Tamrivo
{

/// The alleles of a locus whose names are numbers: of repeats ("9.3") or, where most of them are
/// within 1 nt of their sizes, the sizes themselves.
struct NamedSizes
{
    std::vector<const AlleleFields*> Alleles; ///< By position.
    std::vector<double> Positions; ///< What the name tells of the length, nt from an unknown start.
    std::vector<double> Sizes;     ///< nt
    bool NamesAreSizes = false;
};

NamedSizes NamedSizesOf(const CheckedLocus& locus);

/// How the sizes of a locus follow its names.
///
/// Sizes grow along a straight line, a little more or less than 1 nt a nucleotide, since fragments
/// don't run exactly as their length; along the line they drift. The line's slope is the median of
/// the slopes between pairs of alleles (Theil 1950, Sen 1968), as far as they are near 1. The drift
/// at an allele is that of the sizes beside it: the median of how far six neighbours are from the
/// line, moved along the median slope between pairs of them. So a few wrong sizes move neither the
/// line nor the drift.
class SizeModel
{
public:
    /// None for fewer than four alleles: sex markers and quality sensors have numbers as names and
    /// a repeat length for display only.
    static std::optional<SizeModel> Of(const NamedSizes& named, std::int32_t repeatLength);

    /// Whether the sizes follow the names at all. They don't where the repeat length is wrong.
    bool IsLadder() const { return m_isLadder; }
    /// The median slope of all pairs, nt of size a nt of name.
    double AnySlope() const { return m_anySlope; }

    /// The size, nt, that neighbours expect of an allele.
    double ExpectedSize(std::size_t at) const { return m_expectations[at].Size; }
    /// Whether a size is further from the expected one than sizes are from each other: 0.35 nt and
    /// the median distance of the neighbours from their drift, at most 0.5 nt, and 0.03 nt for each
    /// nt that the neighbours are further away than two repeats. Where sizes are given in whole nt
    /// it is half a nt more, though less than 1 nt.
    bool IsMisfit(std::size_t at) const;

private:
    struct Expectation
    {
        double Size = 0;
        double Tolerance = 0;
    };

    SizeModel(const NamedSizes& named, std::int32_t repeatLength);

    const NamedSizes* m_named;
    bool m_isLadder = false;
    double m_anySlope = 0;
    std::vector<Expectation> m_expectations;
};

} // namespace Tamrivo
