#include "host/store/tag_order.h"

#include "host/store/stored_locus.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <tuple>

namespace Tamrivo
{

namespace
{

/// Where a locus stands in the order. Most tags differ in their first bytes; with these at hand the
/// sort need not visit the loci themselves, which lie scattered in memory.
struct Place
{
    std::array<std::uint64_t, 2> FirstBytes;
    std::string_view Key;
    std::size_t Index;

    bool operator<(const Place& other) const
    {
        return std::tie(FirstBytes, Key, Index) <
               std::tie(other.FirstBytes, other.Key, other.Index);
    }
};

/// Bytes as a number that orders as they do.
std::uint64_t NumberOf(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (std::size_t index = 0; index < sizeof number; ++index)
        number =
            number << 8U | (index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U);
    return number;
}

} // namespace

void SortByTag(std::vector<std::shared_ptr<StoredLocus>>& loci)
{
    std::vector<Place> places;
    places.reserve(loci.size());
    for (const auto& locus : loci)
    {
        const std::string_view key = locus->TagKey();
        const std::string_view rest = key.substr(std::min(key.size(), sizeof(std::uint64_t)));
        places.push_back({{NumberOf(key), NumberOf(rest)}, key, places.size()});
    }
    std::sort(places.begin(), places.end());

    std::vector<std::shared_ptr<StoredLocus>> sorted;
    sorted.reserve(loci.size());
    for (const Place& place : places)
        sorted.push_back(std::move(loci[place.Index]));
    loci = std::move(sorted);
}

} // namespace Tamrivo
