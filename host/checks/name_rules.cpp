#include "core/numbers.h"
#include "core/text.h"
#include "host/checks/check_rules.h"
#include "host/checks/named_sizes.h"
#include "host/checks/nucleotides.h"
#include "host/loci/keys.h"
#include "host/loci/repeat_name.h"
#include "host/loci/start_at.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <unordered_map>
#include <unordered_set>

namespace Tamrivo
{

namespace
{

/// What equal names have in common: "9.3" and "9.30" are one.
std::string NameKey(const std::string& name)
{
    const auto repeats = ReadRepeatName(name);
    return repeats ? repeats->Text() : FoldCase(Trim(name));
}

/// Which of the values to take out so that the rest ascends, as few as possible.
std::vector<bool> OutOfOrder(const std::vector<double>& values)
{
    // The classical longest ascending subsequence: the last values of the subsequences of each
    // length, and where each value continues one.
    std::vector<std::size_t> lasts;
    std::vector<std::size_t> before(values.size(), values.size());
    for (std::size_t at = 0; at < values.size(); ++at)
    {
        const auto place = std::ranges::upper_bound(
            lasts, values[at], {}, [&values](std::size_t last) { return values[last]; });
        if (place != lasts.begin())
            before[at] = *(place - 1);
        if (place == lasts.end())
            lasts.push_back(at);
        else
            *place = at;
    }
    std::vector<bool> isOut(values.size(), true);
    for (std::size_t at = lasts.empty() ? values.size() : lasts.back(); at < values.size();
         at = before[at])
        isOut[at] = false;
    return isOut;
}

/// The names that a naming convention gives.
struct NameSeries
{
    std::string Expected;
    std::function<bool(const AlleleFields&)> Has;
};

NameSeries SeriesOf(const LocusFields& fields)
{
    switch (fields.AlleleNamingConventionTypeID)
    {
    case AlleleNamingConvention::NominalSize:
        return {"the size in whole nt", [](const AlleleFields& allele) {
                    const auto name = ReadRepeatName(allele.AlleleText1);
                    return name && name->Nucleotides == 0 &&
                           std::abs(name->Repeats - allele.AlleleReal1) <= 1;
                }};
    case AlleleNamingConvention::Numeric:
        return {"numbers from " + IntegerText(fields.StartAtNumeric) + " on",
                [start = fields.StartAtNumeric](const AlleleFields& allele) {
                    const auto name = ReadRepeatName(allele.AlleleText1);
                    return name && name->Repeats >= start;
                }};
    case AlleleNamingConvention::Alphabetic:
    {
        constexpr int mostNames = 1000; // as many as the longest range has whole nt
        std::unordered_set<std::string> names;
        std::string name = fields.StartAtAlphanumeric;
        for (int count = 0; count < mostNames; ++count, name = NextStartAt(name))
            names.insert(FoldCase(name));
        return {"letters from " + fields.StartAtAlphanumeric + " on",
                [names = std::move(names)](const AlleleFields& allele) {
                    return names.contains(FoldCase(Trim(allele.AlleleText1)));
                }};
    }
    default: return {{}, [](const AlleleFields&) { return true; }};
    }
}

} // namespace

void CheckSameName(const CheckedLocus& locus, Findings& findings)
{
    std::unordered_map<std::string, const AlleleFields*> firstNamed;
    for (const AlleleFields* allele : locus.Alleles)
    {
        const auto [first, isNew] = firstNamed.emplace(NameKey(allele->AlleleText1), allele);
        if (!isNew)
            findings.OfAllele(locus, *allele,
                              "The alleles at " + NtText(first->second->AlleleReal1) + " and " +
                                  NtText(allele->AlleleReal1) + " have one name, " +
                                  allele->AlleleText1 + "; expected two");
    }
}

void CheckOrder(const CheckedLocus& locus, Findings& findings)
{
    const NamedSizes named = NamedSizesOf(locus);
    const std::vector<bool> isOut = OutOfOrder(named.Sizes);
    for (std::size_t at = 0; at < isOut.size(); ++at)
    {
        if (!isOut[at])
            continue;
        // Names ascend here: either the size before or the size behind is on the wrong side.
        const bool isTooShort = at > 0 && named.Sizes[at - 1] > named.Sizes[at];
        const std::size_t other = isTooShort || at + 1 == isOut.size() ? at - 1 : at + 1;
        findings.OfAllele(
            locus, *named.Alleles[at],
            "Allele " + named.Alleles[at]->AlleleText1 + " at " + NtText(named.Sizes[at]) +
                " should be " + (isTooShort ? "longer" : "shorter") + " than allele " +
                named.Alleles[other]->AlleleText1 + " at " + NtText(named.Sizes[other]));
    }
}

void CheckSizeName(const CheckedLocus& locus, Findings& findings)
{
    const NamedSizes named = NamedSizesOf(locus);
    const auto model = SizeModel::Of(named, locus.Fields.RepeatLength);
    if (!model)
        return;
    if (!model->IsLadder())
    {
        const double unit = named.NamesAreSizes ? 1 : locus.Fields.RepeatLength;
        findings.OfField(locus, "RepeatLength",
                         "The sizes grow by " + NtText(model->AnySlope() * unit) +
                             " from one whole name to the next; expected the repeat length of " +
                             NtText(unit));
        return;
    }
    for (std::size_t at = 0; at < named.Alleles.size(); ++at)
    {
        if (!model->IsMisfit(at))
            continue;
        const double expected = model->ExpectedSize(at);
        findings.OfAllele(locus, *named.Alleles[at],
                          "The size of " + NtText(named.Sizes[at]) + " doesn't fit the name " +
                              named.Alleles[at]->AlleleText1 + "; by its neighbours it would be " +
                              NtText(expected) + ", " +
                              NtText(std::abs(named.Sizes[at] - expected)) +
                              (named.Sizes[at] > expected ? " less" : " more"));
    }
}

void CheckLadderGap(const CheckedLocus& locus, Findings& findings)
{
    const NamedSizes named = NamedSizesOf(locus);
    if (named.NamesAreSizes || locus.Fields.RepeatLength < 1)
        return;
    const AlleleFields* last = nullptr;
    std::int32_t lastRepeats = 0;
    for (const AlleleFields* allele : named.Alleles)
    {
        const auto name = ReadRepeatName(allele->AlleleText1);
        if (name->Nucleotides != 0)
            continue;
        const std::int32_t missing = name->Repeats - lastRepeats - 1;
        if (last != nullptr && missing > 0)
            findings.OfAllele(
                locus, *allele,
                "Between alleles " + last->AlleleText1 + " and " + allele->AlleleText1 + " " +
                    (missing == 1 ? "the whole repeat " + std::to_string(lastRepeats + 1) + " is"
                                  : "the whole repeats " + std::to_string(lastRepeats + 1) +
                                        " to " + std::to_string(name->Repeats - 1) + " are") +
                    " missing");
        last = allele;
        lastRepeats = name->Repeats;
    }
}

void CheckConvention(const CheckedLocus& locus, Findings& findings)
{
    if (locus.Alleles.empty() || !locus.StatesConvention)
        return;
    const NameSeries series = SeriesOf(locus.Fields);
    std::size_t count = 0;
    const AlleleFields* first = nullptr;
    for (const AlleleFields* allele : locus.Alleles)
    {
        if (series.Has(*allele))
            continue;
        first = first == nullptr ? allele : first;
        ++count;
    }
    if (count > 0)
        findings.OfAllele(locus, *first,
                          "The naming convention doesn't give the name " + first->AlleleText1 +
                              " of " + NtText(first->AlleleReal1) +
                              (count > 1 ? ", nor " + std::to_string(count - 1) + " more" : "") +
                              "; expected " + series.Expected);
}

} // namespace Tamrivo
