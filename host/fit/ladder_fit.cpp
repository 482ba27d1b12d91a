#include "host/fit/ladder_fit.h"

#include "core/numbers.h"
#include "host/fit/nucleotide_lattice.h"
#include "host/fit/periodogram.h"
#include "host/loci/repeat_name.h"
#include "host/loci/start_at.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
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

double MiddleOf(const std::vector<double>& ascending)
{
    const std::size_t half = ascending.size() / 2;
    return ascending.size() % 2 == 1 ? ascending[half]
                                     : (ascending[half - 1] + ascending[half]) / 2;
}

/// Groups of sizes with gaps between them that are wider than sizes of one allele lie apart.
std::size_t CountOfNames(const std::vector<double>& sizes)
{
    constexpr double gap = 0.7; // nt
    std::size_t count = 1;
    for (std::size_t at = 1; at < sizes.size(); ++at)
        count += sizes[at] - sizes[at - 1] > gap ? 1 : 0;
    return count;
}

/// What tells how many nucleotides of repeats a size has.
class Anchor
{
public:
    Anchor(const LocusFields& locus, std::span<const AlleleFields* const> known)
        : m_locus(locus), m_known(known)
    {}

    /// Nucleotides of repeats at place 0 of the lattice.
    std::int32_t NucleotidesAtStart(const Lattice& lattice) const
    {
        std::vector<double> starts;
        for (const AlleleFields* allele : m_known)
        {
            const auto name = ReadRepeatName(allele->AlleleText1);
            if (name && !IsItsSize(*name, *allele))
                starts.push_back(name->Length(m_locus.RepeatLength) -
                                 (allele->AlleleReal1 - lattice.Offset) / lattice.Step);
        }
        if (!starts.empty())
        {
            std::ranges::sort(starts);
            return static_cast<std::int32_t>(std::lround(MiddleOf(starts)));
        }
        return StartOfCommonest(lattice);
    }

    bool KnowsRepeatNames() const
    {
        return std::ranges::any_of(m_known, [](const AlleleFields* allele) {
            const auto name = ReadRepeatName(allele->AlleleText1);
            return name && !IsItsSize(*name, *allele);
        });
    }

    double RepeatsInShortest() const
    {
        return IsNumeric(m_locus.RepeatsInShortestAllele)
                   ? ToDouble(m_locus.RepeatsInShortestAllele)
                   : 1;
    }

private:
    static bool IsItsSize(const RepeatName& name, const AlleleFields& allele)
    {
        return std::abs(name.Length(1) - allele.AlleleReal1) <= 1;
    }

    /// The commonest places have whole repeats, as many as come nearest to those that the shortest
    /// allele tells.
    std::int32_t StartOfCommonest(const Lattice& lattice) const
    {
        const std::int32_t unit = m_locus.RepeatLength;
        std::map<std::int32_t, int> countOfRest;
        for (const std::int32_t place : lattice.Places)
            ++countOfRest[((place % unit) + unit) % unit];
        const auto commonest =
            std::ranges::max_element(countOfRest, {}, &std::pair<const std::int32_t, int>::second);
        const double told = RepeatsInShortest() * unit -
                            (m_locus.ShortestAlleleSize - lattice.Offset) / lattice.Step;
        const double repeats = std::round((told + commonest->first) / unit);
        return static_cast<std::int32_t>(repeats) * unit - commonest->first;
    }

    const LocusFields& m_locus;
    std::span<const AlleleFields* const> m_known;
};

/// Names by the locus's convention, or as the alleles that it has are named.
class Naming
{
public:
    Naming(const LocusFields& locus, const Anchor& anchor)
        : m_locus(locus),
          m_byRepeats(anchor.KnowsRepeatNames()),
          m_firstRepeats(static_cast<std::int32_t>(std::floor(anchor.RepeatsInShortest())))
    {}

