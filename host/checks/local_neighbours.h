#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace Tamrivo
{

/// The median of the values, the mean of the middle two of an even number; 0 of none.
double MedianOf(std::vector<double> values);

/// The few places nearest to one of a sorted list, itself left out.
class Neighbours
{
public:
    Neighbours(std::size_t first, std::size_t last, std::size_t self)
        : m_first(first), m_last(last), m_self(self)
    {}

    /// The median of what stands at these places: up to two wrong values of five don't move it far.
    double Median(std::span<const double> values) const;
    /// The median distance from `self` of the places' positions.
    double MedianDistance(std::span<const double> positions) const;

private:
    std::size_t m_first;
    std::size_t m_last; ///< Included.
    std::size_t m_self;
};

/// The four places (fewer in a shorter list) whose positions are nearest to that of `self`.
/// @param positions ascending
Neighbours NeighboursOf(std::span<const double> positions, std::size_t self);

} // namespace Tamrivo
