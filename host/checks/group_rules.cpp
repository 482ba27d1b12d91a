#include "core/numbers.h"
#include "core/text.h"
#include "host/checks/check_rules.h"

#include <map>

namespace Tamrivo
{

void CheckMissingLocus(const LociTogether& group, Findings& findings)
{
    for (const std::int32_t tagID : group.MissingTagIDs)
        findings.OfNoLocus("The " + group.Name + " names a locus that is gone, number " +
                           IntegerText(tagID) + "; expected loci that the store has");
}

void CheckSamePrimers(const LociTogether& group, Findings& findings)
{
    std::map<std::pair<std::string, std::string>, const CheckedLocus*> firstWith;
    for (const CheckedLocus* locus : group.Loci)
    {
        const std::string forward = FoldCase(Trim(locus->Fields.FwdPrimer));
        const std::string reverse = FoldCase(Trim(locus->Fields.RevPrimer));
        if (forward.empty() || reverse.empty())
            continue;
        const auto [first, isNew] = firstWith.emplace(std::pair(forward, reverse), locus);
        if (!isNew)
            findings.OfField(*locus, "FwdPrimer",
                             "The primers are those of " + first->second->Tag +
                                 " as well; loci that are analysed together need primers of their "
                                 "own");
    }
}

} // namespace Tamrivo
