#include "host/fit/repeat_anchor.h"

#include "core/numbers.h"
#include "host/loci/repeat_name.h"
#include "host/loci/start_at.h"

#include <boost/math/statistics/univariate_statistics.hpp>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

namespace Tamrivo
{

namespace
{

/// The allele's name as repeats; none for one that is its size.
std::optional<RepeatName> RepeatsNamedBy(const AlleleFields& allele)
{
    const auto name = ReadRepeatName(allele.AlleleText1);
    return name && std::abs(name->Length(1) - allele.AlleleReal1) > 1 ? name : std::nullopt;
}

} // namespace

std::int32_t RepeatAnchor::NucleotidesAtStart(const Lattice& lattice) const
{
    std::vector<double> starts;
    for (const AlleleFields* allele : m_known)
    {
        if (const auto name = RepeatsNamedBy(*allele))
            starts.push_back(name->Length(m_locus.RepeatLength) -
                             (allele->AlleleReal1 - lattice.Offset) / lattice.Step);
    }
    return starts.empty()
               ? StartOfCommonest(lattice)
               : static_cast<std::int32_t>(std::lround(boost::math::statistics::median(starts)));
}

bool RepeatAnchor::KnowsRepeatNames() const
{
    return std::ranges::any_of(
        m_known, [](const AlleleFields* allele) { return RepeatsNamedBy(*allele).has_value(); });
}

double RepeatAnchor::RepeatsInShortest() const
{
    return IsNumeric(m_locus.RepeatsInShortestAllele) ? ToDouble(m_locus.RepeatsInShortestAllele)
                                                      : 1;
}

/// The commonest places have whole repeats, as many as come nearest to those that the shortest
/// allele tells.
std::int32_t RepeatAnchor::StartOfCommonest(const Lattice& lattice) const
{
    const std::int32_t unit = m_locus.RepeatLength;
    std::map<std::int32_t, int> countOfRest;
    for (const std::int32_t place : lattice.Places)
        ++countOfRest[((place % unit) + unit) % unit];
    const auto commonest =
        std::ranges::max_element(countOfRest, {}, &std::pair<const std::int32_t, int>::second);
    const double told =
        RepeatsInShortest() * unit - (m_locus.ShortestAlleleSize - lattice.Offset) / lattice.Step;
    const double repeats = std::round((told + commonest->first) / unit);
    return static_cast<std::int32_t>(repeats) * unit - commonest->first;
}

ProposedNames::ProposedNames(const LocusFields& locus, const RepeatAnchor& anchor)
    : m_locus(locus),
      m_byRepeats(anchor.KnowsRepeatNames()),
      m_firstRepeats(static_cast<std::int32_t>(std::floor(anchor.RepeatsInShortest())))
{}

std::string ProposedNames::NameOf(std::int32_t nucleotides, double size)
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

std::string ProposedNames::LettersOf(std::int32_t steps, std::int32_t nucleotides) const
{
    std::string letters = m_locus.StartAtAlphanumeric;
    for (; steps > 0; --steps)
        letters = NextStartAt(letters);
    for (; steps < 0; ++steps)
        letters = PreviousStartAt(letters);
    return letters + (nucleotides > 0 ? "." + std::to_string(nucleotides) : "");
}

/// A whole size that no other allele has.
std::string ProposedNames::WholeSize(double size)
{
    auto whole = static_cast<std::int32_t>(std::lround(size));
    while (!m_wholeSizes.insert(whole).second)
        ++whole;
    return IntegerText(whole);
}

} // namespace Tamrivo
