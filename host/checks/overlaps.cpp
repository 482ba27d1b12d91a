#include "host/checks/overlaps.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace Tamrivo
{

namespace
{

/// The two stretches of different owners that reach furthest right.
class Furthest
{
public:
    const Stretch* OfOther(std::size_t owner) const
    {
        return m_best[0] != nullptr && m_best[0]->Owner == owner ? m_best[1] : m_best[0];
    }

    void Take(const Stretch& stretch)
    {
        if (m_best[0] == nullptr || stretch.To >= m_best[0]->To)
        {
            if (m_best[0] != nullptr && m_best[0]->Owner != stretch.Owner)
                m_best[1] = m_best[0];
            m_best[0] = &stretch;
        }
        else if (m_best[0]->Owner != stretch.Owner &&
                 (m_best[1] == nullptr || stretch.To >= m_best[1]->To))
            m_best[1] = &stretch;
    }

private:
    std::array<const Stretch*, 2> m_best{};
};

} // namespace

std::vector<std::pair<Stretch, Stretch>> Overlaps(std::vector<Stretch> stretches, double tolerance)
{
    std::ranges::sort(stretches, {}, [](const Stretch& stretch) {
        return std::tuple(stretch.From, stretch.To, stretch.Owner, stretch.Allele);
    });
    std::vector<std::pair<Stretch, Stretch>> pairs;
    Furthest furthest;
    for (const Stretch& stretch : stretches)
    {
        const Stretch* const other = furthest.OfOther(stretch.Owner);
        if (other != nullptr && std::min(other->To, stretch.To) - stretch.From > tolerance)
            pairs.emplace_back(*other, stretch);
        furthest.Take(stretch);
    }
    return pairs;
}

} // namespace Tamrivo
