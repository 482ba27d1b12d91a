#include "host/panels/import.h"

#include "host/database/database.h"
#include "host/store/store.h"

#include <map>

namespace Tamrivo
{

namespace
{

/// Makes loci of what is planned.
class LocusMaker
{
public:
    explicit LocusMaker(Store& store) : m_store(store) {}

    /// The new locus, or the stored one as it is to be.
    std::shared_ptr<Locus> Make(const PlannedLocus& planned)
    {
        auto locus =
            planned.Stored ? planned.Stored : CreateObject<Locus>(m_store.Manager(), "Locus");
        locus->LocusFields::operator=(planned.Fields);
        const Project& project = ProjectNamed(planned.Fields.ProjectName);
        locus->ProjectID = project.ProjectID();
        locus->ProjectName = project.Name();
        if (!planned.Stored)
        {
            locus->SetLocusTag(planned.Tag);
            locus->SetIsCurrent(true);
        }
        while (locus->Alleles().Count() > 0)
            locus->Alleles().Remove(locus->Alleles().Count());
        for (const AlleleFields& fields : planned.Alleles)
        {
            const auto allele = CreateObject<Allele>(m_store.Manager(), "Allele");
            allele->AlleleFields::operator=(fields);
            allele->SetAlleleOwner(locus);
            locus->Alleles().Add(allele);
        }
        return locus;
    }

private:
    const Project& ProjectNamed(const std::string& name)
    {
        auto& project = m_projects[name];
        if (!project)
            project = m_store.ProjectNamed(name);
        return *project;
    }

    Store& m_store;
    std::map<std::string, std::shared_ptr<Project>> m_projects;
};

void AddDyes(const ImportPlan& plan, Store& store)
{
    if (store.Dyes() != plan.DyesBefore)
        throw Failure(StoreError::Conflict, "Import",
                      "Nothing was imported: someone else has changed the dyes of the store in the "
                      "meantime. Import again");
    if (plan.DyesAfter != plan.DyesBefore)
        store.SetDyes(plan.DyesAfter);
}

} // namespace

void CarryOutImport(const ImportPlan& plan, Store& store, const LociProgress& progress)
{
    const std::size_t total = plan.Count(ImportFate::New) + plan.Count(ImportFate::Changed);
    if (total == 0)
        return;
    const BringingIn bringingIn(store.SharedDatabase().Notes);
    store.Together([&] {
        AddDyes(plan, store);
        LocusMaker maker(store);
        std::size_t done = 0;
        for (const PlannedLocus& planned : plan.Loci)
        {
            if (planned.Fate != ImportFate::New && planned.Fate != ImportFate::Changed)
                continue;
            store.Manager().Save(*maker.Make(planned), true);
            ++done;
            if (progress)
                progress(done, total);
        }
    });
}

} // namespace Tamrivo
