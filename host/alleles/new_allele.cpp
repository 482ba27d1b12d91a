#include "host/alleles/new_allele.h"

#include "core/numbers.h"
#include "core/text.h"
#include "host/loci/allele_generation.h"
#include "host/loci/repeat_name.h"
#include "host/loci/repeats.h"

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{

AlleleFields FieldsAt(double size, const LocusFields& locus)
{
    AlleleFields fields;
    fields.AlleleReal1 = size;
    fields.AlleleReal2 = size - BinReach(locus);
    fields.AlleleReal3 = size + BinReach(locus);
    fields.AlleleInt1 = AlleleOrigin::Edited;
    return fields;
}

std::string NameOfRepeats(double repeats)
{
    const double whole = std::floor(repeats);
    return RepeatName{static_cast<std::int32_t>(whole),
                      static_cast<std::int32_t>(std::lround((repeats - whole) * 10))}
        .Text();
}

} // namespace

AlleleFields FirstFields(const LocusFields& locus)
{
    const std::string& repeats = locus.RepeatsInShortestAllele;
    AlleleFields fields = FieldsAt(locus.ShortestAlleleSize, locus);
    fields.AlleleReal4 = IsNumeric(repeats) ? ToDouble(repeats) : 0;
    return fields;
}

AlleleFields FieldsAfter(const AlleleFields& row, std::optional<double> nextSize,
                         const LocusFields& locus)
{
    double step = locus.RepeatLength;
    if (nextSize)
        step = std::min(step, (*nextSize - row.AlleleReal1) / 2);
    AlleleFields fields = FieldsAt(row.AlleleReal1 + step, locus);
    fields.AlleleReal4 = RepeatsAtDistance(row.AlleleReal4, step, locus.RepeatLength);
    return fields;
}

AlleleFields FieldsOfSize(double size, const AlleleRows& rows, const LocusFields& locus)
{
    AlleleFields fields = FieldsAt(size, locus);
    const Allele* nearest = nullptr;
    for (const auto& row : rows)
    {
        if (row->AlleleReal1 < size)
            fields.AlleleReal2 = std::max(fields.AlleleReal2, std::min(row->AlleleReal3, size));
        else
            fields.AlleleReal3 = std::min(fields.AlleleReal3, std::max(row->AlleleReal2, size));
        if (nearest == nullptr ||
            std::abs(row->AlleleReal1 - size) < std::abs(nearest->AlleleReal1 - size))
            nearest = row.get();
    }
    if (nearest == nullptr)
        return fields;
    fields.AlleleReal4 =
        RepeatsAtDistance(nearest->AlleleReal4, size - nearest->AlleleReal1, locus.RepeatLength);
    const std::string name = NameOfRepeats(fields.AlleleReal4);
    const bool isFree = std::ranges::none_of(
        rows, [&](const auto& row) { return EqualNoCase(Trim(row->AlleleText1), name); });
    if (fields.AlleleReal4 != 0 && isFree &&
        Trim(nearest->AlleleText1) == NameOfRepeats(nearest->AlleleReal4))
        fields.AlleleText1 = name;
    return fields;
}

void Derive(AlleleFields& fields, const LocusFields& locus)
{
    fields.AlleleReal4 = RepeatsOf(fields, locus);
    fields.AlleleInt1 = AlleleOrigin::Edited;
}

} // namespace Tamrivo
