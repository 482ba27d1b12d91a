#include "host/checks/check_rules.h"
#include "host/checks/nucleotides.h"
#include "host/checks/overlaps.h"

#include <algorithm>
#include <map>
#include <set>

namespace Tamrivo
{

namespace
{

/// Ranges of imports are rounded outward to whole nt.
constexpr double roundedRange = 1;

std::string RangeText(const CheckedLocus& locus)
{
    return NtText(locus.Fields.FragStart, locus.Fields.FragEnd);
}

/// Ranges of a dye's loci.
using RangesOfDye = std::map<std::int32_t, std::vector<Stretch>>;
using LocusPairs = std::set<std::pair<std::size_t, std::size_t>>;

RangesOfDye RangesOf(const LociTogether& group)
{
    RangesOfDye ranges;
    for (std::size_t at = 0; at < group.Loci.size(); ++at)
    {
        const LocusFields& fields = group.Loci[at]->Fields;
        ranges[fields.DyeIndex].push_back(
            {static_cast<double>(fields.FragStart), static_cast<double>(fields.FragEnd), at});
    }
    return ranges;
}

void ReportRangeOverlap(const CheckedLocus& locus, const CheckedLocus& other, Findings& findings)
{
    const int overlap = std::min(locus.Fields.FragEnd, other.Fields.FragEnd) -
                        std::max(locus.Fields.FragStart, other.Fields.FragStart);
    const bool reachesRight = locus.Fields.FragEnd <= other.Fields.FragEnd;
    findings.OfField(locus, reachesRight ? "FragEnd" : "FragStart",
                     "The range " + RangeText(locus) + " overlaps that of " + other.Tag + ", " +
                         RangeText(other) + ", by " + NtText(overlap) + " in the same dye (" +
                         locus.Dye + "); expected at most 1 nt");
}

/// Alleles of a locus that lie in the range of another. The range and the allele's place, a
/// stretch without length, overlap by more than roundedRange on either side of the place.
void ReportStrayAlleles(const LociTogether& group, const std::vector<Stretch>& ranges,
                        const LocusPairs& reported, Findings& findings)
{
    std::vector<Stretch> stretches = ranges;
    for (const Stretch& range : ranges)
    {
        const auto& alleles = group.Loci[range.Owner]->Alleles;
        for (std::size_t at = 0; at < alleles.size(); ++at)
        {
            const double size = alleles[at]->AlleleReal1;
            if (size < range.From - roundedRange || size > range.To + roundedRange)
                stretches.push_back(
                    {size - roundedRange, size + roundedRange, range.Owner, at + 1});
        }
    }
    if (stretches.size() == ranges.size())
        return;
    for (const auto& [left, right] : Overlaps(std::move(stretches), 2 * roundedRange - 1e-9))
    {
        const auto& [stray, range] =
            right.Allele > 0 ? std::pair(right, left) : std::pair(left, right);
        if (stray.Allele == 0 || range.Allele > 0 ||
            reported.contains(std::minmax(stray.Owner, range.Owner)))
            continue;
        const CheckedLocus& locus = *group.Loci[stray.Owner];
        const CheckedLocus& other = *group.Loci[range.Owner];
        const AlleleFields& allele = *locus.Alleles[stray.Allele - 1];
        findings.OfAllele(locus, allele,
                          "The allele at " + NtText(allele.AlleleReal1) + " lies in the range of " +
                              other.Tag + ", " + RangeText(other) + ", in the same dye (" +
                              locus.Dye + "); expected it in " + RangeText(locus));
    }
}

} // namespace

void CheckRangeOverlap(const LociTogether& group, Findings& findings)
{
    for (const auto& [dye, ranges] : RangesOf(group))
    {
        LocusPairs reported;
        for (const auto& [left, right] : Overlaps(ranges, roundedRange + RoundingError))
        {
            reported.insert(std::minmax(left.Owner, right.Owner));
            ReportRangeOverlap(*group.Loci[left.Owner], *group.Loci[right.Owner], findings);
            ReportRangeOverlap(*group.Loci[right.Owner], *group.Loci[left.Owner], findings);
        }
        ReportStrayAlleles(group, ranges, reported, findings);
    }
}

void CheckOutsideRange(const CheckedLocus& locus, Findings& findings)
{
    for (const AlleleFields* allele : locus.Alleles)
    {
        const double size = allele->AlleleReal1;
        if (size < locus.Fields.FragStart || size > locus.Fields.FragEnd)
            findings.OfAllele(locus, *allele,
                              "The allele at " + NtText(size) + " lies outside the range of " +
                                  RangeText(locus));
    }
}

void CheckStutterRange(const CheckedLocus& locus, Findings& findings)
{
    const LocusFields& fields = locus.Fields;
    if (!fields.SearchForStutter || !fields.DetShortStutter || locus.Alleles.empty())
        return;
    const AlleleFields& shortest = *locus.Alleles.front();
    const double stutter =
        shortest.AlleleReal1 - static_cast<double>(fields.StutterWidth) * fields.RepeatLength;
    if (stutter < fields.FragStart)
        findings.OfAllele(locus, shortest,
                          "The stutter of the shortest allele reaches down to " + NtText(stutter) +
                              "; expected the range, which starts at " + NtText(fields.FragStart) +
                              ", to include it while stutter is searched for");
}

} // namespace Tamrivo
