#include "host/reports/table.h"

#include "host/panels/cells.h"

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

void PrintHtmlRow(std::ostream& out, const Table& table, const std::vector<std::string>& cells,
                  std::string_view element)
{
    out << "<tr>";
    for (std::size_t at = 0; at < cells.size(); ++at)
        out << '<' << element
            << (table.Columns[at].Kind == Table::Number ? " class=\"number\">" : ">")
            << EscapeHtml(cells[at]) << "</" << element << '>';
    out << "</tr>\n";
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

} // namespace

void PrintTsvRow(std::ostream& out, const std::vector<std::string>& cells)
{
    for (std::size_t at = 0; at < cells.size(); ++at)
        out << (at > 0 ? "\t" : "") << EscapeCell(cells[at]);
    out << '\n';
}

void PrintTsv(std::ostream& out, const Table& table)
{
    PrintTsvRow(out, Titles(table));
    for (const auto& row : table.Rows)
        PrintTsvRow(out, row);
}

void PrintHtmlPage(std::ostream& out,
                   const std::vector<std::pair<std::string, Table>>& headedTables)
{
    out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<title>Loci</title>\n<style>\n"
           "body { font-family: sans-serif; margin: 2em }\n"
           "table { border-collapse: collapse }\n"
           "th, td { border-bottom: 1px solid #ccc; padding: 0.3em 0.8em; text-align: left }\n"
           ".number { text-align: right }\n"
           "</style>\n</head>\n<body>\n";
    for (const auto& [heading, table] : headedTables)
    {
        out << "<h1>" << EscapeHtml(heading) << "</h1>\n";
        PrintHtml(out, table);
    }
    out << "</body>\n</html>\n";
}

} // namespace Tamrivo
