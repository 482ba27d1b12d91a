#include "host/fit/nucleotide_lattice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Tamrivo
{

namespace
{

constexpr double firstSpread = 0.2;     // nt
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

/// How likely a size is of the place nearest to it and of those on either side.
struct Belonging
{
    std::int32_t First = 0; ///< The place below the nearest.
    std::array<double, 3> Shares{};
};

class Mixture
{
public:
    Mixture(std::span<const double> sizes, double period, std::int32_t repeatLength)
        : m_sizes(sizes),
          m_repeatLength(static_cast<std::size_t>(repeatLength)),
          m_belongings(sizes.size())
    {
        m_lattice.Step = period / repeatLength;
        m_lattice.Offset = BestOffset(sizes, m_lattice.Step);
        m_lattice.Spread = firstSpread;
        constexpr std::size_t room = 4; // A step that changes moves the ends.
        m_first = -static_cast<std::int32_t>(room);
        m_shares.assign(static_cast<std::size_t>(PlaceOf(sizes.back())) + 2 * room + 1, 1);
    }

    Lattice Run()
    {
        constexpr int mostRounds = 40;
        constexpr double enough = 1e-3;
        double last = -HUGE_VAL;
        for (int round = 0; round < mostRounds; ++round)
        {
            const double likelihood = Expect();
            if (round > 2 && likelihood - last < enough)
                break;
            last = likelihood;
            Maximise();
        }
        EstimateErrors();
        Choose();
        return std::move(m_lattice);
    }

private:
    double PlaceOf(double size) const { return (size - m_lattice.Offset) / m_lattice.Step; }
    double UsedSpread() const
    {
        return std::clamp(m_lattice.Spread, smallestSpread, largestSpread);
    }
    double ShareOf(std::int32_t place) const
    {
        return m_shares[static_cast<std::size_t>(place - m_first)];
    }

    /// Tells of each size which places it may be of. Gives the logarithm of the likelihood, but for
    /// a constant.
    double Expect()
    {
        const double spread = UsedSpread();
        const double scale = -m_lattice.Step * m_lattice.Step / (2 * spread * spread);
        const std::int32_t last = m_first + static_cast<std::int32_t>(m_shares.size()) - 1;
        double likelihood = 0;
        for (std::size_t at = 0; at < m_sizes.size(); ++at)
        {
            auto& [first, shares] = m_belongings[at];
            const double place = PlaceOf(m_sizes[at]);
            first =
                std::clamp(static_cast<std::int32_t>(std::nearbyint(place)) - 1, m_first, last - 2);
            double sum = std::numeric_limits<double>::min();
            for (std::int32_t side = 0; side < 3; ++side)
            {
                const double off = place - (first + side);
                shares[static_cast<std::size_t>(side)] =
                    ShareOf(first + side) * std::exp(scale * off * off);
                sum += shares[static_cast<std::size_t>(side)];
            }
            for (double& share : shares)
                share /= sum;
            likelihood += std::log(sum / spread);
        }
        return likelihood;
    }

    /// Calls `visit(size, place, share)` for what each size may be of.
    template <typename Visit>
    void ForEach(Visit visit) const
    {
        for (std::size_t at = 0; at < m_sizes.size(); ++at)
        {
            const auto& [first, shares] = m_belongings[at];
            for (std::size_t side = 0; side < shares.size(); ++side)
            {
                if (shares[side] > 0)
                    visit(m_sizes[at], first + static_cast<std::int32_t>(side), shares[side]);
            }
        }
    }

    /// Least squares with the shares as weights.
    void Maximise()
    {
        const auto count = static_cast<double>(m_sizes.size());
        double places = 0;
        double sizes = 0;
        std::ranges::fill(m_shares, 0);
        ForEach([&](double size, std::int32_t place, double share) {
            m_shares[static_cast<std::size_t>(place - m_first)] += share / count;
            places += share * place;
            sizes += share * size;
        });
        const double meanPlace = places / count;
        const double meanSize = sizes / count;
        double placeSquares = 0;
        double products = 0;
        double sizeSquares = 0;
        ForEach([&](double size, std::int32_t place, double share) {
            placeSquares += share * (place - meanPlace) * (place - meanPlace);
            products += share * (place - meanPlace) * (size - meanSize);
            sizeSquares += share * (size - meanSize) * (size - meanSize);
        });
        if (placeSquares > smallestSpread)
            m_lattice.Step = products / placeSquares;
        m_lattice.Offset = meanSize - m_lattice.Step * meanPlace;
        m_lattice.MeanPlace = meanPlace;
        const double squares = sizeSquares - 2 * m_lattice.Step * products +
                               m_lattice.Step * m_lattice.Step * placeSquares;
        m_lattice.Spread = std::sqrt(std::max(0.0, squares) / std::max(1.0, count - 2));
    }

    /// Inverts the information of mean and step: that of known places, less what their shares leave
    /// open of each size.
    void EstimateErrors()
    {
        double mean = 0;
        double both = 0;
        double step = 0;
        for (std::size_t at = 0; at < m_sizes.size(); ++at)
        {
            const auto& [first, shares] = m_belongings[at];
            double score = 0;
            double stepScore = 0;
            for (std::size_t side = 0; side < shares.size(); ++side)
            {
                const std::int32_t place = first + static_cast<std::int32_t>(side);
                const double far = place - m_lattice.MeanPlace;
                const double off = (m_sizes[at] - m_lattice.SizeAt(place)) / UsedSpread();
                const double known = shares[side] * (1 - off * off);
                mean += known;
                both += known * far;
                step += known * far * far;
                score += shares[side] * off;
                stepScore += shares[side] * off * far;
            }
            mean += score * score;
            both += score * stepScore;
            step += stepScore * stepScore;
        }
        const double determinant = mean * step - both * both;
        const double variance = determinant > 0 && mean > 0
                                    ? m_lattice.Spread * m_lattice.Spread / determinant
                                    : HUGE_VAL;
        m_lattice.MeanVariance = variance * step;
        m_lattice.StepVariance = variance * mean;
        m_lattice.Covariance = -variance * both;
    }

    /// Gives each size its likeliest place. Places whole repeats from the commonest are likelier
    /// than others; the fit itself must not know, or it would draw sizes there.
    void Choose()
    {
        constexpr double leastWeight = 0.02;
        std::vector<double> weights(m_repeatLength, leastWeight);
        for (std::size_t at = 0; at < m_shares.size(); ++at)
            weights[at % m_repeatLength] += m_shares[at];
        for (auto& [first, shares] : m_belongings)
        {
            const auto start = static_cast<std::size_t>(first - m_first);
            for (std::size_t side = 0; side < shares.size(); ++side)
                shares[side] *= weights[(start + side) % m_repeatLength];
            const auto best = std::ranges::max_element(shares) - shares.begin();
            m_lattice.Places.push_back(first + static_cast<std::int32_t>(best));
        }
    }

    std::span<const double> m_sizes;
    std::size_t m_repeatLength;
    Lattice m_lattice;
    std::int32_t m_first = 0;
    std::vector<double> m_shares; ///< Of the sizes, those of each place from m_first on.
    std::vector<Belonging> m_belongings;
};

} // namespace

double Lattice::ErrorAt(double place) const
{
    const double far = place - MeanPlace;
    return std::sqrt(std::max(0.0, MeanVariance + 2 * far * Covariance + far * far * StepVariance));
}

double Lattice::StepError() const
{
    return std::sqrt(StepVariance);
}

Lattice PlaceOnLattice(std::span<const double> sizes, double period, std::int32_t repeatLength)
{
    return Mixture(sizes, period, repeatLength).Run();
}

} // namespace Tamrivo
