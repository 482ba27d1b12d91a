#include "host/checks/check_rules.h"
#include "host/checks/local_neighbours.h"
#include "host/checks/nucleotides.h"
#include "host/checks/overlaps.h"

#include <cmath>
#include <map>
#include <set>

namespace Tamrivo
{

namespace
{

bool HasWidth(const AlleleFields& allele)
{
    return allele.AlleleReal3 - allele.AlleleReal2 > RoundingError;
}

bool HaveOneBin(const AlleleFields& left, const AlleleFields& right)
{
    return std::abs(left.AlleleReal2 - right.AlleleReal2) < RoundingError &&
           std::abs(left.AlleleReal3 - right.AlleleReal3) < RoundingError;
}

Stretch BinOf(const AlleleFields& allele, std::size_t owner, std::size_t position)
{
    return {allele.AlleleReal2, allele.AlleleReal3, owner, position};
}

std::string OverlapText(const AlleleFields& allele, const std::string& other,
                        const AlleleFields& otherAllele)
{
    const double overlap = std::min(allele.AlleleReal3, otherAllele.AlleleReal3) -
                           std::max(allele.AlleleReal2, otherAllele.AlleleReal2);
    return "The " + BinText(allele) + " overlaps that of " + other + ", " +
           NtText(otherAllele.AlleleReal2, otherAllele.AlleleReal3) + ", by " + NtText(overlap);
}

/// The allele and the dyes' other locus whose bins meet.
void ReportCollision(const CheckedLocus& locus, const AlleleFields& allele,
                     const CheckedLocus& other, const AlleleFields& otherAllele, Findings& findings)
{
    findings.OfAllele(
        locus, allele,
        OverlapText(allele, "allele " + otherAllele.AlleleText1 + " of " + other.Tag, otherAllele) +
            "; loci of one dye (" + locus.Dye + ") that are analysed together need bins apart");
}

} // namespace

void CheckBinOverlap(const CheckedLocus& locus, Findings& findings)
{
    std::vector<Stretch> bins;
    for (std::size_t at = 0; at < locus.Alleles.size(); ++at)
        bins.push_back(BinOf(*locus.Alleles[at], at, at));
    for (const auto& [left, right] : Overlaps(std::move(bins), RoundingError))
    {
        const AlleleFields& allele = *locus.Alleles[right.Allele];
        const AlleleFields& other = *locus.Alleles[left.Allele];
        if (!HaveOneBin(allele, other))
            findings.OfAllele(locus, allele,
                              OverlapText(allele, "allele " + other.AlleleText1, other) +
                                  "; bins of a locus must lie apart");
    }
}

void CheckBinOverlapOfLoci(const LociTogether& group, Findings& findings)
{
    std::map<std::int32_t, std::vector<Stretch>> binsOfDye;
    for (std::size_t at = 0; at < group.Loci.size(); ++at)
    {
        const CheckedLocus& locus = *group.Loci[at];
        for (std::size_t position = 0; position < locus.Alleles.size(); ++position)
            binsOfDye[locus.Fields.DyeIndex].push_back(
                BinOf(*locus.Alleles[position], at, position));
    }
    std::set<std::pair<std::size_t, std::size_t>> reported;
    for (auto& [dye, bins] : binsOfDye)
    {
        for (const auto& [left, right] : Overlaps(std::move(bins), RoundingError))
        {
            if (!reported.insert(std::minmax(left.Owner, right.Owner)).second)
                continue;
            const CheckedLocus& locus = *group.Loci[left.Owner];
            const CheckedLocus& other = *group.Loci[right.Owner];
            const AlleleFields& allele = *locus.Alleles[left.Allele];
            const AlleleFields& otherAllele = *other.Alleles[right.Allele];
            ReportCollision(locus, allele, other, otherAllele, findings);
            ReportCollision(other, otherAllele, locus, allele, findings);
        }
    }
}

void CheckOutsideBin(const CheckedLocus& locus, Findings& findings)
{
    for (const AlleleFields* allele : locus.Alleles)
    {
        if (allele->AlleleReal3 < allele->AlleleReal2 - RoundingError)
            findings.OfAllele(locus, *allele,
                              "The " + BinText(*allele) +
                                  " ends before it starts; expected it "
                                  "around the size of " +
                                  NtText(allele->AlleleReal1));
        else if (!(allele->AlleleReal2 <= allele->AlleleReal1 + RoundingError &&
                   allele->AlleleReal1 <= allele->AlleleReal3 + RoundingError))
            findings.OfAllele(locus, *allele,
                              "The size of " + NtText(allele->AlleleReal1) + " lies outside the " +
                                  BinText(*allele));
    }
}

void CheckSameBin(const CheckedLocus& locus, Findings& findings)
{
    for (std::size_t at = 1; at < locus.Alleles.size(); ++at)
    {
        const AlleleFields& left = *locus.Alleles[at - 1];
        const AlleleFields& right = *locus.Alleles[at];
        if (HaveOneBin(left, right) &&
            (HasWidth(left) || std::abs(left.AlleleReal1 - right.AlleleReal1) < RoundingError))
            findings.OfAllele(locus, right,
                              "The " + BinText(right) + " is that of allele " + left.AlleleText1 +
                                  " as well; expected each allele to have one of its own");
    }
}

void CheckOddBin(const CheckedLocus& locus, Findings& findings)
{
    constexpr double mostUnlike = 0.35; // nt; real panels mix bins of +/- 0.4 and +/- 0.7 nt
    constexpr std::size_t fewestBins = 3;
    constexpr std::size_t neighbourCount = 4;
    std::vector<const AlleleFields*> alleles;
    std::vector<double> sizes;
    std::vector<double> below;
    std::vector<double> above;
    for (const AlleleFields* allele : locus.Alleles)
    {
        if (!HasWidth(*allele))
            continue;
        alleles.push_back(allele);
        sizes.push_back(allele->AlleleReal1);
        below.push_back(allele->AlleleReal1 - allele->AlleleReal2);
        above.push_back(allele->AlleleReal3 - allele->AlleleReal1);
    }
    if (alleles.size() < fewestBins)
        return;
    for (std::size_t at = 0; at < alleles.size(); ++at)
    {
        const Neighbours neighbours(sizes, at, neighbourCount);
        const double usualBelow =
            neighbours.Median([&](std::size_t other) { return below[other]; });
        const double usualAbove =
            neighbours.Median([&](std::size_t other) { return above[other]; });
        if (std::abs(below[at] - usualBelow) > mostUnlike ||
            std::abs(above[at] - usualAbove) > mostUnlike)
            findings.OfAllele(locus, *alleles[at],
                              "The " + BinText(*alleles[at]) +
                                  " is unlike those beside it; like "
                                  "them it would be " +
                                  NtText(sizes[at] - usualBelow, sizes[at] + usualAbove));
    }
}

void CheckNoWidth(const CheckedLocus& locus, Findings& findings)
{
    std::size_t count = 0;
    const AlleleFields* first = nullptr;
    for (const AlleleFields* allele : locus.Alleles)
    {
        if (std::abs(allele->AlleleReal3 - allele->AlleleReal2) > RoundingError)
            continue;
        first = first == nullptr ? allele : first;
        ++count;
    }
    if (first != nullptr)
        findings.OfAllele(locus, *first,
                          std::to_string(count) + " of " + std::to_string(locus.Alleles.size()) +
                              " bins have no width, this one at " + NtText(first->AlleleReal2) +
                              "; a size never meets them");
}

void CheckBinsTouch(const CheckedLocus& locus, Findings& findings)
{
    std::size_t count = 0;
    std::size_t first = 0;
    for (std::size_t at = 1; at < locus.Alleles.size(); ++at)
    {
        const AlleleFields& left = *locus.Alleles[at - 1];
        const AlleleFields& right = *locus.Alleles[at];
        if (!HasWidth(left) || !HasWidth(right) ||
            std::abs(left.AlleleReal3 - right.AlleleReal2) > RoundingError)
            continue;
        first = count == 0 ? at : first;
        ++count;
    }
    if (count > 0)
        findings.OfAllele(locus, *locus.Alleles[first],
                          "The bin touches that of allele " +
                              locus.Alleles[first - 1]->AlleleText1 + " at " +
                              NtText(locus.Alleles[first]->AlleleReal2) +
                              (count > 1 ? ", as " + std::to_string(count - 1) +
                                               " more of the locus touch their neighbours"
                                         : "") +
                              "; a size on the border belongs to both");
}

} // namespace Tamrivo
