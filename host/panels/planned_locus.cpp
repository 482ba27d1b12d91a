#include "host/panels/import_plan.h"

#include <algorithm>

namespace Tamrivo
{

std::string_view NameOf(ImportFate fate)
{
    constexpr std::string_view names[] = {"new", "same", "changed", "refused"};
    return names[static_cast<std::size_t>(fate)];
}

std::string PlannedLocus::Place() const
{
    return PrintableText((File.empty() ? "line " : File + ", line ") + std::to_string(Line) + ": " +
                         Marker + (Fields.PrimerSet.empty() ? "" : " of " + Fields.PrimerSet));
}

std::vector<std::string> PlannedLocus::Reasons() const
{
    std::vector<std::string> reasons;
    for (const std::string& obstacle : Obstacles)
        reasons.push_back(Place() + ": " + PrintableText(obstacle));
    if (!Gap.empty())
        reasons.push_back(Gap);
    return reasons;
}

std::size_t ImportPlan::Count(ImportFate fate) const
{
    return static_cast<std::size_t>(std::ranges::count(Loci, fate, &PlannedLocus::Fate));
}

std::size_t ImportPlan::Refused() const
{
    return Count(ImportFate::LeftOut) -
           static_cast<std::size_t>(std::ranges::count(Loci, true, &PlannedLocus::IsLacking));
}

std::size_t ImportPlan::NewAlleles() const
{
    std::size_t count = 0;
    for (const PlannedLocus& locus : Loci)
        count += locus.Fate == ImportFate::New ? locus.Alleles.size() : 0;
    return count;
}

} // namespace Tamrivo
