#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace Tamrivo
{

/// The median of the values, which it puts in another order; the mean of the middle two of an even
/// number; 0 of none.
double MedianOf(std::span<double> values);

/// The few places nearest to one of a sorted list, itself left out.
class Neighbours
{
public:
    static constexpr std::size_t Most = 6;

    /// @param positions ascending
    /// @param self the place whose neighbours they are
    /// @param count how many, up to `Most`; fewer in a shorter list
    Neighbours(std::span<const double> positions, std::size_t self, std::size_t count);

    std::span<const std::size_t> Places() const { return std::span(m_places).first(m_count); }

    /// The median of what `valueAt` gives for the places: it isn't moved far by wrong values as
    /// long as they are fewer than half.
    template <typename ValueAt>
    double Median(ValueAt valueAt) const
    {
        std::array<double, Most> values{};
        std::ranges::transform(Places(), values.begin(), valueAt);
        return MedianOf(std::span(values).first(m_count));
    }

private:
    std::array<std::size_t, Most> m_places{}; ///< Ascending.
    std::size_t m_count = 0;
};

} // namespace Tamrivo
