#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/store/history.h"
#include "host/store/seal.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace Tamrivo
{

namespace
{

constexpr const char* NotChecked = "The history is not checked";
constexpr std::size_t ChainPage = 500;

/// Keeps the first fault by number.
void Note(HistoryFinding& finding, long long number, const std::string& what)
{
    if (finding.Number == 0 || number < finding.Number)
    {
        finding.Number = number;
        finding.What = what;
    }
}

/// Walks all chains: the records in the order of objects and revisions, a page at a time.
void CheckChains(Database& database, HistoryFinding& finding)
{
    HistoryRecord last;
    std::string lastComputed;
    bool isFirst = true;
    std::vector<HistoryRecord> page;
    do
    {
        database.Run(NotChecked, [&](soci::session& session) {
            page.clear();
            HistoryRecord record;
            RowTargets targets{&record.Number};
            record.VisitColumns(
                [&](std::string_view, auto& value) { targets.emplace_back(&value); });
            soci::statement statement(session);
            database.BindInto(statement, targets);
            statement.exchange(soci::use(last.Kind));
            statement.exchange(soci::use(last.ObjectNumber));
            statement.exchange(soci::use(last.Revision));
            Prepare(statement, "SELECT Number, " + ColumnNames(record) +
                                   " FROM History WHERE (Kind, ObjectNumber, Revision) > "
                                   "(:Kind, :ObjectNumber, :Revision) "
                                   "ORDER BY Kind, ObjectNumber, Revision LIMIT " +
                                   std::to_string(ChainPage));
            for (statement.execute(); statement.fetch();)
                page.push_back(record);
        });
        for (HistoryRecord& record : page)
        {
            database.Progress();
            ++finding.Records;
            const bool continues =
                !isFirst && record.Kind == last.Kind && record.ObjectNumber == last.ObjectNumber;
            if (record.Digest != DigestOf(record, continues ? last.Digest : ""))
                Note(finding, record.Number,
                     continues && record.Revision != last.Revision + 1
                         ? "it doesn't follow the record before of the same object"
                         : "it isn't as it was written");
            isFirst = false;
            last = std::move(record);
        }
    } while (page.size() == ChainPage);
}

/// The digests of the records from one number to another.
std::map<long long, std::string> Digests(Database& database, long long from, long long to)
{
    return database.Run(NotChecked, [&](soci::session& session) {
        std::map<long long, std::string> digests;
        long long number = 0;
        std::string digest;
        soci::statement rows =
            (session.prepare << "SELECT Number, Digest FROM History WHERE Number BETWEEN :A AND :B",
             soci::use(from), soci::use(to), soci::into(number), soci::into(digest));
        for (rows.execute(); rows.fetch();)
            digests[number] = digest;
        return digests;
    });
}

/// The lines of a seal.
std::vector<std::pair<long long, std::string>> SealedRecords(const std::string& lines)
{
    std::vector<std::pair<long long, std::string>> records;
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);)
    {
        std::istringstream words(line);
        long long number = 0;
        std::string digest;
        words >> number >> digest;
        records.emplace_back(number, digest);
    }
    return records;
}

struct Seal
{
    std::int32_t Number = 0;
    long long WrittenAt = 0;
    std::string Records;
    std::string Digest;
};

Seal ReadSeal(Database& database, std::int32_t after)
{
    return database.Run(NotChecked, [&](soci::session& session) {
        Seal seal;
        Execute(session,
                "SELECT Number, WrittenAt, Records, Digest FROM Seal WHERE Number > :After "
                "ORDER BY Number LIMIT 1",
                soci::use(after), soci::into(seal.Number), soci::into(seal.WrittenAt),
                soci::into(seal.Records), soci::into(seal.Digest));
        return seal;
    });
}

void CheckSeals(Database& database, HistoryFinding& finding)
{
    Seal last;
    for (Seal seal = ReadSeal(database, 0); seal.Number > 0; seal = ReadSeal(database, last.Number))
    {
        database.Progress();
        ++finding.Seals;
        const auto sealed = SealedRecords(seal.Records);
        finding.Sealed += static_cast<long long>(sealed.size());
        if (seal.Number != last.Number + 1 ||
            seal.Digest != SealDigest(last.Digest, seal.WrittenAt, seal.Records))
            Note(finding, sealed.empty() ? 1 : sealed.front().first,
                 "its seal, number " + std::to_string(seal.Number) + ", isn't as it was written");
        if (!sealed.empty())
        {
            const auto [first, end] = std::ranges::minmax(sealed);
            const auto digests = Digests(database, first.first, end.first);
            for (const auto& [number, digest] : sealed)
            {
                const auto found = digests.find(number);
                if (found == digests.end())
                    Note(finding, number, "it was sealed and is gone");
                else if (found->second != digest)
                    Note(finding, number, "it was changed after it was sealed");
            }
        }
        last = std::move(seal);
    }
    finding.LastSeal = last.Digest;
}

} // namespace

HistoryFinding History::Verify()
{
    HistoryFinding finding;
    CheckChains(m_database, finding);
    CheckSeals(m_database, finding);
    return finding;
}

} // namespace Tamrivo
