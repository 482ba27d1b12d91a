#include "host/checks/checked_locus.h"

#include <algorithm>
#include <utility>

namespace Tamrivo
{

CheckedLocus::CheckedLocus(std::string tag, const LocusFields& fields,
                           std::vector<const AlleleFields*> alleles)
    : Tag(std::move(tag)), Fields(fields), Alleles(std::move(alleles))
{
    std::ranges::stable_sort(Alleles, {}, &AlleleFields::AlleleReal1);
}

} // namespace Tamrivo
