#include "host/checks/local_neighbours.h"

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{
constexpr std::size_t neighbourCount = 4;
} // namespace

double MedianOf(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return values.size() % 2 == 1 ? *middle
                                  : (*middle + *std::max_element(values.begin(), middle)) / 2;
}

double Neighbours::Median(std::span<const double> values) const
{
    std::vector<double> others;
    others.reserve(neighbourCount);
    for (std::size_t at = m_first; at <= m_last; ++at)
    {
        if (at != m_self)
            others.push_back(values[at]);
    }
    return MedianOf(std::move(others));
}

double Neighbours::MedianDistance(std::span<const double> positions) const
{
    std::vector<double> others;
    others.reserve(neighbourCount);
    for (std::size_t at = m_first; at <= m_last; ++at)
    {
        if (at != m_self)
            others.push_back(std::abs(positions[at] - positions[m_self]));
    }
    return MedianOf(std::move(others));
}

Neighbours NeighboursOf(std::span<const double> positions, std::size_t self)
{
    std::size_t first = self;
    std::size_t last = self;
    while (last - first < neighbourCount && last - first + 1 < positions.size())
    {
        const bool hasLeft = first > 0;
        const bool hasRight = last + 1 < positions.size();
        if (hasLeft && (!hasRight || positions[self] - positions[first - 1] <=
                                         positions[last + 1] - positions[self]))
            --first;
        else
            ++last;
    }
    return {first, last, self};
}

} // namespace Tamrivo
