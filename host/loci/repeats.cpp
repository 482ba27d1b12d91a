#include "host/loci/repeats.h"

#include "core/numbers.h"
#include "core/text.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Tamrivo
{

namespace
{

/// A number in the notation of allele names, whatever the locale: digits, and after a point how
/// many nt are left of a unit.
std::optional<double> RepeatsIn(const std::string& name, std::int32_t unit)
{
    constexpr std::ptrdiff_t mostDigits = 4;
    const auto isDigit = [](char byte) { return byte >= '0' && byte <= '9'; };
    const auto point = std::ranges::find(name, '.');
    const auto whole = point - name.begin();
    if (whole < 1 || whole > mostDigits || !std::all_of(name.begin(), point, isDigit))
        return std::nullopt;
    const double repeats = std::stoi(std::string(name.begin(), point));
    if (point == name.end())
        return repeats;
    const std::string rest(point + 1, name.end());
    if (rest.size() != 1 || !isDigit(rest[0]) || rest[0] - '0' >= unit)
        return std::nullopt;
    return repeats + (rest[0] - '0') / 10.0;
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
    return whole * unit + std::round((repeats - whole) * 10);
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
    const auto named = RepeatsIn(Trim(allele.AlleleText1), locus.RepeatLength);
    if (named && !NamesCountAlleles(locus) &&
        RepeatsLength(*named, locus.RepeatLength) < allele.AlleleReal1)
        return *named;
    if (allele.AlleleReal4 == 0)
        return 0;
    return RepeatsAtDistance(RepeatsOrNone(locus), allele.AlleleReal1 - locus.ShortestAlleleSize,
                             locus.RepeatLength);
}

} // namespace Tamrivo
