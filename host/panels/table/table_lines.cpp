#include "host/panels/table/table_lines.h"

#include "core/text.h"
#include "host/panels/cells.h"

#include <algorithm>

namespace Tamrivo
{

TableLines::TableLines(std::string_view text) : m_rest(text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (m_rest.starts_with(byteOrderMark))
        m_rest.remove_prefix(byteOrderMark.size());
}

bool TableLines::Next()
{
    constexpr std::size_t longestLine = 1'000'000;
    while (m_problem.empty() && !m_rest.empty())
    {
        ++m_number;
        std::string_view line = m_rest.substr(0, m_rest.find('\n'));
        m_rest.remove_prefix(std::min(line.size() + 1, m_rest.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.size() > longestLine)
            m_problem = "The line is longer than a million bytes; this is no table of markers";
        else if (!IsUtf8(line))
            m_problem = "The text isn't UTF-8; save the table as UTF-8";
        else if (line.find_first_not_of("\t ") != std::string_view::npos)
        {
            SplitCells(line, m_cells);
            return true;
        }
    }
    return false;
}

} // namespace Tamrivo
