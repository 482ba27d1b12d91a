#include "examples/embed/memory_objects.h"

#include "core/text.h"

namespace Embed
{

using namespace Tamrivo;

namespace
{

std::string_view WithoutTrailingBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool IsSameTag(std::string_view left, std::string_view right)
{
    return EqualNoCase(WithoutTrailingBlanks(left), WithoutTrailingBlanks(right));
}

} // namespace

MemoryList::Object MemoryList::Item(std::int32_t index) const
{
    if (index < 1 || index > Count())
        throw Failure(ErrorNumber::InvalidArgument, "MemoryList", "There is no such member");
    return m_members[static_cast<std::size_t>(index - 1)];
}

MemoryList::Object MemoryList::Item(const std::string& key) const
{
    if (auto found = Find(key))
        return found;
    throw Failure(ErrorNumber::InvalidArgument, "MemoryList", "There is no \"" + key + "\"");
}

void MemoryList::Remove(std::int32_t index)
{
    Item(index);
    m_members.erase(m_members.begin() + (index - 1));
}

MemoryList::Object MemoryList::Find(const std::string& key) const
{
    for (const Object& member : m_members)
    {
        if (IsSameTag(member->Name(), key))
            return member;
    }
    return nullptr;
}

void MemoryLocus::SetIsCurrent(bool isCurrent)
{
    if (m_isCurrent == isCurrent)
        return;
    m_isCurrent = isCurrent;
    IsCurrentChanged();
}

void MemoryLocus::GenerateAlleles()
{
    m_alleles = {};
    for (std::int32_t size = ShortestAlleleSize; size <= FragEnd && RepeatLength > 0;
         size += RepeatLength)
    {
        auto allele = std::make_shared<MemoryAllele>();
        allele->AlleleText1 = std::to_string(size);
        allele->AlleleReal1 = size;
        m_alleles.Add(allele);
    }
}

std::shared_ptr<MemoryLocus> MemoryLocus::Copy(std::int32_t id)
{
    auto copy = std::make_shared<MemoryLocus>();
    static_cast<LocusFields&>(*copy) = *this;
    copy->m_tag = m_tag;
    copy->m_isCurrent = m_isCurrent;
    copy->m_id = id;
    for (const auto& member : m_alleles.Members())
    {
        auto allele = std::make_shared<MemoryAllele>();
        static_cast<AlleleFields&>(*allele) = *As<Allele>(member);
        copy->m_alleles.Add(allele);
    }
    return copy;
}

std::shared_ptr<BusinessObject> MemoryStore::Create(std::string_view key)
{
    if (key == "Locus")
        return std::make_shared<MemoryLocus>();
    if (key == "Allele")
        return std::make_shared<MemoryAllele>();
    return std::make_shared<MemoryLayout>();
}

std::shared_ptr<ObjectList> MemoryStore::Query(std::string_view name, std::string_view,
                                               std::string_view, std::string_view, std::int32_t,
                                               bool)
{
    auto found = std::make_shared<MemoryList>();
    if (name == "Projects")
        found->Add(std::make_shared<MemoryProject>());
    for (const auto& locus : m_loci)
    {
        if (name == "CurrentLoci" && locus->IsCurrent())
            found->Add(locus->Copy(locus->LocusID()));
    }
    return found;
}

void MemoryStore::Save(BusinessObject& object, bool)
{
    auto& locus = dynamic_cast<MemoryLocus&>(object);
    if (locus.LocusID() == 0)
        m_loci.emplace_back();
    const std::size_t number =
        locus.LocusID() == 0 ? m_loci.size() : static_cast<std::size_t>(locus.LocusID());
    m_loci[number - 1] = locus.Copy(static_cast<std::int32_t>(number));
}

std::int32_t MemoryStore::NumberOf(const std::string& tag) const
{
    for (const auto& locus : m_loci)
    {
        if (IsSameTag(locus->LocusTag(), tag))
            return locus->LocusID();
    }
    return 0;
}

} // namespace Embed
