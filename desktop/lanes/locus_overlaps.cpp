#include "desktop/lanes/locus_overlaps.h"

#include "desktop/lanes/lane_order.h"
#include "host/loci/dyes.h"

#include <algorithm>
#include <span>

namespace Tamrivo
{

namespace
{

/// Walks the loci of one dye by their starts.
class LaneSweep
{
public:
    LaneSweep(const std::vector<LaneLocus>& loci, std::span<const std::size_t> lane) : m_loci(loci)
    {
        for (const std::size_t locus : lane)
        {
            if (loci[locus].From >= loci[locus].To)
                continue;
            m_lane.push_back(locus);
            m_ends.push_back(loci[locus].To);
        }
        std::ranges::sort(m_ends);
    }

    void Add(LocusOverlaps& overlaps, std::size_t most)
    {
        std::size_t ended = 0;
        for (std::size_t at = 0; at < m_lane.size(); ++at)
        {
            const LaneLocus& locus = m_loci[m_lane[at]];
            // What ends before this one begins has begun before it as well.
            while (m_ends[ended] <= locus.From)
                ++ended;
            overlaps.Count += at - ended;

            const bool meetsNext = at + 1 < m_lane.size() && m_loci[m_lane[at + 1]].From < locus.To;
            overlaps.IsOverlapped[m_lane[at]] = at > ended || meetsNext;
            if (at > ended)
                Share(locus, overlaps.Shared);
            m_furthest = at > 0 ? std::max(m_furthest, locus.To) : locus.To;
            List(m_lane[at], overlaps.Listed, most);
        }
    }

private:
    void Share(const LaneLocus& locus, std::vector<SharedStretch>& stretches) const
    {
        const std::int32_t to = std::min(locus.To, m_furthest);
        if (!stretches.empty() && stretches.back().DyeIndex == locus.DyeIndex &&
            locus.From <= stretches.back().To)
            stretches.back().To = std::max(stretches.back().To, to);
        else
            stretches.push_back({locus.DyeIndex, locus.From, to});
    }

    /// Each step drops a locus for good or lists a pair, so the bound bounds the time too.
    void List(std::size_t locus, std::vector<LocusOverlap>& listed, std::size_t most)
    {
        if (listed.size() >= most)
            return;
        const LaneLocus& added = m_loci[locus];
        std::erase_if(m_open, [&](std::size_t open) { return m_loci[open].To <= added.From; });
        for (const std::size_t open : m_open)
        {
            if (listed.size() >= most)
                return;
            listed.push_back({open, locus, added.From, std::min(m_loci[open].To, added.To)});
        }
        m_open.push_back(locus);
    }

    const std::vector<LaneLocus>& m_loci;
    std::vector<std::size_t> m_lane;
    std::vector<std::int32_t> m_ends;
    std::int32_t m_furthest = 0;
    std::vector<std::size_t> m_open;
};

} // namespace

LocusOverlaps FindOverlaps(const std::vector<LaneLocus>& loci, std::size_t most)
{
    LocusOverlaps overlaps;
    overlaps.IsOverlapped.resize(loci.size());
    const LaneOrder order(loci);
    for (const auto lane : order.Lanes())
        LaneSweep(loci, lane).Add(overlaps, most);
    return overlaps;
}

std::string Describe(const LocusOverlap& overlap, const std::vector<LaneLocus>& loci,
                     const Dyes& dyes)
{
    return loci[overlap.First].Tag + " and " + loci[overlap.Second].Tag + " overlap from " +
           std::to_string(overlap.From) + " to " + std::to_string(overlap.To) + " nt in " +
           dyes.TitleOf(loci[overlap.First].DyeIndex) + ": they can't be told apart in one run";
}

} // namespace Tamrivo
