#include "host/store/store_tables.h"

#include "core/text.h"
#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/store/allele_row.h"
#include "host/store/history_record.h"
#include "host/store/json_text.h"
#include "host/store/locus_row.h"

#include <type_traits>

namespace Tamrivo
{

namespace
{

constexpr int RowsAtOnce = 500;

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

/// Executes the query, whose rows go to the row. Gives their number.
int FetchRows(Database& database, soci::session& session, RowOfStore& row, const std::string& sql,
              const std::function<void()>& handler)
{
    soci::statement statement(session);
    BindInto(database, statement, row);
    Prepare(statement, sql);
    int count = 0;
    for (statement.execute(); statement.fetch(); ++count)
    {
        database.Progress();
        handler();
    }
    return count;
}

/// A query whose rows are fetched some at a time, where the driver would hold all of them.
class Cursor
{
public:
    Cursor(soci::session& session, const std::string& select) : m_session(session)
    {
        Execute(m_session, "DECLARE Rows NO SCROLL CURSOR FOR " + select);
    }
    ~Cursor()
    {
        try
        {
            Execute(m_session, "CLOSE Rows");
        }
        catch (const soci::soci_error&)
        {
            // It goes with its transaction.
        }
    }
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

private:
    soci::session& m_session;
};

} // namespace

std::string TableOfStore::ColumnNames() const
{
    std::string names;
    for (const Column& column : Columns)
        names += (names.empty() ? "" : ", ") + column.Name;
    return names;
}

std::vector<TableOfStore> TablesOfStore()
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

void ForEachRow(Database& database, RowOfStore& row, const std::function<void()>& handler)
{
    database.Run("The store is not read", [&](soci::session& session) {
        const bool isHeldByDriver = database.Backend().Dialect() == "postgresql";
        const std::string select =
            "SELECT " + row.Table.ColumnNames() + " FROM " + row.Table.Name + " ORDER BY " +
            row.Table.Key + (row.Table.Name == "Setting" && isHeldByDriver ? " COLLATE \"C\"" : "");
        if (!isHeldByDriver)
        {
            FetchRows(database, session, row, select, handler);
            return;
        }
        const Cursor cursor(session, select);
        const std::string fetch = "FETCH " + std::to_string(RowsAtOnce) + " FROM Rows";
        while (FetchRows(database, session, row, fetch, handler) == RowsAtOnce)
        {}
    });
}

struct RowWriter::Statement
{
    explicit Statement(soci::session& session) : Insert(session) { Rows.BeginArray(); }

    bool IsOfMany = false;
    int Waiting = 0; ///< Rows in `Rows`.
    JsonText Rows;
    std::string Text;
    soci::statement Insert;
};

RowWriter::RowWriter(Database& database, soci::session& session, RowOfStore& row)
    : m_row(row), m_insert(std::make_unique<Statement>(session))
{
    m_insert->IsOfMany = database.Backend().WritesManyRows();
    if (!m_insert->IsOfMany)
    {
        BindUse(m_insert->Insert, row);
        Prepare(m_insert->Insert, InsertStatement(row.Table.Name, row));
        return;
    }
    const std::string names = row.Table.ColumnNames();
    m_insert->Insert.exchange(soci::use(m_insert->Text));
    Prepare(m_insert->Insert, "INSERT INTO " + row.Table.Name + " (" + names + ") SELECT " + names +
                                  " FROM json_populate_recordset(CAST(NULL AS " + row.Table.Name +
                                  "), CAST(:Rows AS json))");
}

RowWriter::~RowWriter() = default;

void RowWriter::Write()
{
    if (!m_insert->IsOfMany)
    {
        m_insert->Insert.execute(true);
        return;
    }
    JsonText& rows = m_insert->Rows;
    rows.BeginObject();
    m_row.VisitColumns(
        [&](const std::string& name, const auto& value) { rows.Add(FoldCase(name), value); });
    rows.EndObject();
    if (++m_insert->Waiting >= RowsAtOnce)
        Flush();
}

void RowWriter::Flush()
{
    if (m_insert->Waiting == 0)
        return;
    m_insert->Rows.EndArray();
    m_insert->Text = m_insert->Rows.Text();
    m_insert->Insert.execute(true);
    m_insert->Waiting = 0;
    m_insert->Rows.Clear();
    m_insert->Rows.BeginArray();
}

} // namespace Tamrivo
