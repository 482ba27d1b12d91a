#include "console/commands/table.h"

#include "console/commands/text_width.h"
#include "platform/panels/cells.h"

#include <algorithm>
#include <string_view>

namespace Tamrivo
{

namespace
{

std::vector<std::string> Titles(const Table& table)
{
    std::vector<std::string> titles;
    for (const Table::Column& column : table.Columns)
        titles.push_back(column.Title);
    return titles;
}

void PrintTsvRow(std::ostream& out, const std::vector<std::string>& cells)
{
    for (std::size_t at = 0; at < cells.size(); ++at)
        out << (at > 0 ? "\t" : "") << EscapeCell(cells[at]);
    out << '\n';
}

/// Blanks at the end of a line are left out.
void PrintAlignedRow(std::ostream& out, const Table& table, const std::vector<std::string>& cells,
                     const std::vector<std::size_t>& widths)
{
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at)
    {
        const std::string gap(widths[at] - TextWidth(cells[at]), ' ');
        line += at > 0 ? "  " : "";
        line += table.Columns[at].IsNumber ? gap + cells[at] : cells[at] + gap;
    }
    out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}

void PrintHtmlRow(std::ostream& out, const Table& table, const std::vector<std::string>& cells,
                  std::string_view element)
{
    out << "<tr>";
    for (std::size_t at = 0; at < cells.size(); ++at)
        out << '<' << element << (table.Columns[at].IsNumber ? " class=\"number\">" : ">")
            << EscapeHtml(cells[at]) << "</" << element << '>';
    out << "</tr>\n";
}

} // namespace

void PrintAligned(std::ostream& out, const Table& table)
{
    std::vector<std::vector<std::string>> rows{Titles(table)};
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
        PrintAlignedRow(out, table, row, widths);
}

void PrintTsv(std::ostream& out, const Table& table)
{
    PrintTsvRow(out, Titles(table));
    for (const auto& row : table.Rows)
        PrintTsvRow(out, row);
}

void PrintHtml(std::ostream& out, const Table& table)
{
    out << "<table>\n<thead>\n";
    PrintHtmlRow(out, table, Titles(table), "th");
    out << "</thead>\n<tbody>\n";
    for (const auto& row : table.Rows)
        PrintHtmlRow(out, table, row, "td");
    out << "</tbody>\n</table>\n";
}

std::string EscapeHtml(const std::string& text)
{
    std::string html;
    for (const char character : text)
    {
        switch (character)
        {
        case '&': html += "&amp;"; break;
        case '<': html += "&lt;"; break;
        case '>': html += "&gt;"; break;
        case '"': html += "&quot;"; break;
        default: html += character;
        }
    }
    return html;
}

} // namespace Tamrivo
