#include "host/store/history_writer.h"

#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/loci/keys.h"
#include "host/store/settings.h"

namespace Tamrivo
{

struct HistoryWriter::Statements
{
    explicit Statements(soci::session& session) : Last(session), Insert(session)
    {
        Last.exchange(soci::use(Record.Kind));
        Last.exchange(soci::use(Record.ObjectNumber));
        Last.exchange(soci::into(IsReasonRequired));
        Last.exchange(soci::into(LastRevision));
        Last.exchange(soci::into(LastDigest));
        Prepare(Last, "SELECT (SELECT COUNT(*) FROM Setting WHERE " +
                          std::string(ReasonIsRequired) +
                          "), COALESCE(Revision, 0), COALESCE(Digest, '') "
                          "FROM (SELECT 1 AS One) AS One LEFT JOIN ("
                          "SELECT Revision, Digest FROM History WHERE Kind = :Kind AND "
                          "ObjectNumber = :ObjectNumber ORDER BY Revision DESC LIMIT 1) AS Last "
                          "ON 1 = 1");
        BindUse(Insert, Record);
        Prepare(Insert, InsertStatement("History", Record));
    }

    HistoryRecord Record;
    std::int32_t IsReasonRequired = 0;
    std::int32_t LastRevision = 0;
    std::string LastDigest;
    soci::statement Last;
    soci::statement Insert;
};

HistoryWriter::HistoryWriter(Database& database)
    : m_database(database),
      m_statements(database.Run("Nothing was stored", [](soci::session& session) {
          return std::make_unique<Statements>(session);
      }))
{}

HistoryWriter::~HistoryWriter() = default;

void HistoryWriter::Record(const Change& change)
{
    const ChangeNotes& notes = m_database.Notes;
    HistoryRecord& record = m_statements->Record;
    record.Kind = change.Kind;
    record.ObjectNumber = change.ObjectNumber;
    FetchOne(m_statements->Last);

    const bool isFound = change.Operation == HistoryOperation::Found;
    if (!isFound && notes.Reason.empty() && m_statements->IsReasonRequired > 0)
        throw Failure(StoreError::NoReason, "Store",
                      "The change of \"" + change.Name +
                          "\" is not stored: this store asks for the reason of "
                          "each change. Give one (--reason TEXT, in the shell: reason TEXT)");
    record.Revision = change.Revision > 0 ? change.Revision : m_statements->LastRevision + 1;
    record.WrittenAt = m_database.Now().time_since_epoch().count();
    record.Who = notes.Who;
    record.ServerUser = m_database.ServerUser();
    record.Program = notes.Program;
    record.Machine = notes.Machine;
    const bool isWritten =
        change.Operation == HistoryOperation::Made || change.Operation == HistoryOperation::Changed;
    record.Operation =
        isWritten && notes.BroughtIn ? HistoryOperation::BroughtIn : change.Operation;
    record.Name = change.Name;
    record.NameKey = LookupKey(change.Name);
    record.Reason = isFound ? "" : notes.Reason;
    record.Content = change.Content;
    record.Digest = DigestOf(record, m_statements->LastDigest);
    m_statements->Insert.execute(true);
    m_database.SetWitness("SELECT COUNT(*) FROM History WHERE Kind = '" + record.Kind +
                          "' AND ObjectNumber = " + std::to_string(record.ObjectNumber) +
                          " AND Revision = " + std::to_string(record.Revision) + " AND Digest = '" +
                          record.Digest + "'");
}

std::int32_t LastRevision(Database& database, std::string_view kind, std::int32_t objectNumber)
{
    return database.Run("The history is not read", [&](soci::session& session) {
        const std::string kindText(kind);
        std::int32_t revision = 0;
        Execute(session,
                "SELECT COALESCE(MAX(Revision), 0) FROM History WHERE Kind = :Kind AND "
                "ObjectNumber = :ObjectNumber",
                soci::use(kindText), soci::use(objectNumber), soci::into(revision));
        return revision;
    });
}

} // namespace Tamrivo
