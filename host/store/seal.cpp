#include "host/store/seal.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/transaction.h"
#include "host/store/history_record.h"

#include <string>
#include <vector>

namespace Tamrivo
{

namespace
{

/// The most records that one seal goes over.
constexpr int MostRecords = 1000;

struct LastSeal
{
    std::int32_t Number = 0;
    std::string Digest;
};

LastSeal ReadLast(soci::session& session)
{
    LastSeal last;
    Execute(session, "SELECT Number, Digest FROM Seal ORDER BY Number DESC LIMIT 1",
            soci::into(last.Number), soci::into(last.Digest));
    return last;
}

/// Takes records from those that have no seal and gives them as a seal's lines, which are empty
/// when there was none. A record that has gone meanwhile has no digest.
std::string TakeRecords(soci::session& session)
{
    std::string lines;
    std::string numbers;
    {
        long long number = 0;
        std::string digest;
        soci::statement records =
            (session.prepare << "SELECT Unsealed.Number, COALESCE(Digest, '') FROM Unsealed "
                                "LEFT JOIN History ON History.Number = Unsealed.Number "
                                "ORDER BY Unsealed.Number LIMIT "
                             << MostRecords,
             soci::into(number), soci::into(digest));
        for (records.execute(); records.fetch();)
        {
            lines += std::to_string(number) + " " + digest + "\n";
            numbers += (numbers.empty() ? "" : ",") + std::to_string(number);
        }
    }
    if (!numbers.empty())
        Execute(session, "DELETE FROM Unsealed WHERE Number IN (" + numbers + ")");
    return lines;
}

bool WriteSeal(Database& database)
{
    return database.Run("The history is not sealed", [&](soci::session& session) {
        Transaction transaction(database, Transaction::Of::Upkeep);
        if (!database.TryReserveSeals())
            return false;
        const std::string records = TakeRecords(session);
        if (records.empty())
            return false;
        const LastSeal last = ReadLast(session);
        const std::int32_t number = last.Number + 1;
        const long long writtenAt = database.Now().time_since_epoch().count();
        const std::string digest = SealDigest(last.Digest, writtenAt, records);
        Execute(session,
                "INSERT INTO Seal (Number, WrittenAt, Records, Digest) "
                "VALUES (:Number, :WrittenAt, :Records, :Digest)",
                soci::use(number), soci::use(writtenAt), soci::use(records), soci::use(digest));
        transaction.Commit();
        return true;
    });
}

} // namespace

std::string SealDigest(const std::string& previous, long long writtenAt, const std::string& records)
{
    return Sha256(previous + "\n" + std::to_string(writtenAt) + "\n" + records);
}

void WriteSeals(Database& database)
{
    while (WriteSeal(database))
    {}
    database.ForgetWitnesses();
}

void SealNowAndThen(Database& database)
{
    constexpr int many = 200;
    if (!database.IsInTransaction() && database.Witnesses() >= many)
        WriteSeals(database);
}

} // namespace Tamrivo
