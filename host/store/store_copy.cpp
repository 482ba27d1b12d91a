#include "host/store/store_copy.h"

#include "host/database/address.h"
#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/transaction.h"
#include "host/store/allele_row.h"
#include "host/store/history_record.h"
#include "host/store/locus_row.h"
#include "host/store/store.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <functional>
#include <type_traits>
#include <vector>

namespace Tamrivo
{

namespace
{

constexpr int RowsAtOnce = 500;

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
};

template <class Row>
std::vector<Column> ColumnsOf(Row&& row)
{
    std::vector<Column> columns;
    row.VisitColumns([&](std::string_view name, const auto& value) {
        using Value = std::decay_t<decltype(value)>;
        columns.push_back({std::string(name), std::is_same_v<Value, std::string> ? ColumnKind::Text
                                              : std::is_same_v<Value, double>
                                                  ? ColumnKind::Real
                                                  : ColumnKind::Integer});
    });
    return columns;
}

/// All tables but those that number things, in an order in which they can be filled.
std::vector<TableOfStore> Tables()
{
    using enum ColumnKind;
    std::vector<Column> history = ColumnsOf(HistoryRecord());
    history.insert(history.begin(), {"Number", Integer});
    return {
        {"Project", "ProjectID", {{"ProjectID", Integer}, {"Name", Text}, {"NameKey", Text}}},
        {"Dye", "Position", {{"Position", Integer}, {"Color", Text}, {"Name", Text}}},
        {"Setting", "Name", {{"Name", Text}, {"Value", Text}}},
        {"Locus", "LocusID", ColumnsOf(LocusRow())},
        {"Allele", "LocusID, Position", ColumnsOf(AlleleRow())},
        {"AnalysisParameter",
         "ParameterID",
         {{"ParameterID", Integer},
          {"Revision", Integer},
          {"Name", Text},
          {"NameKey", Text},
          {"LocusTagListCount", Integer}}},
        {"AnalysisParameterTag",
         "ParameterID, LocusTagID",
         {{"ParameterID", Integer}, {"LocusTagID", Integer}, {"Position", Integer}}},
        {"History", "Number", std::move(history)},
        {"Seal",
         "Number",
         {{"Number", Integer}, {"WrittenAt", Integer}, {"Records", Text}, {"Digest", Text}}},
        // After the history, whose rows note themselves here.
        {"Unsealed", "Number", {{"Number", Integer}}},
    };
}

std::string NamesOf(const TableOfStore& table)
{
    std::string names;
    for (const Column& column : table.Columns)
        names += (names.empty() ? "" : ", ") + column.Name;
    return names;
}

/// A row with a cell for each column, of which the member of the column's kind counts. It stays
/// where it is while a statement is bound to it.
struct Row
{
    struct Cell
    {
        long long Integer = 0;
        double Real = 0;
        std::string Text;
    };

    explicit Row(const TableOfStore& table) : Table(table), Cells(table.Columns.size()) {}

    template <class Visit>
    void ForEach(Visit&& visit)
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

bool IsOnServer(Database& database)
{
    return database.Backend().Dialect() == "postgresql";
}

/// Executes the query, whose rows go to the row. Gives their number.
int FetchRows(Database& database, soci::session& session, Row& row, const std::string& sql,
              const std::function<void()>& handler)
{
    RowTargets targets;
    row.ForEach([&](const std::string&, auto& value) { targets.emplace_back(&value); });
    soci::statement statement(session);
    database.BindInto(statement, targets);
    Prepare(statement, sql);
    int count = 0;
    for (statement.execute(); statement.fetch(); ++count)
    {
        database.Progress();
        handler();
    }
    return count;
}

/// Calls the handler with each row of the table, in the order of its key. A server's driver would
/// hold all rows at once, so that they are fetched there some at a time.
void ForEachRow(Database& database, soci::session& session, Row& row,
                const std::function<void()>& handler)
{
    const std::string select =
        "SELECT " + NamesOf(row.Table) + " FROM " + row.Table.Name + " ORDER BY " + row.Table.Key +
        (row.Table.Name == "Setting" && IsOnServer(database) ? " COLLATE \"C\"" : "");
    if (!IsOnServer(database))
    {
        FetchRows(database, session, row, select, handler);
        return;
    }
    session << "DECLARE Rows NO SCROLL CURSOR FOR " << select;
    const std::string fetch = "FETCH " + std::to_string(RowsAtOnce) + " FROM Rows";
    while (FetchRows(database, session, row, fetch, handler) == RowsAtOnce)
    {}
    session << "CLOSE Rows";
}

/// Reads inside a transaction that sees the store as it was at its beginning.
template <class Reading>
void ReadAtOnce(Database& database, Reading&& reading)
{
    database.Run("The store is not read", [&](soci::session& session) {
        session << (IsOnServer(database) ? "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"
                                         : "BEGIN");
        struct End
        {
            ~End()
            {
                try
                {
                    Session << "ROLLBACK";
                }
                catch (const soci::soci_error&)
                {
                    // The connection was lost, and the transaction with it.
                }
            }
            soci::session& Session;
        } end{session};
        reading(session);
    });
}

/// Writes rows of one table: one at a time into a file, many at a time to a server.
class RowWriter
{
public:
    RowWriter(Database& database, soci::session& session, Row& row)
        : m_row(row), m_isMany(database.Backend().WritesManyRows()), m_insert(session)
    {
        const std::string names = NamesOf(row.Table);
        const std::string insert = "INSERT INTO " + row.Table.Name + " (" + names + ") ";
        if (m_isMany)
        {
            m_insert.exchange(soci::use(m_text));
            Prepare(m_insert, insert + "SELECT " + names +
                                  " FROM json_populate_recordset(CAST(NULL AS " + row.Table.Name +
                                  "), CAST(:Rows AS json))");
            return;
        }
        std::string values;
        row.ForEach([&](const std::string& name, auto& value) {
            values += (values.empty() ? ":" : ", :") + name;
            m_insert.exchange(soci::use(value));
        });
        Prepare(m_insert, insert + "VALUES (" + values + ")");
    }

