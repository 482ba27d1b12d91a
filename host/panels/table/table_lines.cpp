#include "host/panels/table/table_lines.h"

#include "core/text.h"
#include "host/panels/cells.h"

namespace Tamrivo
{

namespace
{

struct KindOfText
{
    bool IsAscii;
    bool HasZero;
};

/// One loop without branches, since nearly all lines are plain.
KindOfText Look(std::string_view line)
{
    unsigned char all = 0;
    bool hasZero = false;
    for (const char character : line)
    {
        all |= static_cast<unsigned char>(character);
        hasZero |= character == 0;
    }
    return {all < 0x80, hasZero};
}

} // namespace

bool TableLines::Next()
{
    std::string_view line;
    while (m_problem.empty() && m_source.Next(line))
    {
        ++m_number;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const auto [isAscii, hasZero] = Look(line);
        if (hasZero)
            m_problem = "The line has a zero byte; the file is binary or damaged";
        else if (!isAscii && !IsUtf8(line))
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
