#include "platform/panels/import.h"

#include "platform/store/store.h"

namespace Tamrivo
{

namespace
{

std::shared_ptr<Locus> LocusOf(const PlannedLocus& planned, Store& store)
{
    const auto project = store.ProjectNamed(planned.Fields.ProjectName);
    auto locus = CreateObject<Locus>(store.Manager(), "Locus");
    locus->LocusFields::operator=(planned.Fields);
    locus->ProjectID = project->ProjectID();
    locus->ProjectName = project->Name();
    locus->SetLocusTag(planned.Tag);
    locus->SetIsCurrent(true);
    for (const AlleleFields& fields : planned.Alleles)
    {
        const auto allele = CreateObject<Allele>(store.Manager(), "Allele");
        allele->AlleleFields::operator=(fields);
        allele->SetAlleleOwner(locus);
        locus->Alleles().Add(allele);
    }
    return locus;
}

} // namespace

void CarryOutImport(const ImportPlan& plan, Store& store, const ImportProgress& progress)
{
    const std::size_t total = plan.Count(ImportFate::New);
    if (total == 0)
        return;
    auto transaction = store.Begin();
    std::size_t done = 0;
    for (const PlannedLocus& planned : plan.Loci)
    {
        if (planned.Fate != ImportFate::New)
            continue;
        store.Manager().Save(*LocusOf(planned, store), true);
        ++done;
        if (progress)
            progress(done, total);
    }
    transaction.Commit();
}

} // namespace Tamrivo
