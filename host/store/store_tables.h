#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace soci
{
class session;
}

namespace Tamrivo
{

class Database;

// The tables of a store as such, for what treats all of them alike.

enum class ColumnKind
{
    Integer,
    Real,
    Text,
};

struct Column
{
    std::string Name;
    ColumnKind Kind = ColumnKind::Integer;
};

struct TableOfStore
{
    std::string Name;
    std::string Key; ///< The columns that order the rows.
    std::vector<Column> Columns;

    /// "A, B, C"
    std::string ColumnNames() const;
};

/// All tables but those that number things, in an order in which they can be filled.
std::vector<TableOfStore> TablesOfStore();

/// A row with a cell for each column, of which the member of the column's kind counts. It stays
/// where it is while a statement is bound to it.
struct RowOfStore
{
    struct Cell
    {
        long long Integer = 0;
        double Real = 0;
        std::string Text;
    };

    explicit RowOfStore(const TableOfStore& table) : Table(table), Cells(table.Columns.size()) {}

    /// Calls `visit(name, value)` for each column.
    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        for (std::size_t at = 0; at < Cells.size(); ++at)
        {
            switch (Table.Columns[at].Kind)
            {
            case ColumnKind::Integer: visit(Table.Columns[at].Name, Cells[at].Integer); break;
            case ColumnKind::Real: visit(Table.Columns[at].Name, Cells[at].Real); break;
            case ColumnKind::Text: visit(Table.Columns[at].Name, Cells[at].Text); break;
            }
        }
    }

    const TableOfStore& Table;
    std::vector<Cell> Cells;
};

/// Fills the row with each row of its table, in the order of the key, and calls the handler. Takes
/// memory for some rows only. Inside a `Snapshot` or a transaction.
void ForEachRow(Database& database, RowOfStore& row, const std::function<void()>& handler);

/// Writes rows of one table: one at a time into a file, many at a time to a server. Inside a
/// transaction.
class RowWriter
{
public:
    RowWriter(Database& database, soci::session& session, RowOfStore& row);
    ~RowWriter();

    /// Writes the row as it is now, at once or with later ones.
    void Write();
    /// Writes what isn't written yet.
    void Flush();

private:
    struct Statement;
    RowOfStore& m_row;
    std::unique_ptr<Statement> m_insert;
};

} // namespace Tamrivo
