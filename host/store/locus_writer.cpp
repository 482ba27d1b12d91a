#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/transaction.h"
#include "host/loci/keys.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"
#include "host/store/locus_row.h"
#include "host/store/locus_table.h"
#include "host/store/seal.h"

namespace Tamrivo
{

namespace
{

/// "A = :A, B = :B" for all columns.
std::string Assignments(LocusRow& row)
{
    std::string assignments;
    row.VisitColumns([&](std::string_view name, auto&) {
        assignments.append(assignments.empty() ? "" : ", ").append(name).append(" = :");
        assignments.append(name);
    });
    return assignments;
}

std::string NotStored(const std::string& tag)
{
    return "The locus \"" + tag + "\" is not stored";
}

Date DateOf(HistoryTime moment)
{
    return std::chrono::floor<std::chrono::seconds>(moment);
}

/// Gives a saved locus the identity that it has now back when the change is undone with the work
/// around it, and notes the one that it would have where nobody knows what became of it.
void GoBackIfUndone(Database& database, StoredLocus& locus, const LocusIdentity& saved)
{
    database.IfUndone([weak = locus.weak_from_this(), before = locus.Identity(),
                       saved](const std::string& witness) {
        const auto undone = weak.lock();
        if (!undone)
            return;
        undone->SetIdentity(before);
        if (!witness.empty())
            undone->SetDoubt({saved, witness});
    });
}

} // namespace

struct LocusWriter::Statements
{
    Statements(Database& database, soci::session& session)
        : Insert(session),
          Update(session),
          Lock(session),
          Delete(session),
          Alleles(database),
          History(database)
    {
        BindUse(Insert, Row);
        Prepare(Insert, InsertStatement("Locus", Row));
        BindUse(Update, Row);
        Update.exchange(soci::use(Row.LocusID));
        Prepare(Update, "UPDATE Locus SET " + Assignments(Row) + " WHERE LocusID = :StoredLocusID");
        BindInto(database, Lock, Stored);
        Lock.exchange(soci::use(LocusID));
        Prepare(Lock, "SELECT " + ColumnNames(Stored) + " FROM Locus WHERE LocusID = :LocusID" +
                          std::string(database.Backend().RowLock()));
        Delete.exchange(soci::use(LocusID));
        Prepare(Delete, "DELETE FROM Locus WHERE LocusID = :LocusID");
    }

