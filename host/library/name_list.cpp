#include "host/library/name_list.h"

#include "host/loci/keys.h"

namespace Tamrivo
{

std::uint32_t NameList::Count(const std::string& name)
{
    const auto [spelling, isNewSpelling] = m_positions.try_emplace(name, 0U);
    if (isNewSpelling)
    {
        const auto next = static_cast<std::uint32_t>(m_entries.size());
        std::string key = LookupKey(name);
        // A name that is its own key stands in the map already.
        const auto [known, isNew] = m_positions.try_emplace(key, next);
        if (isNew || key == name)
        {
            known->second = next;
            m_entries.push_back({name, std::move(key)});
        }
        m_positions[name] = known->second;
    }
    const std::uint32_t position = m_positions[name];
    ++m_entries[position].Loci;
    return position;
}

} // namespace Tamrivo
