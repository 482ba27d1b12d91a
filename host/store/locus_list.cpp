#include "host/store/locus_list.h"

#include "host/loci/keys.h"

#include <algorithm>

namespace Tamrivo
{

LocusList::LocusList(std::span<const std::shared_ptr<StoredLocus>> loci)
{
    Reserve(loci.size());
    m_ranks.reserve(loci.size());
    m_index.reserve(loci.size());
    for (const auto& locus : loci)
        Append(locus);
}

LocusList::~LocusList()
{
    for (std::size_t position = 0; position < m_ranks.size(); ++position)
        static_cast<StoredLocus&>(*Members()[position]).StopObserving(*this, m_ranks[position]);
}

void LocusList::Add(std::shared_ptr<BusinessObject> object)
{
    Append(As<StoredLocus>(object));
}

void LocusList::Append(const std::shared_ptr<StoredLocus>& locus)
{
    const std::uint32_t rank = m_nextRank++;
    NamedObjectList::Add(locus);
    m_ranks.push_back(rank);
    TagChanged(*locus, rank);
    locus->Observe(*this, rank);
}

void LocusList::Remove(std::int32_t index)
{
    const std::size_t position = Position(index);
    const std::uint32_t rank = m_ranks[position];
    auto& locus = static_cast<StoredLocus&>(*Members()[position]);
    locus.StopObserving(*this, rank);
    TagChanging(locus, rank);
    m_ranks.erase(m_ranks.begin() + static_cast<std::ptrdiff_t>(position));
    NamedObjectList::Remove(index);
}

std::shared_ptr<BusinessObject> LocusList::Find(const std::string& key) const
{
    const auto [first, last] = m_index.equal_range(LookupKey(key));
    const auto found = std::min_element(first, last, [](const auto& left, const auto& right) {
        return left.second.Rank < right.second.Rank;
    });
    return found == last ? nullptr : found->second.Member->shared_from_this();
}

void LocusList::TagChanging(StoredLocus& locus, std::uint32_t rank)
{
    const auto [first, last] = m_index.equal_range(locus.TagKey());
    m_index.erase(
        std::find_if(first, last, [rank](const auto& entry) { return entry.second.Rank == rank; }));
}

void LocusList::TagChanged(StoredLocus& locus, std::uint32_t rank)
{
    m_index.emplace(locus.TagKey(), Entry{rank, &locus});
}

} // namespace Tamrivo
