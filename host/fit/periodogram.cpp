#include "host/fit/periodogram.h"

#include <boost/math/distributions/chi_squared.hpp>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

namespace Tamrivo
{

namespace
{

using Complex = std::complex<double>;

constexpr double cellWidth = 0.2; // nt; shifts a phase by little

/// Sizes counted in cells, so that many sizes cost no more than a long range.
struct Cell
{
    double Center;
    double Count;
};

std::vector<Cell> CellsOf(std::span<const double> sizes)
{
    std::vector<Cell> cells;
    double end = -1;
    double sum = 0;
    for (const double size : sizes)
    {
        if (cells.empty() || size >= end)
        {
            cells.push_back({size, 0});
            end = size + cellWidth;
            sum = 0;
        }
        sum += size;
        cells.back().Count += 1;
        cells.back().Center = sum / cells.back().Count;
    }
    return cells;
}

Complex Turn(double angle)
{
    return std::polar(1.0, angle);
}

/// The power of the first two harmonics at one frequency after the other. Each cell's phase is
/// turned on from frequency to frequency.
class Wheels
{
public:
    Wheels(std::span<const double> sizes, double from, double step)
        : m_cells(CellsOf(sizes)), m_count(static_cast<double>(sizes.size()))
    {
        const double center = (sizes.front() + sizes.back()) / 2;
        for (const Cell& cell : m_cells)
        {
            const double angle = 2 * std::numbers::pi * (cell.Center - center);
            m_phases.push_back(Turn(angle * from));
            m_turns.push_back(Turn(angle * step));
        }
    }

    double NextPower()
    {
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
        for (std::size_t cell = 0; cell < m_cells.size(); ++cell)
        {
            const double count = m_cells[cell].Count;
            const double x = m_phases[cell].real();
            const double y = m_phases[cell].imag();
            x1 += count * x;
            y1 += count * y;
            x2 += count * (x * x - y * y);
            y2 += count * 2 * x * y;
            const double turnX = m_turns[cell].real();
            const double turnY = m_turns[cell].imag();
            m_phases[cell] = {x * turnX - y * turnY, x * turnY + y * turnX};
        }
        return 2 * (x1 * x1 + y1 * y1 + x2 * x2 + y2 * y2) / m_count;
    }

private:
    std::vector<Cell> m_cells;
    std::vector<Complex> m_phases;
    std::vector<Complex> m_turns;
    double m_count;
};

/// How likely random sizes reach the power at one of so many independent frequencies.
void SetChance(Periodicity& best, double independent)
{
    const boost::math::chi_squared random(4);
    const double one = boost::math::cdf(boost::math::complement(random, best.Power));
    best.Chance = -std::expm1(independent * std::log1p(-std::min(one, 1 - 1e-12)));
    best.RandomPower = boost::math::quantile(random, std::pow(0.5, 1 / independent));
}

} // namespace

Periodicity FindPeriod(std::span<const double> sizes, double shortest, double longest)
{
    constexpr double stepsOfCycle = 10;
    const double span = std::max(sizes.back() - sizes.front(), longest);
    const double from = 1 / longest;
    const double width = 1 / shortest - from;
    const auto steps = static_cast<int>(std::ceil(width * span * stepsOfCycle));
    const double step = width / steps;

    Wheels wheels(sizes, from, step);
    Periodicity best;
    for (int at = 0; at <= steps; ++at)
    {
        const double power = wheels.NextPower();
        if (power > best.Power)
        {
            best.Power = power;
            best.Period = 1 / (from + step * at);
        }
    }
    // The second harmonic has twice the cycles.
    SetChance(best, 1 + 2 * width * span);
    return best;
}

} // namespace Tamrivo
