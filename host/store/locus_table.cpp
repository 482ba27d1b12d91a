#include "host/store/locus_table.h"

#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/loci/keys.h"
#include "host/store/locus_row.h"

namespace Tamrivo
{

namespace
{

/// Reads the loci that meet a condition, in which `:Value` stands for the value.
/// @param limit what follows the query's order
template <class Value>
std::vector<std::shared_ptr<StoredLocus>> ReadLoci(const std::shared_ptr<Database>& database,
                                                   const std::string& condition, Value value,
                                                   const std::string& limit = {})
{
    return database->Run("The loci are not read", [&](soci::session& session) {
        std::vector<std::shared_ptr<StoredLocus>> loci;
        LocusRow row;
        soci::statement statement(session);
        BindInto(*database, statement, row);
        statement.exchange(soci::use(value));
        Prepare(statement, "SELECT " + ColumnNames(row) + " FROM Locus WHERE " + condition +
                               " ORDER BY LocusID" + limit);
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

} // namespace

void RequireRevision(std::int32_t revision, const StoredLocus& locus,
                     const std::string& consequence)
{
    if (revision == locus.Identity().Revision)
        return;
    throw Failure(StoreError::Conflict, "Store",
                  consequence + ": someone else has " + (revision > 0 ? "changed" : "deleted") +
                      " it since it was read. The store is as they left it, and what you entered "
                      "is still here; open the locus anew, or store yours under another tag");
}

std::vector<std::shared_ptr<StoredLocus>> ReadCurrentLoci(const std::shared_ptr<Database>& database)
{
    return ReadLoci(database, "IsCurrent = :Value", 1);
}

std::vector<std::shared_ptr<StoredLocus>> ReadCurrentLoci(const std::shared_ptr<Database>& database,
                                                          std::int32_t after, std::size_t most)
{
    return ReadLoci(database, "IsCurrent = 1 AND LocusID > :Value", after,
                    " LIMIT " + std::to_string(most));
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

std::unordered_set<std::int32_t> ReadTagIDs(Database& database)
{
    return database.Run("The numbers of the tags are not read", [](soci::session& session) {
        std::unordered_set<std::int32_t> numbers;
        std::int32_t number = 0;
        soci::statement statement =
            (session.prepare << "SELECT LocusID FROM Locus", soci::into(number));
        for (statement.execute(); statement.fetch();)
            numbers.insert(number);
        return numbers;
    });
}

std::int32_t FindLocusNumber(Database& database, const std::string& tag)
{
    return database.Run("The locus \"" + tag + "\" is not looked up", [&](soci::session& session) {
        const std::string key = LookupKey(tag);
        std::int32_t number = 0;
        Execute(session, std::string("SELECT LocusID FROM Locus WHERE ") + HasTagKey,
                soci::use(key), soci::into(number));
        return number;
    });
}

void RequireUnchanged(soci::session& session, const StoredLocus& locus,
                      const std::string& consequence)
{
    const std::int32_t number = locus.LocusID();
    std::int32_t revision = 0;
    Execute(session, "SELECT Revision FROM Locus WHERE LocusID = :LocusID", soci::use(number),
            soci::into(revision));
    RequireRevision(revision, locus, consequence);
}

} // namespace Tamrivo
