#include "platform/panels/import.h"

#include "platform/store/store.h"

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

    std::shared_ptr<Locus> Make(const PlannedLocus& planned)
    {
        auto locus = CreateObject<Locus>(m_store.Manager(), "Locus");
        locus->LocusFields::operator=(planned.Fields);
        const Project& project = ProjectNamed(planned.Fields.ProjectName);
        locus->ProjectID = project.ProjectID();
        locus->ProjectName = project.Name();
        locus->SetLocusTag(planned.Tag);
        locus->SetIsCurrent(true);
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

} // namespace

void CarryOutImport(const ImportPlan& plan, Store& store, const LociProgress& progress)
{
    const std::size_t total = plan.Count(ImportFate::New);
    if (total == 0)
        return;
    auto transaction = store.Begin();
    LocusMaker maker(store);
    std::size_t done = 0;
    for (const PlannedLocus& planned : plan.Loci)
    {
        if (planned.Fate != ImportFate::New)
            continue;
        store.Manager().Save(*maker.Make(planned), true);
        ++done;
        if (progress)
            progress(done, total);
    }
    transaction.Commit();
}

} // namespace Tamrivo
