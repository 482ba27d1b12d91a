#include "host/store/locus_reader.h"

#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/snapshot.h"
#include "host/store/allele_row.h"
#include "host/store/locus_row.h"

namespace Tamrivo
{

namespace
{

constexpr std::size_t LociOfPage = 500;

} // namespace

LocusReader::LocusReader(Database& database, std::string condition)
    : m_database(database), m_condition(std::move(condition))
{}

std::optional<ReadLocusState> LocusReader::Next()
{
    if (m_next == m_page.size())
    {
        if (m_isAtEnd)
            return std::nullopt;
        m_database.Run("The loci are not read", [this](soci::session&) {
            std::optional<Snapshot> snapshot;
            if (!m_database.IsInTransaction())
                snapshot.emplace(m_database);
            ReadPage();
            if (!m_page.empty())
                ReadAllelesOfPage();
        });
        m_next = 0;
        if (m_page.empty())
            return std::nullopt;
        m_lastNumber = m_page.back().Identity.LocusID;
    }
    return std::move(m_page[m_next++]);
}

void LocusReader::ReadPage()
{
    m_database.Run("The loci are not read", [this](soci::session& session) {
        m_page.clear();
        LocusRow row;
        soci::statement statement(session);
        BindInto(m_database, statement, row);
        statement.exchange(soci::use(m_lastNumber));
        Prepare(statement, "SELECT " + ColumnNames(row) + " FROM Locus WHERE LocusID > :Last AND " +
                               m_condition + " ORDER BY LocusID LIMIT " +
                               std::to_string(LociOfPage));
        for (statement.execute(); statement.fetch();)
        {
            row.SwitchesToFields();
            m_page.push_back(
                {IdentityOf(row),
                 {std::move(row.LocusTag), row.IsCurrent != 0, std::move(row.Fields), {}}});
        }
        m_isAtEnd = m_page.size() < LociOfPage;
    });
}

void LocusReader::ReadAllelesOfPage()
{
    m_database.Run("The alleles are not read", [this](soci::session& session) {
        const std::int32_t first = m_page.front().Identity.LocusID;
        const std::int32_t last = m_page.back().Identity.LocusID;
        AlleleRow row;
        soci::statement statement(session);
        BindInto(m_database, statement, row);
        statement.exchange(soci::use(first));
        statement.exchange(soci::use(last));
        Prepare(statement, "SELECT " + ColumnNames(row) +
                               " FROM Allele WHERE LocusID BETWEEN :First AND :Last "
                               "ORDER BY LocusID, Position");
        auto locus = m_page.begin();
        for (statement.execute(); statement.fetch();)
        {
            while (locus != m_page.end() && locus->Identity.LocusID < row.LocusID)
                ++locus;
            // Loci that don't meet the condition lie between those that do.
            if (locus != m_page.end() && locus->Identity.LocusID == row.LocusID)
                locus->State.Alleles.push_back(std::move(row.Fields));
        }
    });
}

} // namespace Tamrivo
