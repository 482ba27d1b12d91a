#include "host/panels/table/table_lines.h"

#include "core/text.h"
#include "host/panels/cells.h"

namespace Tamrivo
{

bool TableLines::Next()
{
    std::string_view line;
    while (m_problem.empty() && m_source.Next(line))
    {
        ++m_number;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const bool isPlain = m_source.IsPlain();
        if (!isPlain && line.find('\0') != std::string_view::npos)
            m_problem = "The line has a zero byte; the file is binary or damaged";
        else if (!isPlain && !IsUtf8(line))
            m_problem = "The text isn't UTF-8; save the table as UTF-8";
        else if (line.find_first_not_of("\t ") != std::string_view::npos)
        {
            SplitCells(line, m_cells);
            return true;
        }
    }
    if (m_source.IsTooLong())
    {
        ++m_number;
        m_problem = "The line is longer than a million bytes; this is no table of markers";
    }
    return false;
}

} // namespace Tamrivo
