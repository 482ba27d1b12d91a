#include "platform/panels/table_lines.h"

#include "core/text.h"
#include "platform/panels/cells.h"

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
    while (m_isText && !m_rest.empty())
    {
        ++m_number;
        std::string_view line = m_rest.substr(0, m_rest.find('\n'));
        m_rest.remove_prefix(std::min(line.size() + 1, m_rest.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        m_isText = IsUtf8(line);
        if (m_isText && line.find_first_not_of("\t ") != std::string_view::npos)
        {
            SplitCells(line, m_cells);
            return true;
        }
    }
    return false;
}

} // namespace Tamrivo
