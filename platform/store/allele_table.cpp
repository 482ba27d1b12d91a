#include "platform/store/allele_table.h"

#include "platform/store/columns.h"
#include "platform/store/database.h"
#include "platform/store/locus_table.h"
#include "platform/store/stored_locus.h"

namespace Tamrivo
{

namespace
{

/// A row of the table Allele, as statements are bound to it.
struct AlleleRow
{
    std::int32_t LocusID = 0;
    std::int32_t Position = 0;
    AlleleFields Fields;

    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("LocusID", LocusID);
        visit("Position", Position);
        visit("AlleleReal1", Fields.AlleleReal1);
        visit("AlleleReal2", Fields.AlleleReal2);
        visit("AlleleReal3", Fields.AlleleReal3);
        visit("AlleleReal4", Fields.AlleleReal4);
        visit("AlleleReal5", Fields.AlleleReal5);
        visit("AlleleText1", Fields.AlleleText1);
        visit("AlleleText2", Fields.AlleleText2);
        visit("AlleleText3", Fields.AlleleText3);
        visit("AlleleInt1", Fields.AlleleInt1);
        visit("AlleleInt2", Fields.AlleleInt2);
        visit("AlleleInt3", Fields.AlleleInt3);
    }
};

} // namespace

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

struct AlleleWriter::Statements
{
    explicit Statements(soci::session& session) : Delete(session), Insert(session)
    {
        Delete.exchange(soci::use(Row.LocusID));
        Prepare(Delete, "DELETE FROM Allele WHERE LocusID = :LocusID");
        BindUse(Insert, Row);
        Prepare(Insert, InsertStatement("Allele", Row));
    }

    AlleleRow Row;
    soci::statement Delete;
    soci::statement Insert;
};

AlleleWriter::AlleleWriter(Database& database)
    : m_statements(database.Run("Nothing was stored", [](soci::session& session) {
          return std::make_unique<Statements>(session);
      }))
{}

AlleleWriter::~AlleleWriter() = default;

void AlleleWriter::Remove(std::int32_t locusID)
{
    m_statements->Row.LocusID = locusID;
    m_statements->Delete.execute(true);
}

void AlleleWriter::Insert(std::int32_t locusID, const ObjectList& alleles)
{
    AlleleRow& row = m_statements->Row;
    row.LocusID = locusID;
    row.Position = 0;
    for (const auto& member : alleles.Members())
    {
        ++row.Position;
        row.Fields = *As<Allele>(member);
        m_statements->Insert.execute(true);
    }
}

} // namespace Tamrivo