    std::string NameOf(std::int32_t nucleotides, double size)
    {
        const std::int32_t unit = m_locus.RepeatLength;
        const auto repeats =
            static_cast<std::int32_t>(std::floor(static_cast<double>(nucleotides) / unit));
        RepeatName name{repeats, nucleotides - repeats * unit};
        if (m_byRepeats)
            return name.Text();
        const std::int32_t steps = repeats - m_firstRepeats;
        switch (m_locus.AlleleNamingConventionTypeID)
        {
        case AlleleNamingConvention::Numeric:
            name.Repeats = m_locus.StartAtNumeric + steps;
            return name.Text();
        case AlleleNamingConvention::Alphabetic: return LettersOf(steps, name.Nucleotides);
        default: return WholeSize(size);
        }
    }

private:
    std::string LettersOf(std::int32_t steps, std::int32_t nucleotides) const
    {
        std::string letters = m_locus.StartAtAlphanumeric;
        for (; steps > 0; --steps)
            letters = NextStartAt(letters);
        for (; steps < 0; ++steps)
            letters = PreviousStartAt(letters);
        return letters + (nucleotides > 0 ? "." + std::to_string(nucleotides) : "");
    }

    /// A whole size that no other allele has.
    std::string WholeSize(double size)
    {
        auto whole = static_cast<std::int32_t>(std::lround(size));
        while (!m_wholeSizes.insert(whole).second)
            ++whole;
        return IntegerText(whole);
    }

    const LocusFields& m_locus;
    bool m_byRepeats;
    std::int32_t m_firstRepeats;
    std::set<std::int32_t> m_wholeSizes;
};

class Fitter
{
public:
    Fitter(const LocusFields& locus, std::span<const AlleleFields* const> known,
           std::span<const double> sizes)
        : m_locus(locus), m_anchor(locus, known), m_sizes(sizes.begin(), sizes.end())
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
            m_fit.Reason = "Too few names: the sizes make " + std::to_string(m_fit.Alleles.size()) +
                           " alleles; at least " + std::to_string(FewestNames) + " are needed";
            m_fit.Alleles.clear();
        }
        return std::move(m_fit);
    }

private:
    bool IsTooFew()
    {
        if (m_locus.RepeatLength < 2)
            m_fit.Reason = "A ladder needs a repeat length of at least 2 nt";
        else if (m_sizes.size() < FewestPeaks)
            m_fit.Reason = "Too few sizes: " + std::to_string(m_sizes.size()) + "; at least " +
                           std::to_string(FewestPeaks) + " are needed";
        else if (const std::size_t names = CountOfNames(m_sizes); names < FewestNames)
            m_fit.Reason = "Too few names: the sizes make " + std::to_string(names) +
                           "; at least " + std::to_string(FewestNames) + " are needed";
        return !m_fit.Reason.empty();
    }

    bool FindLadder()
    {
        constexpr double mostChance = 0.002;
        constexpr double shortest = 0.9;
        constexpr double longest = 1.1;
        const double unit = m_locus.RepeatLength;
        const Periodicity found = FindPeriod(m_sizes, shortest * unit, longest * unit);
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
        if (m_lattice.Step < shortest || m_lattice.Step > longest)
        {
            m_fit.Reason =
                "No ladder: the sizes grow by " + DoubleText(Hundredths(m_lattice.Step * unit)) +
                " nt a repeat; expected 0.9 to 1.1 of " + IntegerText(m_locus.RepeatLength) + " nt";
            return false;
        }
        if (std::ranges::min(m_lattice.Places) + m_start < 0)
        {
            m_fit.Reason = "The sizes don't belong to the locus: by its alleles, or its shortest "
                           "allele, the smallest would have fewer than 0 repeats";
            return false;
        }
        return true;
    }

    void DescribeLadder()
    {
        const double unit = m_locus.RepeatLength;
        m_fit.Period = m_lattice.Step * unit;
        m_fit.PeriodError = m_lattice.StepError * unit;
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
        for (const auto& [place, sizes] : clusters)
        {
            ProposedAllele allele;
            allele.Count = sizes.size();
            allele.Fields.AlleleReal1 = Hundredths(MiddleOf(sizes));
            allele.Fields.AlleleInt1 = AlleleOrigin::Edited;
            m_fit.Alleles.push_back(allele);
            m_nucleotides.push_back(place + m_start);
        }
    }

    void NameAlleles()
    {
        constexpr double tenths = 10;
        Naming naming(m_locus, m_anchor);
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
    Anchor m_anchor;
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
