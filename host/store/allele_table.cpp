#include "host/store/allele_table.h"

#include "core/text.h"
#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/store/allele_row.h"
#include "host/store/json_text.h"
#include "host/store/locus_table.h"
#include "host/store/stored_locus.h"

namespace Tamrivo
{

std::vector<AlleleFields> ReadAlleles(Database& database, const StoredLocus& locus)
{
    const std::string consequence =
        "The alleles of the locus \"" + locus.LocusTag() + "\" are not loaded";
    return database.Run(consequence, [&](soci::session& session) {
        std::vector<AlleleFields> alleles;
        std::int32_t locusID = locus.LocusID();
        AlleleRow row;
        soci::statement statement(session);
        BindInto(database, statement, row);
        statement.exchange(soci::use(locusID));
        Prepare(statement, "SELECT " + ColumnNames(row) +
                               " FROM Allele WHERE LocusID = :LocusID ORDER BY Position");
        for (statement.execute(); statement.fetch();)
            alleles.push_back(row.Fields);
        // Asked afterwards, so that a change made in between is noticed.
        RequireUnchanged(session, locus, consequence);
        return alleles;
    });
}

namespace
{

constexpr const char* SelectOfLocus = " FROM Allele WHERE LocusID = :LocusID ORDER BY Position";

/// " ON CONFLICT ... DO UPDATE SET A = EXCLUDED.A, ..."
std::string OverwriteClause(AlleleRow& row)
{
    std::string assignments;
    VisitAlleleFields(row.Fields, [&](std::string_view name, const auto&) {
        assignments.append(assignments.empty() ? "" : ", ").append(name).append(" = EXCLUDED.");
        assignments.append(name);
    });
    return " ON CONFLICT (LocusID, Position) DO UPDATE SET " + assignments;
}

/// The rows of a parameter `:Rows`.
std::string InsertOfMany(AlleleRow& row)
{
    const std::string columns = ColumnNames(row);
    return "INSERT INTO Allele (" + columns + ") SELECT " + columns +
           " FROM json_populate_recordset(CAST(NULL AS Allele), CAST(:Rows AS json))";
}

/// The alleles at the positions as an array of JSON objects with the names of the columns as a
/// server has them.
std::string RowsOf(std::int32_t locusID, const std::vector<AlleleFields>& alleles,
                   const std::vector<std::int32_t>& positions)
{
    JsonText rows;
    rows.BeginArray();
    for (const std::int32_t position : positions)
    {
        rows.BeginObject();
        rows.Add("locusid", locusID);
        rows.Add("position", position);
        VisitAlleleFields(
            alleles[static_cast<std::size_t>(position) - 1],
            [&](std::string_view name, const auto& value) { rows.Add(FoldCase(name), value); });
        rows.EndObject();
    }
    rows.EndArray();
    return rows.Text();
}

} // namespace

struct AlleleWriter::Statements
{
    Statements(Database& database, soci::session& session)
        : WritesMany(database.Backend().WritesManyRows()),
          Select(session),
          DeleteFrom(session),
          Write(session)
    {
        BindInto(database, Select, Row);
        Select.exchange(soci::use(Row.LocusID));
        Prepare(Select, "SELECT " + ColumnNames(Row) + SelectOfLocus);
        DeleteFrom.exchange(soci::use(Row.LocusID));
        DeleteFrom.exchange(soci::use(Row.Position));
        Prepare(DeleteFrom, "DELETE FROM Allele WHERE LocusID = :LocusID AND Position > :Position");
        if (WritesMany)
            Write.exchange(soci::use(Rows));
        else
            BindUse(Write, Row);
        Prepare(Write, (WritesMany ? InsertOfMany(Row) : InsertStatement("Allele", Row)) +
                           OverwriteClause(Row));
    }

    AlleleRow Row;
    std::string Rows;
    bool WritesMany;
    soci::statement Select;
    soci::statement DeleteFrom;
    soci::statement Write;
};

AlleleWriter::AlleleWriter(Database& database)
    : m_statements(database.Run("Nothing was stored", [&](soci::session& session) {
          return std::make_unique<Statements>(database, session);
      }))
{}

AlleleWriter::~AlleleWriter() = default;

std::vector<AlleleFields> AlleleWriter::Read(std::int32_t locusID)
{
    std::vector<AlleleFields> alleles;
    m_statements->Row.LocusID = locusID;
    for (m_statements->Select.execute(); m_statements->Select.fetch();)
        alleles.push_back(m_statements->Row.Fields);
    return alleles;
}

void AlleleWriter::Replace(std::int32_t locusID, const std::vector<AlleleFields>& alleles,
                           const std::vector<AlleleFields>& stored)
{
    AlleleRow& row = m_statements->Row;
    row.LocusID = locusID;
    if (alleles.size() < stored.size())
    {
        row.Position = static_cast<std::int32_t>(alleles.size());
        m_statements->DeleteFrom.execute(true);
    }
    std::vector<std::int32_t> different;
    for (std::size_t index = 0; index < alleles.size(); ++index)
    {
        if (index >= stored.size() || alleles[index] != stored[index])
            different.push_back(static_cast<std::int32_t>(index) + 1);
    }
    if (different.empty())
        return;
    if (m_statements->WritesMany)
    {
        m_statements->Rows = RowsOf(locusID, alleles, different);
        m_statements->Write.execute(true);
        return;
    }
    for (const std::int32_t position : different)
    {
        row.Position = position;
        row.Fields = alleles[static_cast<std::size_t>(position) - 1];
        m_statements->Write.execute(true);
    }
}

} // namespace Tamrivo
