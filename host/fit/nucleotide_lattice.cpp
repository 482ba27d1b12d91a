#include "host/fit/nucleotide_lattice.h"

#include <boost/math/statistics/linear_regression.hpp>

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{

constexpr double smallestSpread = 0.03; // nt, as sizes are rounded
constexpr double largestSpread = 0.3;   // nt; more can't be told from places between

/// Chooses the offset at which sizes lie nearest to whole places.
double BestOffset(std::span<const double> sizes, double step)
{
    constexpr int tries = 12;
    double best = 0;
    double least = HUGE_VAL;
    for (int at = 0; at < tries; ++at)
    {
        const double offset = sizes.front() + step * at / tries;
        double sum = 0;
        for (const double size : sizes)
        {
            const double place = (size - offset) / step;
            sum += std::abs(place - std::nearbyint(place));
        }
        if (sum < least)
        {
            least = sum;
            best = offset;
        }
    }
    return best;
}

class Placing
{
public:
    Placing(std::span<const double> sizes, double period, std::int32_t repeatLength)
        : m_sizes(sizes), m_repeatLength(repeatLength)
    {
        m_lattice.Step = period / repeatLength;
        m_lattice.Offset = BestOffset(sizes, m_lattice.Step);
        m_lattice.Places.resize(sizes.size());
    }

    Lattice Run()
    {
        constexpr int mostRounds = 12;
        for (std::size_t at = 0; at < m_sizes.size(); ++at)
            m_lattice.Places[at] = static_cast<std::int32_t>(std::nearbyint(PlaceOf(m_sizes[at])));
        Fit();
        for (int round = 0; round < mostRounds && Reassign(); ++round)
            Fit();
        return std::move(m_lattice);
    }

private:
    double PlaceOf(double size) const { return (size - m_lattice.Offset) / m_lattice.Step; }

    /// A line through places and sizes by least squares, with the textbook's standard errors.
    void Fit()
    {
        std::vector<double> places(m_lattice.Places.begin(), m_lattice.Places.end());
        const auto [low, high] = std::ranges::minmax(places);
        const auto count = static_cast<double>(places.size());
        double meanPlace = 0;
        for (const double place : places)
            meanPlace += place / count;
        if (high > low)
        {
            const auto [offset, step] = boost::math::statistics::simple_ordinary_least_squares(
                places, std::vector<double>(m_sizes.begin(), m_sizes.end()));
            m_lattice.Offset = offset;
            m_lattice.Step = step;
        }
        double squares = 0;
        double placeSquares = 0;
        for (std::size_t at = 0; at < places.size(); ++at)
        {
            const double residual = m_sizes[at] - m_lattice.Offset - m_lattice.Step * places[at];
            squares += residual * residual;
            placeSquares += (places[at] - meanPlace) * (places[at] - meanPlace);
        }
        m_lattice.Spread = std::sqrt(squares / std::max(1.0, count - 2));
        m_lattice.MeanPlace = meanPlace;
        m_lattice.StepError = placeSquares > 0 ? m_lattice.Spread / std::sqrt(placeSquares) : 0;
    }

    /// Counts the sizes of each place, and of the places whole repeats apart.
    void Count()
    {
        const auto [low, high] = std::ranges::minmax(m_lattice.Places);
        m_first = low - 1;
        m_counts.assign(static_cast<std::size_t>(high - low) + 3, 0);
        std::vector<double> classes(static_cast<std::size_t>(m_repeatLength), 0);
        for (const std::int32_t place : m_lattice.Places)
        {
            ++m_counts[static_cast<std::size_t>(place - m_first)];
            ++classes[static_cast<std::size_t>((place - m_first) % m_repeatLength)];
        }
        // What a size costs that is of a place: less where others are, and on whole repeats.
        const auto count = static_cast<double>(m_lattice.Places.size());
        for (std::size_t at = 0; at < m_counts.size(); ++at)
        {
            const double share =
                classes[at % static_cast<std::size_t>(m_repeatLength)] / count + 0.02;
            m_counts[at] = m_counts[at] > 0 ? -std::log(m_counts[at]) - std::log(share) : HUGE_VAL;
        }
    }

    /// Gives each size the place that is likeliest. Gives whether any has changed.
    bool Reassign()
    {
        Count();
        const double spread = std::clamp(m_lattice.Spread, smallestSpread, largestSpread);
        bool hasChanged = false;
        for (std::size_t at = 0; at < m_sizes.size(); ++at)
        {
            const double place = PlaceOf(m_sizes[at]);
            const auto nearest = static_cast<std::int32_t>(std::nearbyint(place));
            std::int32_t best = nearest;
            double least = HUGE_VAL;
            for (std::int32_t candidate = nearest - 1; candidate <= nearest + 1; ++candidate)
            {
                const auto number = static_cast<std::size_t>(candidate - m_first);
                if (candidate < m_first || number >= m_counts.size())
                    continue;
                const double residual = (place - candidate) * m_lattice.Step / spread;
                const double cost = residual * residual / 2 + m_counts[number];
                if (cost < least)
                {
                    least = cost;
                    best = candidate;
                }
            }
            hasChanged = hasChanged || best != m_lattice.Places[at];
            m_lattice.Places[at] = best;
        }
        return hasChanged;
    }

    std::span<const double> m_sizes;
    std::int32_t m_repeatLength;
    Lattice m_lattice;
    std::int32_t m_first = 0;
    std::vector<double> m_counts; ///< Of the places from m_first on, then their costs.
};

} // namespace

double Lattice::ErrorAt(double place) const
{
    return std::hypot(Spread / std::sqrt(static_cast<double>(Places.size())),
                      StepError * (place - MeanPlace));
}

Lattice PlaceOnLattice(std::span<const double> sizes, double period, std::int32_t repeatLength)
{
    return Placing(sizes, period, repeatLength).Run();
}

} // namespace Tamrivo
