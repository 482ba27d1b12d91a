#pragma once

#include "host/loci/object_list.h"
#include "host/store/stored_locus.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Tamrivo
{

/// Loci, found by tag in constant time. Each member knows the lists that it stands in, and tells
/// them when its tag changes. Only loci of the store can be members.
class LocusList : public NamedObjectList, private TagObserver
{
public:
    LocusList() = default;
    explicit LocusList(std::span<const std::shared_ptr<StoredLocus>> loci);
    ~LocusList() override;

    LocusList(const LocusList&) = delete;
    LocusList& operator=(const LocusList&) = delete;

    void Add(std::shared_ptr<BusinessObject> object) override;
    void Remove(std::int32_t index) override;

private:
    /// A member under its tag. Ranks ascend in list order.
    struct Entry
    {
        std::uint32_t Rank;
        StoredLocus* Member;
    };
    /// The keys are views of the members' own.
    using Index = std::unordered_multimap<std::string_view, Entry>;

    std::shared_ptr<BusinessObject> Find(const std::string& key) const override;
    void TagChanging(StoredLocus& locus, std::uint32_t rank) override;
    void TagChanged(StoredLocus& locus, std::uint32_t rank) override;

    void Append(const std::shared_ptr<StoredLocus>& locus);

    Index m_index;
    std::vector<std::uint32_t> m_ranks; ///< Of the members, in list order.
    std::uint32_t m_nextRank = 0;
};

} // namespace Tamrivo
