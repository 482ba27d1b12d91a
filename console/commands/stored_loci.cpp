#include "console/commands/stored_loci.h"

#include "core/text.h"
#include "host/store/store.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace Tamrivo
{

namespace
{

/// Fewest characters to insert, remove or replace to make one text of the other.
std::size_t EditDistance(const std::u32string& left, const std::u32string& right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (const char32_t character : left)
    {
        std::size_t diagonal = row[0]++;
        for (std::size_t at = 1; at < row.size(); ++at)
        {
            const std::size_t replaced = diagonal + (character == right[at - 1] ? 0 : 1);
            diagonal = row[at];
            row[at] = std::min({replaced, row[at] + 1, row[at - 1] + 1});
        }
    }
    return row.back();
}

/// "; did you mean ...?" with up to three tags, or nothing.
std::string Suggestion(Store& store, const std::string& tag)
{
    constexpr std::size_t mostTags = 3;
    constexpr std::size_t mostChanges = 2;
    const std::u32string wanted = Decode(FoldCase(Trim(tag)));
    std::vector<std::pair<std::size_t, std::string>> near;
    const auto loci = CurrentLoci(store.Manager(), "Name");
    for (const auto& locus : loci->Members())
    {
        const std::size_t distance = EditDistance(wanted, Decode(FoldCase(Trim(locus->Name()))));
        if (distance <= mostChanges && distance < wanted.size())
            near.emplace_back(distance, locus->Name());
    }
    std::ranges::stable_sort(near, {}, &std::pair<std::size_t, std::string>::first);
    near.resize(std::min(near.size(), mostTags));
    std::string tags;
    for (const auto& [distance, name] : near)
        tags += (tags.empty() ? "" : " or ") + name;
    return tags.empty() ? "" : "; did you mean " + tags + "?";
}

} // namespace

std::shared_ptr<Locus> RequireLocus(Store& store, const std::string& tag)
{
    if (auto locus = store.FindLocus(tag))
        return locus;
    throw Failure(StoreError::NotFound, "Store",
                  "There is no locus \"" + tag + "\" in the store" + Suggestion(store, tag));
}

} // namespace Tamrivo
