#include "host/checks/plan_check.h"

#include "core/text.h"
#include "host/loci/keys.h"

#include <map>
#include <utility>

namespace Tamrivo
{

namespace
{

CheckedLocus CheckedLocusOf(const PlannedLocus& planned, const Dyes& dyes)
{
    std::vector<const AlleleFields*> alleles;
    for (const AlleleFields& allele : planned.Alleles)
        alleles.push_back(&allele);
    const LocusFields& fields = planned.Fields;
    CheckedLocus checked(planned.Tag, fields, std::move(alleles));
    checked.Dye = dyes.TitleOf(fields.DyeIndex);
    checked.HasKnownDye = fields.DyeIndex >= 0 && fields.DyeIndex < dyes.Count();
    checked.StatesConvention = false;
    return checked;
}

} // namespace

CheckSource CheckSourceOf(const ImportPlan& plan)
{
    std::vector<const PlannedLocus*> loci;
    std::map<std::string, CheckSource::Group> panels;
    for (const PlannedLocus& locus : plan.Loci)
    {
        if (locus.Fate == ImportFate::LeftOut)
            continue;
        const std::string panel = Trim(locus.Fields.PrimerSet);
        auto& group = panels[LookupKey(panel)];
        group.Name = "panel " + panel;
        group.Loci.push_back(loci.size());
        loci.push_back(&locus);
    }
    CheckSource source;
    source.Count = loci.size();
    source.Locus = [loci = std::move(loci), &dyes = plan.DyesAfter](std::size_t at) {
        return CheckedLocusOf(*loci[at], dyes);
    };
    for (auto& [key, panel] : panels)
        source.Groups.push_back(std::move(panel));
    return source;
}

std::vector<Finding> FindingsOf(const ImportPlan& plan)
{
    CheckRun run(CheckSourceOf(plan), AllCheckRules());
    while (run.Step())
    {}
    return run.Found();
}

} // namespace Tamrivo
