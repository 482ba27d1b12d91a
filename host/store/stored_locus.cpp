#include "host/store/stored_locus.h"

#include "host/database/database.h"
#include "host/loci/allele_generation.h"
#include "host/loci/keys.h"
#include "host/loci/start_at.h"
#include "host/store/allele_table.h"
#include "host/store/locus_row.h"
#include "host/store/locus_state.h"
#include "host/store/stored_allele.h"

#include <algorithm>

namespace Tamrivo
{

StoredLocus::StoredLocus(std::shared_ptr<Database> database) : m_database(std::move(database)) {}

LocusIdentity IdentityOf(const LocusRow& row)
{
    return {row.LocusID, row.Revision,
            std::chrono::sys_seconds(std::chrono::seconds(row.DateLastModified))};
}

StoredLocus::StoredLocus(std::shared_ptr<Database> database, LocusRow& row)
    : m_database(std::move(database)),
      m_identity(IdentityOf(row)),
      m_tag(std::move(row.LocusTag)),
      m_tagKey(std::move(row.TagKey)),
      m_isCurrent(row.IsCurrent != 0)
{
    LocusFields::operator=(std::move(row.Fields));
}

void StoredLocus::SetLocusTag(const std::string& tag)
{
    for (const auto& [observer, rank] : m_observations)
        observer->TagChanging(*this, rank);
    m_tag = tag;
    m_tagKey = LookupKey(tag);
    for (const auto& [observer, rank] : m_observations)
        observer->TagChanged(*this, rank);
}

void StoredLocus::SetIsCurrent(bool isCurrent)
{
    if (m_isCurrent == isCurrent)
        return;
    m_isCurrent = isCurrent;
    IsCurrentChanged();
}

ObjectList& StoredLocus::Alleles()
{
    if (!m_alleles)
    {
        SetAlleles(m_identity.LocusID > 0 ? ReadAlleles(*m_database, *this)
                                          : std::vector<AlleleFields>());
    }
    return *m_alleles;
}

std::shared_ptr<Locus> StoredLocus::Clone()
{
    auto clone = std::make_shared<StoredLocus>(m_database);
    clone->LocusFields::operator=(*this);
    clone->SetLocusTag(m_tag);
    clone->m_isCurrent = m_isCurrent;

    std::vector<AlleleFields> rows;
    for (const auto& allele : Alleles().Members())
        rows.push_back(*As<Allele>(allele));
    clone->SetAlleles(rows);
    return clone;
}

void StoredLocus::GenerateAlleles()
{
    SetAlleles(GenerateAlleleRows(*this));
}

std::string StoredLocus::NextStartAt(const std::string& text) const
{
    return Tamrivo::NextStartAt(text);
}

std::string StoredLocus::PreviousStartAt(const std::string& text) const
{
    return Tamrivo::PreviousStartAt(text);
}

void StoredLocus::SetState(const LocusState& state)
{
    LocusFields::operator=(state.Fields);
    SetLocusTag(state.Tag);
    SetIsCurrent(state.IsCurrent);
    SetAlleles(state.Alleles);
}

void StoredLocus::SettleDoubt(Database& database)
{
    if (!m_doubt)
        return;
    if (database.Testifies(m_doubt->Witness))
        m_identity = m_doubt->Identity;
    m_doubt.reset();
}

void StoredLocus::Observe(TagObserver& observer, std::uint32_t rank)
{
    m_observations.push_back({&observer, rank});
}

void StoredLocus::StopObserving(const TagObserver& observer, std::uint32_t rank)
{
    std::erase_if(m_observations, [&](const Observation& observation) {
        return observation.Observer == &observer && observation.Rank == rank;
    });
}

void StoredLocus::SetAlleles(const std::vector<AlleleFields>& rows)
{
    if (!m_alleles)
        m_alleles = std::make_unique<NamedObjectList>();
    m_alleles->Clear();
    m_alleles->Reserve(rows.size());
    const std::shared_ptr<Locus> owner = weak_from_this().lock();
    for (const AlleleFields& row : rows)
        m_alleles->Add(std::make_shared<StoredAllele>(row, owner));
}

} // namespace Tamrivo
