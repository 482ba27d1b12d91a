#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace Tamrivo
{

/// A table to be printed.
struct Table
{
    struct Column
    {
        std::string Title;
        bool IsNumber = false; ///< Stands at the right.
    };

    std::vector<Column> Columns;
    std::vector<std::vector<std::string>> Rows; ///< A cell for each column.
};

/// For people: columns in line, the titles over a rule.
void PrintAligned(std::ostream& out, const Table& table);
/// For programs: tab-separated, the titles first, cells escaped as `EscapeCell` does.
void PrintTsv(std::ostream& out, const Table& table);
/// A `table` element.
void PrintHtml(std::ostream& out, const Table& table);

/// The text as HTML content.
std::string EscapeHtml(const std::string& text);

} // namespace Tamrivo
