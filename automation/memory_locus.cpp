#include "automation/memory_locus.h"

#include "host/loci/allele_generation.h"
#include "host/loci/start_at.h"
#include "host/store/stored_allele.h"

namespace Tamrivo::Automation
{

void MemoryLocus::SetIsCurrent(bool isCurrent)
{
    if (m_isCurrent == isCurrent)
        return;
    m_isCurrent = isCurrent;
    IsCurrentChanged();
}

std::shared_ptr<MemoryLocus> MemoryLocus::Copy()
{
    auto copy = std::make_shared<MemoryLocus>();
    copy->LocusFields::operator=(*this);
    copy->m_tag = m_tag;
    copy->m_isCurrent = m_isCurrent;
    copy->m_locusID = m_locusID;
    copy->m_locusTagID = m_locusTagID;
    copy->m_dateLastModified = m_dateLastModified;
    for (const auto& member : m_alleles.Members())
        copy->m_alleles.Add(std::make_shared<StoredAllele>(*As<Allele>(member), copy));
    return copy;
}

std::shared_ptr<Locus> MemoryLocus::Clone()
{
    auto clone = Copy();
    clone->m_locusID = 0;
    clone->m_locusTagID = 0;
    clone->m_dateLastModified = {};
    return clone;
}

void MemoryLocus::GenerateAlleles()
{
    const auto rows = GenerateAlleleRows(*this);
    m_alleles.Clear();
    m_alleles.Reserve(rows.size());
    for (const AlleleFields& row : rows)
        m_alleles.Add(std::make_shared<StoredAllele>(row, weak_from_this().lock()));
}

std::string MemoryLocus::NextStartAt(const std::string& text) const
{
    return Tamrivo::NextStartAt(text);
}

std::string MemoryLocus::PreviousStartAt(const std::string& text) const
{
    return Tamrivo::PreviousStartAt(text);
}

} // namespace Tamrivo::Automation
