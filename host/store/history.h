#pragma once

#include "host/store/history_record.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace soci
{
class statement;
}

namespace Tamrivo
{

class Database;

/// Which records are asked for. Empty parts don't count.
struct HistoryFilter
{
    std::string_view Kind; ///< A `HistoryKind`.
    std::string Name;      ///< Of an object that has the name, or once had it.
    std::optional<HistoryTime> Since;
    std::string By;      ///< Login name, or the server's user.
    long long After = 0; ///< Records with a greater number.
};

/// What a check of the history has found.
struct HistoryFinding
{
    long long Records = 0;
    long long Seals = 0;
    long long Sealed = 0; ///< Records that have a seal.
    std::string LastSeal; ///< Its digest; empty when there is none.
    /// The first record that isn't as it was written, or that is gone; 0 when all is well.
    long long Number = 0;
    std::string What; ///< What is wrong with it.
};

/// The history of a store. Every member may raise a failure of the store.
class History
{
public:
    explicit History(Database& database) : m_database(database) {}

    /// Calls the handler with each record that passes the filter, in the order of their numbers.
    /// The memory it takes doesn't grow with the history.
    void ForEach(const HistoryFilter& filter,
                 const std::function<void(const HistoryRecord&)>& handler);

    /// The last records that pass the filter, the newest first, at most so many.
    std::vector<HistoryRecord> Newest(const HistoryFilter& filter, std::size_t count);

    /// Calls the handler with the last record of each object of a kind, in the order of their
    /// numbers.
    void ForEachLast(std::string_view kind,
                     const std::function<void(const HistoryRecord&)>& handler);

    /// The record of a locus that a person means.
    /// @param tag of the locus, or that it once had; where several loci had it, that of the one
    ///     which has it now, else the last one
    /// @param at a revision of the locus, in digits alone, or a moment as `MomentOf` reads it, for
    ///     the last record up to that moment
    /// Raises `StoreError::NotFound`, `ErrorNumber::InvalidArgument`.
    HistoryRecord LocusRecordAt(const std::string& tag, const std::string& at);

    /// The same of the last deleted locus that had the tag, whoever has it now; none without one.
    std::optional<HistoryRecord> DeletedLocusRecordAt(const std::string& tag,
                                                      const std::string& at);

    /// The record of the same object before this one.
    std::optional<HistoryRecord> Before(const HistoryRecord& record);

    /// Recomputes all digests. Raises a failure of the store alone; what is wrong with the history
    /// is a finding.
    HistoryFinding Verify();

private:
    /// The first records that meet a condition, for whose values `bind` sees.
    std::vector<HistoryRecord> ReadPage(const std::string& condition,
                                        const std::function<void(soci::statement&)>& bind,
                                        std::size_t count);
    std::vector<HistoryRecord> ReadFiltered(const HistoryFilter& filter, long long after,
                                            const std::string& order, std::size_t count);
    void HandOver(const std::vector<HistoryRecord>& page,
                  const std::function<void(const HistoryRecord&)>& handler);
    std::optional<HistoryRecord> ReadOne(const std::string& condition, const std::string& value);
    /// The last record of a locus that meets a condition.
    std::optional<HistoryRecord> LastOfLocus(std::int32_t number, const std::string& condition);

    Database& m_database;
};

/// Which end of a day a date without a time means.
enum class OfDay
{
    Beginning,
    End,
};

/// The moment in a text such as "2026-11-23", "2026-11-23T08:15" or "2026-11-23 08:15:30.250Z",
/// UTC. Raises `ErrorNumber::InvalidArgument`.
HistoryTime MomentOf(const std::string& text, OfDay ofDay);

} // namespace Tamrivo
