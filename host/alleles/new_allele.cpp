#include "host/alleles/new_allele.h"

#include "core/numbers.h"
#include "host/loci/allele_generation.h"
#include "host/loci/repeats.h"

#include <algorithm>

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

void Derive(AlleleFields& fields, const LocusFields& locus)
{
    fields.AlleleReal4 = RepeatsOf(fields, locus);
    fields.AlleleInt1 = AlleleOrigin::Edited;
}

} // namespace Tamrivo
