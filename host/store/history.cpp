#include "host/store/history.h"

#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/loci/keys.h"
#include "host/store/locus_table.h"

#include <algorithm>
#include <regex>
#include <vector>

namespace Tamrivo
{

namespace
{

constexpr const char* NotRead = "The history is not read";
constexpr std::size_t RecordsOfPage = 500;

std::string SelectRecords(HistoryRecord& record)
{
    return "SELECT Number, " + ColumnNames(record) + " FROM History ";
}

void BindRecord(const Database& database, soci::statement& statement, HistoryRecord& record)
{
    RowTargets targets{&record.Number};
    record.VisitColumns([&](std::string_view, auto& value) { targets.emplace_back(&value); });
    database.BindInto(statement, targets);
}

/// The condition of a filter, with `:Key` and `:By` where the filter has a name and a person.
std::string ConditionOf(const HistoryFilter& filter)
{
    std::string condition = "Number > :After";
    const std::string ofKind =
        filter.Kind.empty() ? "" : "Kind = '" + std::string(filter.Kind) + "' AND ";
    if (!filter.Kind.empty())
        condition += " AND Kind = '" + std::string(filter.Kind) + "'";
    if (!filter.Name.empty())
        condition += " AND (Kind, ObjectNumber) IN (SELECT Kind, ObjectNumber FROM History WHERE " +
                     ofKind + "NameKey = :Key)";
    if (filter.Since)
        condition +=
            " AND WrittenAt >= " + std::to_string(filter.Since->time_since_epoch().count());
    if (!filter.By.empty())
        condition += " AND (Who = :By OR ServerUser = :ByUser)";
    return condition;
}

bool IsRevision(const std::string& at)
{
    return !at.empty() && std::ranges::all_of(at, [](char c) { return c >= '0' && c <= '9'; });
}

/// The condition on a record to be what `--at` names, or one before it.
std::string ConditionOn(const std::string& at)
{
    if (!IsRevision(at))
        return "WrittenAt <= " +
               std::to_string(MomentOf(at, OfDay::End).time_since_epoch().count());
    if (at.size() > 9)
        throw Failure(ErrorNumber::InvalidArgument, "History", at + " is too large a revision");
    return "Revision = " + at;
}

constexpr const char* HadTag = "Kind = 'Locus' AND NameKey = :Key AND NameKey <> ''";

} // namespace

void History::ForEach(const HistoryFilter& filter,
                      const std::function<void(const HistoryRecord&)>& handler)
{
    long long after = filter.After;
    std::vector<HistoryRecord> page;
    do
    {
        page = ReadFiltered(filter, after, "Number", RecordsOfPage);
        HandOver(page, handler);
        if (!page.empty())
            after = page.back().Number;
    } while (page.size() == RecordsOfPage);
}

std::vector<HistoryRecord> History::Newest(const HistoryFilter& filter, std::size_t count)
{
    return ReadFiltered(filter, filter.After, "Number DESC", count);
}

std::vector<HistoryRecord> History::ReadFiltered(const HistoryFilter& filter, long long after,
                                                 const std::string& order, std::size_t count)
{
    const std::string key = LookupKey(filter.Name);
    return ReadPage(
        ConditionOf(filter) + " ORDER BY " + order,
        [&](soci::statement& statement) {
            statement.exchange(soci::use(after));
            if (!filter.Name.empty())
                statement.exchange(soci::use(key));
            if (!filter.By.empty())
            {
                statement.exchange(soci::use(filter.By));
                statement.exchange(soci::use(filter.By));
            }
        },
        count);
}

void History::ForEachLast(std::string_view kind,
                          const std::function<void(const HistoryRecord&)>& handler)
{
    std::int32_t after = -1;
    std::vector<HistoryRecord> page;
    do
    {
        page = ReadPage(
            "Kind = '" + std::string(kind) +
                "' AND ObjectNumber > :After AND NOT EXISTS (SELECT 1 FROM History AS Later WHERE "
                "Later.Kind = History.Kind AND Later.ObjectNumber = History.ObjectNumber AND "
                "Later.Revision > History.Revision) ORDER BY ObjectNumber",
            [&](soci::statement& statement) { statement.exchange(soci::use(after)); },
            RecordsOfPage);
        HandOver(page, handler);
        if (!page.empty())
            after = page.back().ObjectNumber;
    } while (page.size() == RecordsOfPage);
}

std::vector<HistoryRecord> History::ReadPage(const std::string& condition,
                                             const std::function<void(soci::statement&)>& bind,
                                             std::size_t count)
{
    return m_database.Run(NotRead, [&](soci::session& session) {
        std::vector<HistoryRecord> records;
        HistoryRecord record;
        soci::statement statement(session);
        BindRecord(m_database, statement, record);
        bind(statement);
        Prepare(statement,
                SelectRecords(record) + "WHERE " + condition + " LIMIT " + std::to_string(count));
        for (statement.execute(); statement.fetch();)
            records.push_back(record);
        return records;
    });
}

void History::HandOver(const std::vector<HistoryRecord>& page,
                       const std::function<void(const HistoryRecord&)>& handler)
{
    for (const HistoryRecord& record : page)
    {
        m_database.Progress();
        handler(record);
    }
}

std::optional<HistoryRecord> History::ReadOne(const std::string& condition,
                                              const std::string& value)
{
    return m_database.Run(NotRead, [&](soci::session& session) {
        HistoryRecord record;
        soci::statement statement(session);
        BindRecord(m_database, statement, record);
        if (!value.empty())
            statement.exchange(soci::use(value));
        Prepare(statement, SelectRecords(record) + "WHERE " + condition + " LIMIT 1");
        return statement.execute(true) ? std::optional(record) : std::nullopt;
    });
}

std::optional<HistoryRecord> History::LastOfLocus(std::int32_t number, const std::string& condition)
{
    return ReadOne("Kind = 'Locus' AND ObjectNumber = " + std::to_string(number) + " AND " +
                       condition + " ORDER BY Revision DESC",
                   "");
}

std::optional<HistoryRecord> History::DeletedLocusRecordAt(const std::string& tag,
                                                           const std::string& at)
{
    const auto last =
        ReadOne(std::string(HadTag) +
                    " AND NOT EXISTS (SELECT 1 FROM Locus WHERE LocusID = ObjectNumber) ORDER BY "
                    "Number DESC",
                LookupKey(tag));
    return last ? LastOfLocus(last->ObjectNumber, ConditionOn(at)) : std::nullopt;
}

HistoryRecord History::LocusRecordAt(const std::string& tag, const std::string& at)
{
    const std::string key = LookupKey(tag);
    const std::string upTo = ConditionOn(at);
    if (const std::int32_t number = FindLocusNumber(m_database, tag))
    {
        if (auto record = LastOfLocus(number, upTo))
            return *record;
    }
    if (const auto last =
            ReadOne(std::string(HadTag) + " AND " + upTo + " ORDER BY Number DESC", key))
    {
        if (auto record = LastOfLocus(last->ObjectNumber, upTo))
            return *record;
    }
    if (const auto last = ReadOne(std::string(HadTag) + " ORDER BY Number DESC", key))
    {
        if (auto record = LastOfLocus(last->ObjectNumber, upTo))
            return *record;
        throw Failure(
            StoreError::NotFound, "History",
            "There was no locus \"" + tag + "\" at " + at +
                (IsRevision(at) ? ": it has had no such revision" : ": its history begins later") +
                ". tamrivo history \"" + tag + "\" lists what there is");
    }
    throw Failure(StoreError::NotFound, "History",
                  "There has never been a locus \"" + tag + "\" in this store");
}

std::optional<HistoryRecord> History::Before(const HistoryRecord& record)
{
    return ReadOne("Kind = :Kind AND ObjectNumber = " + std::to_string(record.ObjectNumber) +
                       " AND Revision < " + std::to_string(record.Revision) +
                       " ORDER BY Revision DESC",
                   record.Kind);
}

HistoryTime MomentOf(const std::string& text, OfDay ofDay)
{
    namespace chrono = std::chrono;
    static const std::regex form(
        R"((\d{4})-(\d\d)-(\d\d)(?:[T ](\d\d):(\d\d)(?::(\d\d)(?:\.(\d{1,3}))?)?)?Z?)");
    std::smatch parts;
    const bool matches = std::regex_match(text, parts, form);
    const auto part = [&](std::size_t index) {
        return parts[index].matched ? std::stoi(parts[index]) : 0;
    };
    const chrono::year_month_day day{chrono::year(matches ? part(1) : 0),
                                     chrono::month(matches ? static_cast<unsigned>(part(2)) : 0),
                                     chrono::day(matches ? static_cast<unsigned>(part(3)) : 0)};
    if (!matches || !day.ok() || part(4) > 23 || part(5) > 59 || part(6) > 59)
        throw Failure(ErrorNumber::InvalidArgument, "History",
                      "\"" + text +
                          "\" is no moment. Give a date, or a date and a time, in UTC, "
                          "such as 2026-11-23 or 2026-11-23T08:15:00");
    HistoryTime moment = chrono::sys_days(day);
    if (!parts[4].matched)
        return ofDay == OfDay::Beginning ? moment
                                         : moment + chrono::days(1) - HistoryTime::duration(1);
    const int fraction = parts[7].matched ? std::stoi((parts[7].str() + "00").substr(0, 3)) : 0;
    moment += chrono::hours(part(4)) + chrono::minutes(part(5)) + chrono::seconds(part(6)) +
              chrono::milliseconds(fraction);
    // Who names a second means what was written within it.
    if (!parts[7].matched && ofDay == OfDay::End)
        moment += (parts[6].matched ? chrono::seconds(1) : chrono::seconds(0)) -
                  (parts[6].matched ? HistoryTime::duration(1) : HistoryTime::duration(0));
    return moment;
}

} // namespace Tamrivo
