#pragma once

#include "contracts/allele.h"
#include "contracts/grid_layout.h"
#include "contracts/object_manager.h"
#include "contracts/project.h"

#include <memory>
#include <string>
#include <vector>

/// The host's business objects, kept in memory.
namespace Embed
{

class MemoryList : public Tamrivo::ObjectList
{
public:
    using Object = std::shared_ptr<Tamrivo::BusinessObject>;

    std::int32_t Count() const override { return static_cast<std::int32_t>(m_members.size()); }
    Object Item(std::int32_t index) const override;
    Object Item(const std::string& key) const override;
    void Add(Object object) override { m_members.push_back(std::move(object)); }
    void Remove(std::int32_t index) override;
    std::span<const Object> Members() const override { return m_members; }
    bool KeyExists(const std::string& key) const override { return Find(key) != nullptr; }

private:
    Object Find(const std::string& key) const;

    std::vector<Object> m_members;
};

class MemoryAllele : public Tamrivo::Allele
{
public:
    void SetAlleleOwner(const std::shared_ptr<Tamrivo::Locus>&) override {}
};

class MemoryLocus : public Tamrivo::Locus
{
public:
    std::string Name() const override { return m_tag; }
    const std::string& LocusTag() const override { return m_tag; }
    void SetLocusTag(const std::string& tag) override { m_tag = tag; }
    bool IsCurrent() const override { return m_isCurrent; }
    void SetIsCurrent(bool isCurrent) override;
    std::int32_t LocusID() const override { return m_id; }
    std::int32_t LocusTagID() const override { return m_id; }
    Tamrivo::Date DateLastModified() const override { return {}; }
    Tamrivo::ObjectList& Alleles() override { return m_alleles; }
    std::shared_ptr<Tamrivo::Locus> Clone() override { return Copy(0); }
    /// An allele for each repeat from the shortest on, named by its size.
    void GenerateAlleles() override;
    std::string NextStartAt(const std::string& text) const override { return text; }
    std::string PreviousStartAt(const std::string& text) const override { return text; }

    std::shared_ptr<MemoryLocus> Copy(std::int32_t id);

private:
    std::string m_tag;
    bool m_isCurrent = true;
    std::int32_t m_id = 0;
    MemoryList m_alleles;
};

class MemoryProject : public Tamrivo::Project
{
public:
    std::string Name() const override { return "Example"; }
    std::int32_t ProjectID() const override { return 1; }
};

class MemoryLayout : public Tamrivo::Grid
{
public:
    std::string Name() const override { return "Locus tags"; }
    std::int32_t GridID() const override { return m_id; }
    void SetGridID(std::int32_t gridID) override { m_id = gridID; }

private:
    std::int32_t m_id = 0;
};

/// All that is stored. A number that was given to an object is its place in the list.
class MemoryStore : public Tamrivo::ObjectManager, public Tamrivo::ObjectManagerGlobal
{
public:
    Tamrivo::ObjectManager& Manager() override { return *this; }
    std::shared_ptr<Tamrivo::BusinessObject> Create(std::string_view key) override;
    std::shared_ptr<Tamrivo::ObjectList> Query(std::string_view name, std::string_view,
                                               std::string_view, std::string_view, std::int32_t,
                                               bool) override;
    void Save(Tamrivo::BusinessObject& object, bool) override;

    /// Number of the stored locus with the tag; 0 when there is none.
    std::int32_t NumberOf(const std::string& tag) const;

private:
    std::vector<std::shared_ptr<MemoryLocus>> m_loci;
};

} // namespace Embed
