#include "bench/figures.h"
#include "bench/timing.h"
#include "host/fit/ladder_fit.h"

#include <algorithm>
#include <random>
#include <vector>

namespace Tamrivo::Bench
{

namespace
{

constexpr int lociCount = 1'000;
constexpr int sizesOfLocus = 1'000;

using Sizes = std::vector<std::vector<double>>;

/// Loci of fourteen repeats of 4 nt, with a microvariant in ten sizes.
Sizes ObservedSizes()
{
    constexpr double repeat = 4.05;
    std::mt19937 random(12);
    std::normal_distribution<double> noise(0, 0.12);
    Sizes loci(lociCount);
    for (auto& sizes : loci)
    {
        for (int count = 0; count < sizesOfLocus; ++count)
        {
            const double variant = random() % 10 == 0 ? repeat / 2 : 0;
            sizes.push_back(120 + repeat * static_cast<double>(random() % 14) + variant +
                            noise(random));
        }
    }
    return loci;
}

} // namespace

double FitOfLoci()
{
    const Sizes observed = ObservedSizes();
    LocusFields locus;
    locus.ShortestAlleleSize = 120;
    volatile bool isProposed = false; // Kept so that no work is optimised away.
    const auto fit = [&] {
        for (const auto& sizes : observed)
            isProposed = FitLadder(locus, {}, sizes).IsProposed;
    };
    const auto sort = [&] {
        for (std::vector<double> sizes : observed)
            std::ranges::sort(sizes);
    };
    return RatioOf(3, fit, sort);
}

} // namespace Tamrivo::Bench
