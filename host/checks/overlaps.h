#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// A stretch of lengths, nt, and whose it is.
struct Stretch
{
    double From = 0;
    double To = 0;
    std::size_t Owner = 0;
    std::size_t Allele = 0; ///< Which one of the owner's.
};

/// Pairs of stretches of different owners that overlap by more than `tolerance` nt. Each stretch
/// that does stands in a pair, though not with every stretch that it overlaps: the one that starts
/// further left comes first and is the one that reaches furthest right. Takes n log n time.
std::vector<std::pair<Stretch, Stretch>> Overlaps(std::vector<Stretch> stretches, double tolerance);

} // namespace Tamrivo
