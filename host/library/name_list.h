#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace Tamrivo
{

/// Names that many loci share, each kept once and counted. Case and blanks at the end don't make
/// another name; the first spelling stays.
class NameList
{
public:
    struct Entry
    {
        std::string Name;
        std::string Key; ///< As `LookupKey` has it.
        std::size_t Loci = 0;
    };

    /// The position of the name, which has one locus more now.
    std::uint32_t Count(const std::string& name);

    const std::vector<Entry>& Entries() const { return m_entries; }
    const Entry& operator[](std::uint32_t position) const { return m_entries[position]; }

private:
    std::vector<Entry> m_entries;
    std::unordered_map<std::string, std::uint32_t> m_positions; ///< By key, and by each spelling.
};

} // namespace Tamrivo
