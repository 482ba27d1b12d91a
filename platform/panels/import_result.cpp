#include "platform/panels/import_result.h"

#include "platform/panels/counts.h"

namespace Tamrivo
{

std::vector<std::string> ResultOf(const ImportPlan& plan, const std::string& source)
{
    std::vector<std::string> sentences;
    for (const PlannedLocus& locus : plan.Loci)
    {
        if (locus.Fate == ImportFate::New && locus.IsRenamed())
            sentences.push_back(locus.Place() + " is stored under the tag \"" + locus.Tag + "\".");
    }
    const std::size_t added = plan.Count(ImportFate::New);
    const std::size_t present = plan.Count(ImportFate::Present);
    const std::size_t leftOut = plan.Count(ImportFate::LeftOut);
    if (plan.Loci.empty())
        sentences.push_back("Nothing to import: " + source + " has no markers.");
    else if (added == 0 && present == 0)
        sentences.emplace_back("Nothing was imported.");
    else if (added == 0)
        sentences.push_back("Nothing to import: the store has " + CountOfLoci(present) +
                            " of this table already and is unchanged.");
    else
    {
        sentences.push_back("Imported " + CountOfLoci(added) + " with " +
                            CountOfAlleles(plan.NewAlleles()) + ".");
        if (present > 0)
            sentences.push_back("The store had " + CountOfLoci(present) + " already.");
    }
    if (leftOut > 0)
        sentences.push_back("Left out " + CountOfLoci(leftOut) + ".");
    return sentences;
}

} // namespace Tamrivo
