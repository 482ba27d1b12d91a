#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// Texts without upper case, one for each locus, in one piece of memory. Each text consists of
/// parts, of which every one begins behind `Separator`.
class FoldedTexts
{
public:
    static constexpr char Separator = '\n';

    /// Adds the next locus, whose text has no parts yet.
    void AddLocus() { m_starts.push_back(static_cast<std::uint32_t>(m_text.size())); }
    /// Adds a part to the text of the last locus.
    void AddPart(std::string_view part);

    std::size_t Count() const { return m_starts.size(); }
    std::string_view operator[](std::size_t position) const
    {
        const std::size_t end =
            position + 1 < m_starts.size() ? m_starts[position + 1] : m_text.size();
        return std::string_view(m_text).substr(m_starts[position], end - m_starts[position]);
    }

private:
    std::string m_text;
    std::vector<std::uint32_t> m_starts;
};

} // namespace Tamrivo
