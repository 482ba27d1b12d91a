#include "host/fit/ladder_fit.h"

#include "core/numbers.h"
#include "host/fit/nucleotide_lattice.h"
#include "host/fit/periodogram.h"
#include "host/fit/proposal_cautions.h"
#include "host/fit/repeat_anchor.h"

#include <boost/math/statistics/univariate_statistics.hpp>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace Tamrivo
{

namespace
{

double Hundredths(double value)
{
    constexpr double hundred = 100;
    return std::round(value * hundred) / hundred;
}

std::string TooFewNames(std::size_t count)
{
    return "Too few names: the sizes make " + std::to_string(count) + "; at least " +
           std::to_string(FewestNames) + " are needed";
}

class Fitter
{
public:
    Fitter(const LocusFields& locus, std::span<const AlleleFields* const> known,
           std::span<const double> sizes)
        : m_locus(locus),
          m_known(known),
          m_anchor(locus, known),
          m_sizes(sizes.begin(), sizes.end())
    {
        std::ranges::sort(m_sizes);
    }

    LadderFit Run()
    {
        if (IsTooFew() || !FindLadder())
        {
            m_fit.Unplaced = m_sizes;
            return std::move(m_fit);
        }
        DescribeLadder();
        ProposeAlleles();
        NameAlleles();
        SetBins();
        m_fit.IsProposed = m_fit.Alleles.size() >= FewestNames;
        if (!m_fit.IsProposed)
        {
            m_fit.Reason = TooFewNames(m_fit.Alleles.size());
            m_fit.Alleles.clear();
        }
        m_fit.Cautions = CautionsOf(m_locus, m_known, m_fit.Alleles);
        return std::move(m_fit);
    }

private:
    // A step, as a share of 1 nt.
    static constexpr double shortestShare = 0.9;
    static constexpr double longestShare = 1.1;

    bool IsTooFew()
    {
        if (m_locus.RepeatLength < 2)
            m_fit.Reason = "A ladder needs a repeat length of at least 2 nt";
        else if (m_sizes.size() < FewestPeaks)
            m_fit.Reason = "Too few sizes: " + std::to_string(m_sizes.size()) + "; at least " +
                           std::to_string(FewestPeaks) + " are needed";
        return !m_fit.Reason.empty();
    }

    bool FindLadder()
    {
        constexpr double mostChance = 0.002;
        const double unit = m_locus.RepeatLength;
        const Periodicity found = FindPeriod(m_sizes, shortestShare * unit, longestShare * unit);
        m_fit.Gain = found.Power / found.RandomPower;
        if (found.Chance > mostChance)
        {
            m_fit.Reason = "No ladder: as many random sizes would show a period as clear as this "
                           "with a chance of " +
                           DoubleText(Hundredths(found.Chance));
            return false;
        }
        m_lattice = PlaceOnLattice(m_sizes, found.Period, m_locus.RepeatLength);
        m_start = m_anchor.NucleotidesAtStart(m_lattice);
        m_fit.Reason = WhyNotOfLocus();
        return m_fit.Reason.empty();
    }

    /// Why the lattice can't be that of the locus; empty if it can.
    std::string WhyNotOfLocus() const
    {
        constexpr double mostError = 0.05;
        const double unit = m_locus.RepeatLength;
        const std::set<std::int32_t> names(m_lattice.Places.begin(), m_lattice.Places.end());
        if (names.size() < FewestNames)
            return TooFewNames(names.size());
        if (!(m_lattice.StepError() <= mostError))
            return "No ladder: other periods fit the sizes as well";
        if (m_lattice.Step < shortestShare || m_lattice.Step > longestShare)
            return "No ladder: the sizes grow by " + DoubleText(Hundredths(m_lattice.Step * unit)) +
                   " nt a repeat; expected 0.9 to 1.1 of " + IntegerText(m_locus.RepeatLength) +
                   " nt";
        if (std::ranges::min(m_lattice.Places) + m_start < 0)
            return "The sizes don't belong to the locus: by its alleles, or its shortest allele, "
                   "the smallest would have fewer than 0 repeats";
        return {};
    }

    void DescribeLadder()
    {
        const double unit = m_locus.RepeatLength;
        m_fit.Period = m_lattice.Step * unit;
        m_fit.PeriodError = m_lattice.StepError() * unit;
        m_fit.Offset = m_lattice.SizeAt(-m_start);
        m_fit.OffsetError = m_lattice.ErrorAt(-m_start);
    }

    void ProposeAlleles()
    {
        constexpr double manySpreads = 4;
        constexpr double nearEnough = 0.3; // nt
        const double farthest = std::max(manySpreads * m_lattice.Spread, nearEnough);
        std::map<std::int32_t, std::vector<double>> clusters;
        double residuals = 0;
        std::size_t placed = 0;
        for (std::size_t at = 0; at < m_sizes.size(); ++at)
        {
            const double residual = std::abs(m_sizes[at] - m_lattice.SizeAt(m_lattice.Places[at]));
            if (residual > farthest)
            {
                m_fit.Unplaced.push_back(m_sizes[at]);
                continue;
            }
            clusters[m_lattice.Places[at]].push_back(m_sizes[at]);
            residuals += residual;
            ++placed;
        }
        m_fit.MeanResidual = placed > 0 ? residuals / static_cast<double>(placed) : 0;
        for (auto& [place, sizes] : clusters)
        {
            ProposedAllele allele;
            allele.Count = sizes.size();
            allele.Fields.AlleleReal1 = Hundredths(boost::math::statistics::median(sizes));
            allele.Fields.AlleleInt1 = AlleleOrigin::Edited;
            m_fit.Alleles.push_back(allele);
            m_nucleotides.push_back(place + m_start);
        }
    }

    void NameAlleles()
    {
        constexpr double tenths = 10;
        ProposedNames naming(m_locus, m_anchor);
        for (std::size_t at = 0; at < m_fit.Alleles.size(); ++at)
        {
            AlleleFields& allele = m_fit.Alleles[at].Fields;
            const double repeats =
                std::floor(static_cast<double>(m_nucleotides[at]) / m_locus.RepeatLength);
            allele.AlleleText1 = naming.NameOf(m_nucleotides[at], allele.AlleleReal1);
            allele.AlleleReal4 =
                repeats + (m_nucleotides[at] - repeats * m_locus.RepeatLength) / tenths;
        }
    }

    /// As wide as the interval and the spread ask, up to the middle between neighbours.
    void SetBins()
    {
        constexpr double manySpreads = 3;
        const double interval =
            m_locus.UserSpecifiedConfInt == 1 ? m_locus.ConfInt : m_locus.SystemConfInt;
        const double half = Hundredths(std::max(interval, manySpreads * m_lattice.Spread));
        auto& alleles = m_fit.Alleles;
        for (std::size_t at = 0; at < alleles.size(); ++at)
        {
            AlleleFields& allele = alleles[at].Fields;
            const auto middle = [&](std::size_t left) {
                return Hundredths(
                    (alleles[left].Fields.AlleleReal1 + alleles[left + 1].Fields.AlleleReal1) / 2);
            };
            allele.AlleleReal2 = Hundredths(allele.AlleleReal1 - half);
            allele.AlleleReal3 = Hundredths(allele.AlleleReal1 + half);
            if (at > 0)
                allele.AlleleReal2 = std::max(allele.AlleleReal2, middle(at - 1));
            if (at + 1 < alleles.size())
                allele.AlleleReal3 = std::min(allele.AlleleReal3, middle(at));
        }
        const auto inBins = std::ranges::count_if(m_sizes, [&](double size) {
            return std::ranges::any_of(alleles, [size](const ProposedAllele& allele) {
                return allele.Fields.AlleleReal2 <= size && size <= allele.Fields.AlleleReal3;
            });
        });
        m_fit.ShareInBins = static_cast<double>(inBins) / static_cast<double>(m_sizes.size());
    }

    const LocusFields& m_locus;
    std::span<const AlleleFields* const> m_known;
    RepeatAnchor m_anchor;
    std::vector<double> m_sizes;
    LadderFit m_fit;
    Lattice m_lattice;
    std::int32_t m_start = 0; ///< Nucleotides of repeats at place 0.
    std::vector<std::int32_t> m_nucleotides;
};

} // namespace

LadderFit FitLadder(const LocusFields& locus, std::span<const AlleleFields* const> known,
                    std::span<const double> sizes)
{
    return Fitter(locus, known, sizes).Run();
}

} // namespace Tamrivo
