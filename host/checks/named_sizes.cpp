#include "host/checks/named_sizes.h"

#include "host/checks/local_neighbours.h"
#include "host/loci/repeat_name.h"

#include <algorithm>
#include <cmath>

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

std::optional<SizeModel> SizeModel::Of(const NamedSizes& named)
{
    if (named.Alleles.size() < fewestAlleles)
        return std::nullopt;
    return SizeModel(named);
}

SizeModel::SizeModel(const NamedSizes& named) : m_named(&named)
{
    std::vector<double> slopes = PairSlopes(named);
    m_anySlope = MedianOf(slopes);
    const std::size_t all = slopes.size();
    std::erase_if(slopes,
                  [](double slope) { return slope < flattestSlope || slope > steepestSlope; });
    m_isLadder = slopes.size() * 3 > all;
    const double slope = MedianOf(std::move(slopes));

    std::vector<double> residuals;
    for (std::size_t at = 0; at < named.Sizes.size(); ++at)
        residuals.push_back(named.Sizes[at] - slope * named.Positions[at]);
    for (std::size_t at = 0; at < named.Sizes.size(); ++at)
    {
        const Neighbours neighbours = NeighboursOf(named.Positions, at);
        m_expected.push_back(neighbours.Median(residuals) + slope * named.Positions[at]);
        m_distances.push_back(neighbours.MedianDistance(named.Positions));
    }
}

bool SizeModel::IsMisfit(std::size_t at, std::int32_t repeatLength) const
{
    constexpr double tolerance = 0.6; // nt
    constexpr double drift = 0.035;   // nt a nt beyond two repeats
    const double far = std::max(0.0, m_distances[at] - 2.0 * repeatLength);
    return std::abs(m_named->Sizes[at] - m_expected[at]) > tolerance + drift * far;
}

} // namespace Tamrivo
