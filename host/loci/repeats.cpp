#include "host/loci/repeats.h"

#include "core/numbers.h"
#include "host/loci/repeat_name.h"

#include <cmath>
#include <optional>

namespace Tamrivo
{

namespace
{

/// The number of repeats that a name tells; what is left of a unit is shorter than the unit.
std::optional<double> RepeatsIn(const std::string& name, std::int32_t unit)
{
    const auto read = ReadRepeatName(name);
    if (!read || (read->Nucleotides > 0 && read->Nucleotides >= unit))
        return std::nullopt;
    return read->Repeats + read->Nucleotides / 10.0;
}

double RepeatsOrNone(const LocusFields& locus)
{
    return IsNumeric(locus.RepeatsInShortestAllele) ? ToDouble(locus.RepeatsInShortestAllele) : 0;
}

bool NamesCountAlleles(const LocusFields& locus)
{
    const double repeats = RepeatsOrNone(locus);
    return locus.AlleleNamingConventionTypeID == AlleleNamingConvention::Numeric && repeats != 0 &&
           locus.StartAtNumeric != repeats;
}

} // namespace

double RepeatsLength(double repeats, std::int32_t unit)
{
    const double whole = std::floor(repeats);
    return RepeatName{static_cast<std::int32_t>(whole),
                      static_cast<std::int32_t>(std::lround((repeats - whole) * 10))}
        .Length(unit);
}

double RepeatsAtDistance(double repeats, double distance, std::int32_t unit)
{
    const double length = RepeatsLength(repeats, unit) + std::round(distance);
    if (repeats == 0 || unit < 1 || !(length >= unit))
        return 0;
    const double rest = std::fmod(length, unit);
    // A point has room for one digit.
    return std::floor(length / unit) + (rest < 10 ? rest / 10 : 0);
}

double RepeatsOf(const AlleleFields& allele, const LocusFields& locus)
{
    const auto named = RepeatsIn(allele.AlleleText1, locus.RepeatLength);
    if (named && !NamesCountAlleles(locus) &&
        RepeatsLength(*named, locus.RepeatLength) < allele.AlleleReal1)
        return *named;
    if (allele.AlleleReal4 == 0)
        return 0;
    return RepeatsAtDistance(RepeatsOrNone(locus), allele.AlleleReal1 - locus.ShortestAlleleSize,
                             locus.RepeatLength);
}

} // namespace Tamrivo
