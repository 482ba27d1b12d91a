#include "host/checks/local_neighbours.h"

namespace Tamrivo
{

double MedianOf(std::span<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return values.size() % 2 == 1 ? *middle
                                  : (*middle + *std::max_element(values.begin(), middle)) / 2;
}

Neighbours::Neighbours(std::span<const double> positions, std::size_t self, std::size_t count)
{
    std::size_t first = self;
    std::size_t last = self;
    while (last - first < count && last - first + 1 < positions.size())
    {
        const bool hasLeft = first > 0;
        const bool hasRight = last + 1 < positions.size();
        if (hasLeft && (!hasRight || positions[self] - positions[first - 1] <=
                                         positions[last + 1] - positions[self]))
            --first;
        else
            ++last;
    }
    for (std::size_t at = first; at <= last; ++at)
    {
        if (at != self)
            m_places[m_count++] = at;
    }
}

} // namespace Tamrivo
