#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Tamrivo
{

class Dyes;

/// A locus as the picture of the lanes shows it.
struct LaneLocus
{
    std::string Tag;
    std::int32_t DyeIndex = 0; ///< Position in the list of dyes, from 0.
    std::int32_t From = 0;     ///< Start of the fragment length range, nt.
    std::int32_t To = 0;       ///< End of the range, nt; not before `From`.

    bool operator==(const LaneLocus&) const = default;
};

/// Two loci of one dye, as positions in the list of loci, and the lengths that both may have.
struct LocusOverlap
{
    std::size_t First;
    std::size_t Second;
    std::int32_t From; ///< nt
    std::int32_t To;   ///< nt
};

/// Lengths on a dye that more than one locus may have, nt.
struct SharedStretch
{
    std::int32_t DyeIndex;
    std::int32_t From;
    std::int32_t To;

    bool operator==(const SharedStretch&) const = default;
};

/// Which loci can't be told apart in one run.
struct LocusOverlaps
{
    std::uint64_t Count = 0;           ///< Pairs that overlap.
    std::vector<LocusOverlap> Listed;  ///< The first of them, by dye and length.
    std::vector<SharedStretch> Shared; ///< By dye and length, none touching the next.
    std::vector<bool> IsOverlapped;    ///< Of each locus.
};

/// Finds the loci of one dye whose ranges overlap, in time n log n. Lengths are measured, not
/// counted: ranges that only meet, as 78 to 92 nt and 92 to 149 nt, don't overlap.
/// @param most how many pairs are listed at most
LocusOverlaps FindOverlaps(const std::vector<LaneLocus>& loci, std::size_t most);

/// "D3S1358 and TH01 overlap from 148 to 150 nt in blue: they can't be told apart in one run".
std::string Describe(const LocusOverlap& overlap, const std::vector<LaneLocus>& loci,
                     const Dyes& dyes);

} // namespace Tamrivo
