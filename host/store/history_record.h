#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// What an object of the history is: the values of `HistoryRecord::Kind`.
namespace HistoryKind
{
inline constexpr std::string_view Locus = "Locus";
inline constexpr std::string_view Parameter = "AnalysisParameter";
inline constexpr std::string_view Project = "Project";
inline constexpr std::string_view Dyes = "Dyes"; ///< All of them are one object.
inline constexpr std::string_view Setting = "Setting";
} // namespace HistoryKind

/// What was done: the values of `HistoryRecord::Operation`.
namespace HistoryOperation
{
inline constexpr std::string_view Made = "made";
inline constexpr std::string_view Changed = "changed";
inline constexpr std::string_view Deleted = "deleted";
inline constexpr std::string_view BroughtIn = "brought in";
inline constexpr std::string_view Restored = "restored";
/// The object was there when the store got a history.
inline constexpr std::string_view Found = "found";
} // namespace HistoryOperation

/// A moment to the millisecond, UTC.
using HistoryTime = std::chrono::sys_time<std::chrono::milliseconds>;

/// A change of one object, with the whole state after it. The state before stands in the record
/// before.
struct HistoryRecord
{
    long long Number = 0; ///< Given by the database; goes up, with gaps.
    std::string Kind;
    std::int32_t ObjectNumber = 0;
    std::int32_t Revision = 0; ///< Of the object; goes up by one with each record.
    long long WrittenAt = 0;   ///< Milliseconds since 1970, UTC.
    std::string Who;
    std::string ServerUser;
    std::string Program;
    std::string Machine;
    std::string Operation;
    std::string Name;
    std::string NameKey;
    std::string Reason;
    std::string Content; ///< JSON; empty after a deletion.
    std::string Digest;  ///< SHA-256 of all this and of the object's digest before, as hex.

    HistoryTime When() const { return HistoryTime(std::chrono::milliseconds(WrittenAt)); }

    /// Calls `visit(name, value)` for each column but the number, in one order always.
    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        VisitColumnsOf(*this, visit);
    }
    template <class Visit>
    void VisitColumns(Visit&& visit) const
    {
        VisitColumnsOf(*this, visit);
    }

private:
    template <class Record, class Visit>
    static void VisitColumnsOf(Record& record, Visit& visit)
    {
        visit("Kind", record.Kind);
        visit("ObjectNumber", record.ObjectNumber);
        visit("Revision", record.Revision);
        visit("WrittenAt", record.WrittenAt);
        visit("Who", record.Who);
        visit("ServerUser", record.ServerUser);
        visit("Program", record.Program);
        visit("Machine", record.Machine);
        visit("Operation", record.Operation);
        visit("Name", record.Name);
        visit("NameKey", record.NameKey);
        visit("Reason", record.Reason);
        visit("Content", record.Content);
        visit("Digest", record.Digest);
    }
};

/// The digest that the record must have.
/// @param previous the digest of the object's record before; empty for the first one
std::string DigestOf(const HistoryRecord& record, const std::string& previous);

/// SHA-256 of the text, as 64 hexadecimal digits.
std::string Sha256(std::string_view text);

/// The moment as ISO 8601 in UTC, to the millisecond.
std::string IsoTime(HistoryTime moment);

} // namespace Tamrivo
