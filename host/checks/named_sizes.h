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
/// don't run exactly as their length; along the line they drift. So a size is compared with the
/// median of its neighbours, moved along the line. The line's slope is the median of the slopes
/// between pairs of alleles (Theil 1950, Sen 1968), as far as they are near 1: neither the slope
/// nor the neighbours' median is moved by a few wrong sizes.
class SizeModel
{
public:
    /// None for fewer than four alleles: sex markers and quality sensors have numbers as names and
    /// a repeat length for display only.
    static std::optional<SizeModel> Of(const NamedSizes& named);

    /// Whether the sizes follow the names at all. They don't where the repeat length is wrong.
    bool IsLadder() const { return m_isLadder; }
    /// The median slope of all pairs, nt of size a nt of name.
    double AnySlope() const { return m_anySlope; }

    /// The size, nt, that neighbours expect of an allele.
    double ExpectedSize(std::size_t at) const { return m_expected[at]; }
    /// Whether a size is further off than 0.6 nt and what drift explains, which grows with the
    /// distance to the neighbours.
    bool IsMisfit(std::size_t at, std::int32_t repeatLength) const;

private:
    explicit SizeModel(const NamedSizes& named);

    const NamedSizes* m_named;
    bool m_isLadder = false;
    double m_anySlope = 0;
    std::vector<double> m_expected;
    std::vector<double> m_distances;
};

} // namespace Tamrivo
