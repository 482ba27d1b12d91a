#include "host/store/integrity.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/snapshot.h"
#include "host/loci/keys.h"
#include "host/store/history.h"
#include "host/store/state_check.h"
#include "host/store/store.h"

#include <functional>
#include <string_view>

namespace Tamrivo
{

namespace
{

/// Rows that can't be, and what they are; the query counts them.
struct Impossible
{
    std::string_view Query;
    std::string_view What;
};

constexpr Impossible Impossibles[] = {
    {"SELECT COUNT(*) FROM Allele WHERE LocusID NOT IN (SELECT LocusID FROM Locus)",
     "alleles belong to a locus that isn't there"},
    {"SELECT COUNT(*) FROM AnalysisParameterTag WHERE ParameterID NOT IN "
     "(SELECT ParameterID FROM AnalysisParameter)",
     "tags belong to an analysis parameter that isn't there"},
    {"SELECT COUNT(*) FROM (SELECT LocusID FROM Allele GROUP BY LocusID "
     "HAVING MIN(Position) <> 1 OR MAX(Position) <> COUNT(*)) AS Gaps",
     "loci have gaps in their lists of alleles"},
    {"SELECT COUNT(*) FROM Unsealed WHERE Number NOT IN (SELECT Number FROM History)",
     "records of the history were to be sealed and aren't there"},
};

/// A table whose objects are found by a key.
struct KeyedTable
{
    std::string_view Table;
    std::string_view Name;
    std::string_view Key;
};

constexpr KeyedTable KeyedTables[] = {
    {"Locus", "LocusTag", "TagKey"},
    {"AnalysisParameter", "Name", "NameKey"},
    {"Project", "Name", "NameKey"},
};

class Checker
{
public:
    explicit Checker(Store& store) : m_database(store.SharedDatabase()) {}

    std::vector<std::string> Check()
    {
        const Snapshot snapshot(m_database);
        using Part = void (Checker::*)();
        for (const Part part :
             {&Checker::CheckDatabase, &Checker::CheckRows, &Checker::CheckKeys,
              &Checker::CheckNumbers, &Checker::CheckHistory, &Checker::CheckStates})
            Try([&] { (this->*part)(); });
        return std::move(m_found);
    }

private:
    void Find(std::string what)
    {
        constexpr std::size_t most = 20;
        if (m_found.size() < most)
            m_found.push_back(std::move(what));
    }

    void Try(const std::function<void()>& part)
    {
        try
        {
            part();
        }
        catch (const Failure& failure)
        {
            const std::int32_t number = failure.Record().Number;
            if (number != StoreError::NotAStore && number != StoreError::Database)
                throw;
            Find(failure.Record().Description);
        }
    }

    long long Count(std::string_view query)
    {
        return m_database.Run("The store is not checked", [&](soci::session& session) {
            long long count = 0;
            Execute(session, std::string(query), soci::into(count));
            return count;
        });
    }

    void CheckDatabase()
    {
        for (std::string& fault : m_database.Faults())
            Find("The database itself: " + fault);
    }

    void CheckRows()
    {
        for (const Impossible& rows : Impossibles)
        {
            if (const long long count = Count(rows.Query); count > 0)
                Find(std::to_string(count) + " " + std::string(rows.What));
        }
    }

    void CheckKeys()
    {
        for (const KeyedTable& table : KeyedTables)
        {
            m_database.Run("The store is not checked", [&](soci::session& session) {
                std::string name;
                std::string key;
                soci::statement rows = (session.prepare << "SELECT " << table.Name << ", "
                                                        << table.Key << " FROM " << table.Table,
                                        soci::into(name), soci::into(key));
                for (rows.execute(); rows.fetch();)
                {
                    if (key != LookupKey(name))
                        Find(std::string(table.Table) + " \"" + name +
                             "\" is kept under the key of another name");
                }
            });
        }
    }

    void CheckNumbers()
    {
        const long long last = m_database.Run(
            "The store is not checked", [&](soci::session&) { return m_database.LastNumber(); });
        if (last < Count("SELECT MAX(ObjectNumber) FROM History"))
            Find("Objects have numbers that weren't given yet");
    }

    void CheckHistory()
    {
        const HistoryFinding finding = History(m_database).Verify();
        if (finding.Number > 0)
            Find("Record " + std::to_string(finding.Number) + " of the history: " + finding.What);
        const long long unsealed = Count("SELECT COUNT(*) FROM Unsealed");
        if (finding.Sealed + unsealed != finding.Records)
            Find("The history has " + std::to_string(finding.Records) + " records, of which " +
                 std::to_string(finding.Sealed) + " are sealed and " + std::to_string(unsealed) +
                 " are to be");
    }

    void CheckStates()
    {
        CompareStatesWithHistory(m_database, [this](std::string what) { Find(std::move(what)); });
    }

    Database& m_database;
    std::vector<std::string> m_found;
};

} // namespace

std::vector<std::string> CheckIntegrity(Store& store)
{
    return Checker(store).Check();
}

} // namespace Tamrivo