    void Write()
    {
        if (!m_isMany)
        {
            m_insert.execute(true);
            return;
        }
        nlohmann::json json;
        m_row.ForEach([&](std::string name, const auto& value) {
            std::ranges::transform(name, name.begin(),
                                   [](unsigned char c) { return std::tolower(c); });
            json[name] = value;
        });
        m_rows.push_back(std::move(json));
        if (m_rows.size() >= RowsAtOnce)
            Flush();
    }

    void Flush()
    {
        if (m_rows.empty())
            return;
        m_text = m_rows.dump();
        m_insert.execute(true);
        m_rows = nlohmann::json::array();
    }

private:
    Row& m_row;
    bool m_isMany;
    nlohmann::json m_rows = nlohmann::json::array();
    std::string m_text;
    soci::statement m_insert;
};

int CountIn(soci::session& session, const std::string& query)
{
    int count = 0;
    session << query, soci::into(count);
    return count;
}

void RequireEmpty(soci::session& session, const std::string& name)
{
    const int objects = CountIn(session, "SELECT (SELECT COUNT(*) FROM Locus) + "
                                         "(SELECT COUNT(*) FROM AnalysisParameter) + "
                                         "(SELECT COUNT(*) FROM Project WHERE ProjectID > 1) + "
                                         "(SELECT COUNT(*) FROM History WHERE Operation <> "
                                         "'found')");
    if (objects > 0)
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "Nothing was copied: the store \"" + name +
                          "\" isn't empty. Name one that isn't there yet");
}

/// The last number given to an object.
int LastNumber(Database& database, soci::session& session)
{
    return CountIn(session, IsOnServer(database) ? "SELECT last_value FROM ObjectNumber"
                                                 : "SELECT Number FROM LastNumber");
}

void SetLastNumber(Database& database, soci::session& session, int number)
{
    if (!IsOnServer(database))
    {
        session << "UPDATE LastNumber SET Number = " << number;
        return;
    }
    session << "SELECT setval('ObjectNumber', " << number << ")";
    session << "SELECT setval('history_number_seq', (SELECT MAX(Number) FROM History))";
}

} // namespace

void CopyStore(Store& from, Store& to)
{
    Database& source = from.SharedDatabase();
    Database& target = to.SharedDatabase();
    ReadAtOnce(source, [&](soci::session& reading) {
        target.Run("Nothing was copied", [&](soci::session& writing) {
            Transaction transaction(target);
            RequireEmpty(writing, to.Name());
            auto tables = Tables();
            std::ranges::for_each(tables.rbegin(), tables.rend(), [&](const TableOfStore& table) {
                writing << "DELETE FROM " << table.Name;
            });
            for (const TableOfStore& table : tables)
            {
                if (table.Name == "Unsealed")
                    writing << "DELETE FROM Unsealed";
                Row row(table);
                RowWriter writer(target, writing, row);
                ForEachRow(source, reading, row, [&] { writer.Write(); });
                writer.Flush();
            }
            SetLastNumber(target, writing, LastNumber(source, reading));
            transaction.Commit();
        });
    });
}

void BackUpStore(Store& from, const std::string& file, bool mayOverwrite)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const bool isThere = fs::exists(file, error);
    if (isThere && !IsPostgresqlAddress(from.Name()) &&
        fs::equivalent(file, SqlitePath(from.Name()), error))
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "Nothing was written: \"" + file + "\" is the store itself");
    if (isThere && !mayOverwrite)
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "Nothing was written: \"" + file +
                          "\" is there already. --force overwrites "
                          "it");
    const std::string part = file + ".part";
    fs::remove(part, error);
    try
    {
        {
            Store copy(part);
            CopyStore(from, copy);
        }
        fs::rename(part, file);
    }
    catch (...)
    {
        fs::remove(part, error);
        throw;
    }
}

std::string FirstDifference(Store& one, Store& other)
{
    const auto digest = [](Store& store, const TableOfStore& table) {
        std::string sum;
        ReadAtOnce(store.SharedDatabase(), [&](soci::session& session) {
            Row row(table);
            std::string text;
            ForEachRow(store.SharedDatabase(), session, row, [&] {
                row.ForEach([&](const std::string&, const auto& value) {
                    text += nlohmann::json(value).dump(-1, ' ', false,
                                                       nlohmann::json::error_handler_t::replace) +
                            "\n";
                });
                constexpr std::size_t much = 1 << 20;
                if (text.size() > much)
                {
                    sum = Sha256(sum + text);
                    text.clear();
                }
            });
            sum = Sha256(sum + text);
        });
        return sum;
    };
    for (const TableOfStore& table : Tables())
    {
        if (digest(one, table) != digest(other, table))
            return table.Name;
    }
    return {};
}

} // namespace Tamrivo
