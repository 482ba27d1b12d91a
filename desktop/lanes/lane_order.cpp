#include "desktop/lanes/lane_order.h"

#include <queue>

#include <algorithm>
#include <functional>
#include <numeric>
#include <tuple>

namespace Tamrivo
{

namespace
{

template <class T>
using LeastFirst = std::priority_queue<T, std::vector<T>, std::greater<>>;

Lane LayOutLane(const std::vector<LaneLocus>& loci, std::span<const std::size_t> positions)
{
    Lane lane{loci[positions.front()].DyeIndex, {}};
    LeastFirst<std::pair<std::int32_t, std::size_t>> taken; // End of the last bar, row.
    LeastFirst<std::size_t> free;
    for (const std::size_t position : positions)
    {
        while (!taken.empty() && taken.top().first <= loci[position].From)
        {
            free.push(taken.top().second);
            taken.pop();
        }
        if (free.empty())
        {
            free.push(lane.Rows.size());
            lane.Rows.emplace_back();
        }
        lane.Rows[free.top()].push_back(position);
        // Even a range without an extent has a bar that can be seen.
        taken.emplace(std::max(loci[position].To, loci[position].From + 1), free.top());
        free.pop();
    }
    return lane;
}

} // namespace

LaneOrder::LaneOrder(const std::vector<LaneLocus>& loci) : m_positions(loci.size())
{
    std::iota(m_positions.begin(), m_positions.end(), 0U);
    std::ranges::stable_sort(m_positions, {}, [&loci](std::size_t position) {
        return std::tuple(loci[position].DyeIndex, loci[position].From);
    });
    const auto dyeOf = [&loci](std::size_t position) { return loci[position].DyeIndex; };
    for (auto begin = m_positions.begin(); begin != m_positions.end();)
    {
        const auto end = std::find_if(begin, m_positions.end(), [&](std::size_t position) {
            return dyeOf(position) != dyeOf(*begin);
        });
        m_lanes.emplace_back(begin, end);
        begin = end;
    }
}

std::vector<Lane> LayOutLanes(const std::vector<LaneLocus>& loci)
{
    std::vector<Lane> lanes;
    const LaneOrder order(loci);
    for (const auto positions : order.Lanes())
        lanes.push_back(LayOutLane(loci, positions));
    return lanes;
}

} // namespace Tamrivo
