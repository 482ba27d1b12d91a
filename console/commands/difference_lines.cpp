#include "console/commands/difference_lines.h"

#include "host/panels/cells.h"

namespace Tamrivo
{

namespace
{

std::string Shown(const std::string& value)
{
    return value.empty() ? "(none)" : OneLine(value);
}

} // namespace

void PrintDifferences(std::ostream& out, const std::vector<ContentDifference>& differences,
                      const std::string& indent)
{
    for (const ContentDifference& difference : differences)
        out << indent << OneLine(difference.What) << ": " << Shown(difference.Before) << " -> "
            << Shown(difference.After) << '\n';
}

std::string OneLine(const std::string& text)
{
    return EscapeCell(text);
}

} // namespace Tamrivo
