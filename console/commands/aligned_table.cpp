#include "console/commands/aligned_table.h"

#include "console/commands/text_width.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// Blanks at the end of a line are left out.
void PrintLine(std::ostream& out, const Table& table, const std::vector<std::string>& cells,
               const std::vector<std::size_t>& widths)
{
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at)
    {
        const std::string gap(widths[at] - TextWidth(cells[at]), ' ');
        line += at > 0 ? "  " : "";
        line += table.Columns[at].Kind == Table::Number ? gap + cells[at] : cells[at] + gap;
    }
    out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}

} // namespace

void PrintAligned(std::ostream& out, const Table& table)
{
    std::vector<std::vector<std::string>> rows(1);
    for (const Table::Column& column : table.Columns)
        rows.front().push_back(column.Title);
    rows.insert(rows.end(), table.Rows.begin(), table.Rows.end());

    std::vector<std::size_t> widths(table.Columns.size(), 0);
    for (auto& row : rows)
    {
        for (std::size_t at = 0; at < row.size(); ++at)
        {
            row[at] = PrintableText(row[at]);
            widths[at] = std::max(widths[at], TextWidth(row[at]));
        }
    }

    std::vector<std::string> rule;
    for (const std::size_t width : widths)
        rule.emplace_back(width, '-');
    rows.insert(rows.begin() + 1, std::move(rule));
    for (const auto& row : rows)
        PrintLine(out, table, row, widths);
}

} // namespace Tamrivo
