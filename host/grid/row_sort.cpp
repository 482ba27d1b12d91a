#include "host/grid/row_sort.h"

#include "host/grid/sort_key.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Tamrivo
{

void SortRows(std::span<GridRow> rows, std::span<const RowSortKey> keys)
{
    if (rows.size() < 2 || keys.empty())
        return;
    const RowSortKey& key = keys.front();
    std::vector<std::pair<std::string, GridRow>> keyed;
    keyed.reserve(rows.size());
    for (GridRow& row : rows)
        keyed.emplace_back(SortKey(key.Kind, row.Cells[key.Cell], key.CaseCounts), std::move(row));

    std::ranges::stable_sort(keyed, [&key](const auto& left, const auto& right) {
        return key.Descending ? right.first < left.first : left.first < right.first;
    });
    std::ranges::transform(keyed, rows.begin(),
                           [](auto& entry) { return std::move(entry.second); });

    // What this key doesn't tell apart is left to the others.
    for (std::size_t first = 0; first < keyed.size();)
    {
        std::size_t end = first + 1;
        while (end < keyed.size() && keyed[end].first == keyed[first].first)
            ++end;
        SortRows(rows.subspan(first, end - first), keys.subspan(1));
        first = end;
    }
}

} // namespace Tamrivo
