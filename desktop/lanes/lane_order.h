#pragma once

#include "desktop/lanes/locus_overlaps.h"

#include <cstddef>
#include <span>
#include <vector>

namespace Tamrivo
{

/// Loci lane by lane, in each lane by the start of their ranges.
class LaneOrder
{
public:
    explicit LaneOrder(const std::vector<LaneLocus>& loci);

    /// Positions in the list of loci, a span for each dye that has any.
    const std::vector<std::span<const std::size_t>>& Lanes() const { return m_lanes; }

private:
    std::vector<std::size_t> m_positions;
    std::vector<std::span<const std::size_t>> m_lanes;
};

/// A lane of the picture: positions in the list of loci, row below row, so that the bars of a row
/// stand side by side.
struct Lane
{
    std::int32_t DyeIndex;
    std::vector<std::vector<std::size_t>> Rows;
};

/// Puts each locus into the topmost row that has room for it, in time n log n.
std::vector<Lane> LayOutLanes(const std::vector<LaneLocus>& loci);

} // namespace Tamrivo
