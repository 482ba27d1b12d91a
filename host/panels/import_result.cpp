#include "host/panels/import_result.h"

#include "host/loci/counts.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

struct KindOfRemark
{
    const char* One;     ///< Said of a single remark, behind "1 ".
    const char* Several; ///< Said of more, behind their number and a blank.
};

/// In the order of `RemarkKind`.
constexpr KindOfRemark kindsOfRemark[] = {
    {"locus is stored under a tag with the name of its panel",
     "loci are stored under tags with the name of their panel"},
    {"marker was left out, since its lines lack what a locus needs",
     "markers were left out, since their lines lack what a locus needs"},
    {"locus has whole sizes and bins by the lab's interval, since its file has no others",
     "loci have whole sizes and bins by the lab's interval, since their file has no others"},
    {"allele has its size outside its bin", "alleles have their sizes outside their bins"},
    {"allele of the ladder has no bin and was left out",
     "alleles of the ladder have no bins and were left out"},
    {"bin is neither virtual nor of an allele in the ladder",
     "bins are neither virtual nor of an allele in the ladder"},
};

} // namespace

std::vector<std::string> SummaryOf(const std::vector<PanelRemark>& remarks)
{
    std::vector<std::string> sentences;
    for (std::size_t kind = 0; kind < std::size(kindsOfRemark); ++kind)
    {
        const auto count =
            std::ranges::count(remarks, static_cast<RemarkKind>(kind), &PanelRemark::Kind);
        if (count > 0)
            sentences.push_back(
                std::to_string(count) + " " +
                (count == 1 ? kindsOfRemark[kind].One : kindsOfRemark[kind].Several) + ".");
    }
    return sentences;
}

std::vector<std::string> ResultOf(const ImportPlan& plan, const std::string& source)
{
    std::vector<std::string> sentences;
    const std::size_t added = plan.Count(ImportFate::New);
    const std::size_t changed = plan.Count(ImportFate::Changed);
    const std::size_t present = plan.Count(ImportFate::Present);
    if (plan.Loci.empty())
        sentences.push_back("Nothing to import: " + source + " has no markers.");
    else if (!plan.IsAny() && present == 0)
        sentences.emplace_back("Nothing was imported.");
    else if (!plan.IsAny())
        sentences.push_back("Nothing to import: the store has " + CountOfLoci(present) + " of " +
                            source + " already and is unchanged.");
    else
    {
        if (added > 0)
            sentences.push_back("Imported " + CountOfLoci(added) + " with " +
                                CountOfAlleles(plan.NewAlleles()) + ".");
        if (changed > 0)
            sentences.push_back("Updated " + CountOfLoci(changed) + ".");
        if (present > 0)
            sentences.push_back("The store had " + CountOfLoci(present) + " already.");
        for (std::int32_t dye = plan.DyesBefore.Count(); dye < plan.DyesAfter.Count(); ++dye)
            sentences.push_back("Added the dye " + plan.DyesAfter.ColorOf(dye) + ".");
    }
    if (plan.Refused() > 0)
        sentences.push_back("Left out " + CountOfLoci(plan.Refused()) + ".");
    return sentences;
}

} // namespace Tamrivo