    LocusRow Row;    ///< To be written.
    LocusRow Stored; ///< As it was read.
    std::int32_t LocusID = 0;
    soci::statement Insert;
    soci::statement Update;
    soci::statement Lock;
    soci::statement Delete;
    AlleleWriter Alleles;
    HistoryWriter History;
};

LocusWriter::LocusWriter(Database& database)
    : m_database(database),
      m_reconnected(database.Reconnected.Connect([this] { m_statements.reset(); }))
{}

LocusWriter::~LocusWriter() = default;

LocusWriter::Statements& LocusWriter::Prepared(soci::session& session)
{
    if (!m_statements)
        m_statements = std::make_unique<Statements>(m_database, session);
    return *m_statements;
}

void LocusWriter::Save(StoredLocus& locus)
{
    const std::string consequence = NotStored(locus.LocusTag());
    locus.SettleDoubt(m_database);
    LocusIdentity identity = locus.Identity();
    m_database.Run(consequence, [&](soci::session& session) {
        Prepared(session);
        Transaction transaction(m_database);
        LocusState state = StateOf(locus);
        identity = locus.Identity();
        ++identity.Revision;
        identity.DateLastModified = DateOf(m_database.Now());
        if (locus.LocusID() == 0)
        {
            identity.LocusID = m_database.NextNumber();
            Insert(identity, state, HistoryOperation::Made);
        }
        else
        {
            const auto stored = Lock(locus.LocusID());
            RequireRevision(stored ? m_statements->Stored.Revision : 0, locus, consequence);
            if (!locus.LoadedAlleles())
                state.Alleles = stored->Alleles;
            KeepStoredPrecision(state, *stored);
            if (state == *stored)
            {
                identity = locus.Identity();
                return;
            }
            Update(identity, state, *stored, HistoryOperation::Changed);
        }
        GoBackIfUndone(m_database, locus, identity);
        transaction.Commit();
    });
    locus.SetIdentity(identity);
    SealNowAndThen(m_database);
}

void LocusWriter::Remove(const std::string& tag)
{
    m_database.Run("The locus \"" + tag + "\" is not deleted", [&](soci::session& session) {
        Prepared(session);
        Transaction transaction(m_database);
        const auto stored = Lock(FindLocusNumber(m_database, tag));
        if (!stored)
            throw Failure(StoreError::NotFound, "Store", "There is no locus \"" + tag + "\"");
        const LocusRow& row = m_statements->Stored;
        m_statements->Alleles.Replace(row.LocusID, {}, stored->Alleles);
        m_statements->Delete.execute(true);
        m_statements->History.Record({.Kind = HistoryKind::Locus,
                                      .ObjectNumber = row.LocusID,
                                      .Operation = HistoryOperation::Deleted,
                                      .Name = stored->Tag,
                                      .Content = {},
                                      .Revision = row.Revision + 1});
        transaction.Commit();
    });
}

void LocusWriter::Restore(std::int32_t locusID, const LocusState& state)
{
    m_database.Run(NotStored(state.Tag), [&](soci::session& session) {
        Prepared(session);
        Transaction transaction(m_database);
        // A deleted locus has no row that could be locked.
        m_database.ReserveObject(locusID);
        const auto stored = Lock(locusID);
        const std::int32_t last = stored ? m_statements->Stored.Revision
                                         : LastRevision(m_database, HistoryKind::Locus, locusID);
        const LocusIdentity identity{locusID, last + 1, DateOf(m_database.Now())};
        if (stored)
            Update(identity, state, *stored, HistoryOperation::Restored);
        else
            Insert(identity, state, HistoryOperation::Restored);
        transaction.Commit();
    });
}

std::optional<LocusState> LocusWriter::Lock(std::int32_t locusID)
{
    LocusRow& row = m_statements->Stored;
    m_statements->LocusID = locusID;
    if (!FetchOne(m_statements->Lock))
        return std::nullopt;
    row.SwitchesToFields();
    return LocusState{row.LocusTag, row.IsCurrent != 0, row.Fields,
                      m_statements->Alleles.Read(locusID)};
}

void LocusWriter::Insert(const LocusIdentity& identity, const LocusState& state,
                         std::string_view operation)
{
    FillRow(identity, state);
    m_statements->Insert.execute(true);
    m_statements->Alleles.Replace(identity.LocusID, state.Alleles, {});
    Record(identity, state, operation);
}

void LocusWriter::Update(const LocusIdentity& identity, const LocusState& state,
                         const LocusState& stored, std::string_view operation)
{
    FillRow(identity, state);
    m_statements->Update.execute(true);
    m_statements->Alleles.Replace(identity.LocusID, state.Alleles, stored.Alleles);
    Record(identity, state, operation);
}

void LocusWriter::FillRow(const LocusIdentity& identity, const LocusState& state)
{
    LocusRow& row = m_statements->Row;
    row.LocusID = identity.LocusID;
    row.Revision = identity.Revision;
    row.LocusTag = state.Tag;
    row.TagKey = LookupKey(state.Tag);
    row.IsCurrent = state.IsCurrent ? 1 : 0;
    row.DateLastModified = identity.DateLastModified->time_since_epoch().count();
    row.Fields = state.Fields;
    row.FieldsToSwitches();
}

void LocusWriter::Record(const LocusIdentity& identity, const LocusState& state,
                         std::string_view operation)
{
    m_statements->History.Record({.Kind = HistoryKind::Locus,
                                  .ObjectNumber = identity.LocusID,
                                  .Operation = operation,
                                  .Name = state.Tag,
                                  .Content = ContentOf(state),
                                  .Revision = identity.Revision});
}

} // namespace Tamrivo
