#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// A table of texts, to be shown or written.
struct Table
{
    enum Kind
    {
        Text,
        Number, ///< Stands at the right.
        Date,   ///< As `DateText` writes it, or ISO 8601.
    };

    struct Column
    {
        std::string Title;
        Table::Kind Kind = Text;
    };

    std::vector<Column> Columns;
    std::vector<std::vector<std::string>> Rows; ///< A cell for each column.
};

/// For programs: tab-separated, the titles first, cells escaped as `EscapeCell` does.
void PrintTsv(std::ostream& out, const Table& table);
/// One row of it.
void PrintTsvRow(std::ostream& out, const std::vector<std::string>& cells);
/// A page of its own with the tables under their headings.
void PrintHtmlPage(std::ostream& out,
                   const std::vector<std::pair<std::string, Table>>& headedTables);

} // namespace Tamrivo
