#include "host/panels/marker_fields.h"

#include "contracts/locus_limits.h"
#include "core/numbers.h"
#include "core/text.h"
#include "host/panels/cells.h"
#include "host/panels/locus_columns.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tamrivo
{

namespace
{

/// The nearest 32-bit integer to a whole number, so that what is far out of range stays so.
std::int32_t Saturated(double whole)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<double>(whole, Limits::min(), Limits::max()));
}

const AlleleFields* ShortestOf(const std::vector<AlleleFields>& alleles)
{
    const auto shortest = std::ranges::min_element(alleles, {}, &AlleleFields::AlleleReal1);
    return shortest == alleles.end() ? nullptr : &*shortest;
}

struct Shortest
{
    std::int32_t Size;
    std::string Repeats;
};

/// Repeats come from the name, else from the size, else there is 1.
Shortest ShortestIn(const LocusFields& fields, const AlleleFields& allele,
                    const std::optional<double>& offset)
{
    double repeats = allele.AlleleReal4;
    if (repeats == 0 && offset && fields.RepeatLength > 0)
        repeats = std::round((allele.AlleleReal1 - *offset) / fields.RepeatLength);
    const std::int32_t high = std::max(fields.FragStart, fields.FragEnd);
    return {std::clamp(Saturated(std::round(allele.AlleleReal1)), fields.FragStart, high),
            DoubleText(std::clamp<double>(repeats, Limit::Repeats.Low, Limit::Repeats.High))};
}

bool IsLetters(const std::string& name)
{
    return !name.empty() && std::ranges::all_of(name, [](char letter) {
        return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    });
}

bool IsSize(const AlleleFields& allele)
{
    const auto number = CellNumber(allele.AlleleText1);
    return number && std::abs(*number - allele.AlleleReal1) <= 1;
}

bool IsNumber(const AlleleFields& allele)
{
    return CellNumber(allele.AlleleText1).has_value();
}

void ApplyNaming(const std::vector<AlleleFields>& alleles, const AlleleFields& shortest,
                 LocusFields& fields)
{
    if (std::ranges::all_of(alleles, &IsSize))
        fields.AlleleNamingConventionTypeID = AlleleNamingConvention::NominalSize;
    else if (std::ranges::all_of(alleles, &IsLetters, &AlleleFields::AlleleText1))
    {
        fields.AlleleNamingConventionTypeID = AlleleNamingConvention::Alphabetic;
        fields.StartAtAlphanumeric = shortest.AlleleText1;
    }
    else if (IsNumber(shortest) &&
             2 * std::ranges::count_if(alleles, &IsNumber) > std::ssize(alleles))
    {
        const double first = std::floor(CellNumber(shortest.AlleleText1).value_or(0));
        if (first < Limit::StartAtNumeric.Low || first > Limit::StartAtNumeric.High)
            return;
        fields.AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
        fields.StartAtNumeric = static_cast<std::int32_t>(first);
    }
}

} // namespace

std::vector<AlleleFields> AllelesOf(const PanelMarker& marker)
{
    std::vector<AlleleFields> alleles;
    alleles.reserve(marker.Alleles.size());
    for (const PanelAllele& stated : marker.Alleles)
    {
        AlleleFields& allele = alleles.emplace_back();
        allele.AlleleReal1 = stated.Size;
        allele.AlleleReal2 = stated.BinStart;
        allele.AlleleReal3 = stated.BinEnd;
        allele.AlleleReal4 = stated.Repeats;
        allele.AlleleText1 = stated.Name;
        allele.AlleleInt1 = stated.Origin;
        allele.AlleleInt2 = stated.IsVirtual ? 1 : 0;
    }
    return alleles;
}

void ApplyMarker(const PanelMarker& marker, const std::vector<AlleleFields>& alleles,
                 const Dyes& dyes, bool isNew, LocusFields& fields)
{
    fields.DyeIndex = dyes.OfColor(marker.Color).value_or(fields.DyeIndex);
    if (isNew || !marker.IsNominal)
    {
        fields.FragStart = Saturated(std::floor(marker.RangeStart));
        fields.FragEnd = Saturated(std::ceil(marker.RangeEnd));
    }
    fields.RepeatLength = marker.RepeatLength;
    fields.PrimerSet = marker.Panel;
    if (isNew)
        ApplyAlleles(alleles, marker.Offset, fields);
    for (const auto& [field, cell] : marker.FieldCells)
        SetField(fields, *field, cell);
}

void ApplyAlleles(const std::vector<AlleleFields>& alleles, const std::optional<double>& offset,
                  LocusFields& fields)
{
    const AlleleFields* shortest = ShortestOf(alleles);
    if (shortest == nullptr)
        return;
    const auto [size, repeats] = ShortestIn(fields, *shortest, offset);
    fields.ShortestAlleleSize = size;
    fields.RepeatsInShortestAllele = repeats;
    ApplyNaming(alleles, *shortest, fields);
}

bool FollowsAlleles(const LocusFields& fields, const std::vector<AlleleFields>& alleles)
{
    const AlleleFields* shortest = ShortestOf(alleles);
    return shortest != nullptr &&
           fields.ShortestAlleleSize == ShortestIn(fields, *shortest, {}).Size;
}

void FollowAlleles(LocusFields& fields, const std::vector<AlleleFields>& alleles)
{
    if (const AlleleFields* shortest = ShortestOf(alleles))
    {
        const auto [size, repeats] = ShortestIn(fields, *shortest, {});
        fields.ShortestAlleleSize = size;
        if (shortest->AlleleReal4 != 0)
            fields.RepeatsInShortestAllele = repeats;
    }
}

} // namespace Tamrivo
