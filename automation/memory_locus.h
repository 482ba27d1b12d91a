#pragma once

#include "contracts/locus.h"
#include "host/loci/object_list.h"

namespace Tamrivo::Automation
{

/// A locus of a host that clients bring, or of the one that stands in for it: all of it can be set,
/// and nothing is loaded later.
class MemoryLocus : public Locus, public std::enable_shared_from_this<MemoryLocus>
{
public:
    std::string Name() const override { return m_tag; }
    const std::string& LocusTag() const override { return m_tag; }
    void SetLocusTag(const std::string& tag) override { m_tag = tag; }
    bool IsCurrent() const override { return m_isCurrent; }
    void SetIsCurrent(bool isCurrent) override;

    std::int32_t LocusID() const override { return m_locusID; }
    void SetLocusID(std::int32_t id) { m_locusID = id; }
    std::int32_t LocusTagID() const override { return m_locusTagID; }
    void SetLocusTagID(std::int32_t id) { m_locusTagID = id; }
    Date DateLastModified() const override { return m_dateLastModified; }
    void SetDateLastModified(const Date& date) { m_dateLastModified = date; }

    ObjectList& Alleles() override { return m_alleles; }
    std::shared_ptr<Locus> Clone() override;
    /// By the rules of host/loci/allele_generation.h.
    void GenerateAlleles() override;
    std::string NextStartAt(const std::string& text) const override;
    std::string PreviousStartAt(const std::string& text) const override;

    /// A copy with the identity of the original.
    std::shared_ptr<MemoryLocus> Copy();

private:
    std::string m_tag;
    bool m_isCurrent = true;
    std::int32_t m_locusID = 0;
    std::int32_t m_locusTagID = 0;
    Date m_dateLastModified;
    NamedObjectList m_alleles;
};

} // namespace Tamrivo::Automation
