#include "platform/store/locus_table.h"

#include "platform/store/columns.h"
#include "platform/store/database.h"
#include "platform/store/keys.h"
#include "platform/store/locus_row.h"
#include "platform/store/transaction.h"

namespace Tamrivo
{

namespace
{

/// Reads the loci that meet a condition, in which `:Value` stands for the value.
template <class Value>
std::vector<std::shared_ptr<StoredLocus>> ReadLoci(const std::shared_ptr<Database>& database,
                                                   const std::string& condition, Value value)
{
    return database->Run("The loci are not read", [&](soci::session& session) {
        std::vector<std::shared_ptr<StoredLocus>> loci;
        LocusRow row;
        soci::statement statement(session);
        BindInto(*database, statement, row);
        statement.exchange(soci::use(value));
        Prepare(statement, "SELECT " + ColumnNames(row) + " FROM Locus WHERE " + condition +
                               " ORDER BY LocusID");
        for (statement.execute(); statement.fetch();)
        {
            database->Progress();
            row.SwitchesToFields();
            loci.push_back(std::make_shared<StoredLocus>(database, row));
        }
        return loci;
    });
}

// The second term lets the partial index be used, and tells that the empty tag names no locus.
constexpr const char* HasTagKey = "TagKey = :Value AND TagKey <> ''";

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

std::string NotStored(const StoredLocus& locus)
{
    return "The locus \"" + locus.LocusTag() + "\" is not stored";
}

} // namespace

std::vector<std::shared_ptr<StoredLocus>> ReadCurrentLoci(const std::shared_ptr<Database>& database)
{
    return ReadLoci(database, "IsCurrent = :Value", 1);
}

std::shared_ptr<StoredLocus> ReadLocus(const std::shared_ptr<Database>& database,
                                       const std::string& tag)
{
    const auto loci = ReadLoci(database, HasTagKey, LookupKey(tag));
    return loci.empty() ? nullptr : loci.front();
}

std::unordered_set<std::string> ReadTagKeys(Database& database)
{
    return database.Run("The tags are not read", [](soci::session& session) {
        std::unordered_set<std::string> keys;
        std::string key;
        soci::statement statement =
            (session.prepare << "SELECT TagKey FROM Locus WHERE TagKey <> ''", soci::into(key));
        for (statement.execute(); statement.fetch();)
            keys.insert(key);
        return keys;
    });
}

std::int32_t FindLocusNumber(Database& database, const std::string& tag)
{
    return database.Run("The locus \"" + tag + "\" is not looked up", [&](soci::session& session) {
        const std::string key = LookupKey(tag);
        std::int32_t number = 0;
        session << "SELECT LocusID FROM Locus WHERE " << HasTagKey, soci::use(key),
            soci::into(number);
        return number;
    });
}

void RemoveLocus(Database& database, const std::string& tag)
{
    const std::string consequence = "The locus \"" + tag + "\" is not deleted";
    database.Run(consequence, [&](soci::session& session) {
        Transaction transaction(database);
        const std::int32_t number = FindLocusNumber(database, tag);
        if (number == 0)
            throw Failure(StoreError::NotFound, "Store", "There is no locus \"" + tag + "\"");
        session << "DELETE FROM Allele WHERE LocusID = :LocusID", soci::use(number);
        session << "DELETE FROM Locus WHERE LocusID = :LocusID", soci::use(number);
        transaction.Commit();
    });
}

void RequireUnchanged(soci::session& session, const StoredLocus& locus,
                      const std::string& consequence)
{
    const std::int32_t number = locus.LocusID();
    std::int32_t revision = 0;
    session << "SELECT Revision FROM Locus WHERE LocusID = :LocusID", soci::use(number),
        soci::into(revision);
    if (revision == locus.Identity().Revision)
        return;
    throw Failure(StoreError::Conflict, "Store",
                  consequence + ": someone else has " + (revision > 0 ? "changed" : "deleted") +
                      " it since it was read. The store is as they left it, and what you entered "
                      "is still here; open the locus anew, or store yours under another tag");
}

struct LocusWriter::Statements
{
    Statements(Database& database, soci::session& session)
        : Insert(session), Update(session), Alleles(database)
    {
        BindUse(Insert, Row);
        Prepare(Insert, InsertStatement("Locus", Row));
        BindUse(Update, Row);
        Update.exchange(soci::use(Row.LocusID));
        Update.exchange(soci::use(ReadRevision));
        Prepare(Update, "UPDATE Locus SET " + Assignments(Row) +
                            " WHERE LocusID = :ReadLocusID AND Revision = :ReadRevision");
    }

    LocusRow Row;
    std::int32_t ReadRevision = 0;
    soci::statement Insert;
    soci::statement Update;
    AlleleWriter Alleles;
};

LocusWriter::LocusWriter(Database& database) : m_database(database) {}

LocusWriter::~LocusWriter() = default;

void LocusWriter::Save(StoredLocus& locus)
{
    m_database.Run(NotStored(locus), [&](soci::session& session) {
        if (!m_statements || m_preparedOn != m_database.ConnectionNumber())
        {
            m_statements = std::make_unique<Statements>(m_database, session);
            m_preparedOn = m_database.ConnectionNumber();
        }
        Transaction transaction(m_database);
        LocusIdentity identity = locus.Identity();
        if (identity.LocusID == 0)
            identity.LocusID = m_database.NextNumber();
        ++identity.Revision;
        identity.DateLastModified =
            std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
        Write(session, locus, identity);
        transaction.Commit();
        locus.SetIdentity(identity);
    });
}

void LocusWriter::Write(soci::session& session, const StoredLocus& locus,
                        const LocusIdentity& identity)
{
    LocusRow& row = m_statements->Row;
    row.LocusID = identity.LocusID;
    row.Revision = identity.Revision;
    row.LocusTag = locus.LocusTag();
    row.TagKey = locus.TagKey();
    row.IsCurrent = locus.IsCurrent() ? 1 : 0;
    row.DateLastModified = identity.DateLastModified->time_since_epoch().count();
    row.Fields = locus;
    row.FieldsToSwitches();

    const bool stored = locus.LocusID() > 0;
    if (stored)
    {
        m_statements->ReadRevision = locus.Identity().Revision;
        m_statements->Update.execute(true);
        if (m_statements->Update.get_affected_rows() == 0)
            RequireUnchanged(session, locus, NotStored(locus));
    }
    else
    {
        m_statements->Insert.execute(true);
    }

    if (const ObjectList* alleles = locus.LoadedAlleles())
    {
        if (stored)
            m_statements->Alleles.Remove(identity.LocusID);
        m_statements->Alleles.Insert(identity.LocusID, *alleles);
    }
}

} // namespace Tamrivo
