#include "host/checks/named_sizes.h"

#include "host/checks/local_neighbours.h"
#include "host/loci/repeat_name.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace Tamrivo
{

namespace
{

constexpr std::size_t fewestAlleles = 4;
constexpr double flattestSlope = 0.85;
constexpr double steepestSlope = 1.15;

struct Named
{
    RepeatName Name;
    const AlleleFields* Allele;
};

bool IsItsSize(const Named& named)
{
    constexpr double mostOff = 1; // nt
    return std::abs(named.Name.Length(1) - named.Allele->AlleleReal1) <= mostOff;
}

/// Slopes between pairs of alleles: all pairs of a short list, of a long one each allele with the
/// one half a list further.
std::vector<double> PairSlopes(const NamedSizes& named)
{
    constexpr std::size_t longList = 64;
    const std::size_t count = named.Sizes.size();
    std::vector<double> slopes;
    const auto add = [&](std::size_t left, std::size_t right) {
        const double distance = named.Positions[right] - named.Positions[left];
        if (distance > 0)
            slopes.push_back((named.Sizes[right] - named.Sizes[left]) / distance);
    };
    for (std::size_t left = 0; left < count; ++left)
    {
        if (count > longList && left + count / 2 < count)
            add(left, left + count / 2);
        for (std::size_t right = left + 1; count <= longList && right < count; ++right)
            add(left, right);
    }
    return slopes;
}

/// The median slope between pairs of neighbours, nt off the line a nt along it.
double DriftSlope(std::span<const std::size_t> places, std::span<const double> positions,
                  std::span<const double> residuals)
{
    constexpr double steepest = 0.035;
    std::array<double, Neighbours::Most*(Neighbours::Most - 1) / 2> slopes{};
    std::size_t count = 0;
    for (std::size_t right = 1; right < places.size(); ++right)
    {
        for (const std::size_t left : places.first(right))
        {
            const double distance = positions[places[right]] - positions[left];
            if (distance > 0)
                slopes[count++] = (residuals[places[right]] - residuals[left]) / distance;
        }
    }
    return std::clamp(MedianOf(std::span(slopes).first(count)), -steepest, steepest);
}

/// How the sizes beside an allele stand to the line, moved to where the allele is.
struct LocalDrift
{
    double Residual = 0; ///< What they expect of the allele, nt off the line.
    double Scatter = 0;  ///< Their median distance from that, nt.
    double Distance = 0; ///< Their median distance from the allele, nt along the line.
};

LocalDrift DriftAt(std::size_t self, std::span<const double> positions,
                   std::span<const double> residuals)
{
    const Neighbours neighbours(positions, self, Neighbours::Most);
    const double slope = DriftSlope(neighbours.Places(), positions, residuals);
    const auto residual = [&](std::size_t at) {
        return residuals[at] + slope * (positions[self] - positions[at]);
    };
    const double expected = neighbours.Median(residual);
    return {expected,
            neighbours.Median([&](std::size_t at) { return std::abs(residual(at) - expected); }),
            neighbours.Median(
                [&](std::size_t at) { return std::abs(positions[at] - positions[self]); })};
}

/// How far a size may be from what neighbours expect, nt.
double ToleranceOf(const LocalDrift& drift, std::int32_t repeatLength, bool isRounded)
{
    constexpr double least = 0.35;
    constexpr double most = 0.5;
    constexpr double further = 0.03; // a nt beyond two repeats
    constexpr double rounding = 0.5;
    constexpr double belowOne = 0.99; // A whole size that is wrong is off by 1 nt or more.
    const double tolerance = std::min(least + drift.Scatter, most) +
                             further * std::max(0.0, drift.Distance - 2.0 * repeatLength);
    return isRounded ? std::min(tolerance + rounding, belowOne) : tolerance;
}

bool IsWhole(double size)
{
    return size == std::floor(size);
}

} // namespace

NamedSizes NamedSizesOf(const CheckedLocus& locus)
{
    std::vector<Named> alleles;
    for (const AlleleFields* allele : locus.Alleles)
    {
        if (const auto name = ReadRepeatName(allele->AlleleText1))
            alleles.push_back({*name, allele});
    }
    NamedSizes named;
    const auto sizes = static_cast<std::size_t>(std::ranges::count_if(alleles, IsItsSize));
    named.NamesAreSizes = sizes * 2 > alleles.size();
    const auto position = [&](const Named& allele) {
        return allele.Name.Length(named.NamesAreSizes ? 1 : locus.Fields.RepeatLength);
    };
    std::ranges::stable_sort(alleles, {}, position);
    for (const Named& allele : alleles)
    {
        named.Alleles.push_back(allele.Allele);
        named.Positions.push_back(position(allele));
        named.Sizes.push_back(allele.Allele->AlleleReal1);
    }
    return named;
}

std::optional<SizeModel> SizeModel::Of(const NamedSizes& named, std::int32_t repeatLength)
{
    if (named.Alleles.size() < fewestAlleles)
        return std::nullopt;
    return SizeModel(named, repeatLength);
}

SizeModel::SizeModel(const NamedSizes& named, std::int32_t repeatLength) : m_named(&named)
{
    std::vector<double> slopes = PairSlopes(named);
    m_anySlope = MedianOf(slopes);
    const std::size_t all = slopes.size();
    std::erase_if(slopes,
                  [](double slope) { return slope < flattestSlope || slope > steepestSlope; });
    m_isLadder = slopes.size() * 3 > all;
    const double slope = MedianOf(slopes);

    std::vector<double> residuals;
    for (std::size_t at = 0; at < named.Sizes.size(); ++at)
        residuals.push_back(named.Sizes[at] - slope * named.Positions[at]);
    const bool areWhole = std::ranges::count_if(named.Sizes, IsWhole) * 2 > std::ssize(named.Sizes);
    for (std::size_t at = 0; at < named.Sizes.size(); ++at)
    {
        const LocalDrift drift = DriftAt(at, named.Positions, residuals);
        m_expectations.push_back(
            {slope * named.Positions[at] + drift.Residual,
             ToleranceOf(drift, repeatLength, areWhole && IsWhole(named.Sizes[at]))});
    }
}

bool SizeModel::IsMisfit(std::size_t at) const
{
    const auto& [size, tolerance] = m_expectations[at];
    return std::abs(m_named->Sizes[at] - size) > tolerance;
}

} // namespace Tamrivo
