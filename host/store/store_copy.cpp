#include "host/store/store_copy.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/snapshot.h"
#include "host/database/transaction.h"
#include "host/store/history_record.h"
#include "host/store/json_text.h"
#include "host/store/store.h"
#include "host/store/store_tables.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

void RequireOther(Store& from, Store& to)
{
    if (from.SharedDatabase().Place() == to.SharedDatabase().Place())
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "Nothing was copied: \"" + to.Name() +
                          "\" is the store itself. Name another one to copy to");
}

void RequireEmpty(soci::session& session, const std::string& name)
{
    int objects = 0;
    Execute(session,
            "SELECT (SELECT COUNT(*) FROM Locus) + (SELECT COUNT(*) FROM AnalysisParameter) + "
            "(SELECT COUNT(*) FROM Project WHERE ProjectID > 1) + "
            "(SELECT COUNT(*) FROM History WHERE Operation <> 'found')",
            soci::into(objects));
    if (objects > 0)
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "Nothing was copied: the store \"" + name +
                          "\" isn't empty. Name one that isn't there yet");
}

void CopyTable(Database& source, Database& target, soci::session& writing,
               const TableOfStore& table)
{
    // The history that was just copied has noted itself.
    Execute(writing, "DELETE FROM " + table.Name);
    RowOfStore row(table);
    RowWriter writer(target, writing, row);
    ForEachRow(source, row, [&] { writer.Write(); });
    writer.Flush();
}

/// Digest of all rows of a table.
std::string DigestOfTable(Database& database, const TableOfStore& table)
{
    constexpr std::size_t much = 1 << 20;
    std::string sum;
    JsonText rows;
    RowOfStore row(table);
    ForEachRow(database, row, [&] {
        row.VisitColumns([&](const std::string&, const auto& value) { rows.Value(value); });
        if (rows.Text().size() > much)
        {
            sum = Sha256(sum + rows.Text());
            rows.Clear();
        }
    });
    return Sha256(sum + rows.Text());
}

} // namespace

void CopyStore(Store& from, Store& to)
{
    RequireOther(from, to);
    Database& source = from.SharedDatabase();
    Database& target = to.SharedDatabase();
    const Snapshot snapshot(source);
    target.Run("Nothing was copied", [&](soci::session& writing) {
        Transaction transaction(target);
        RequireEmpty(writing, to.Name());
        const auto tables = TablesOfStore();
        std::for_each(tables.rbegin(), tables.rend(), [&](const TableOfStore& table) {
            Execute(writing, "DELETE FROM " + table.Name);
        });
        for (const TableOfStore& table : tables)
            CopyTable(source, target, writing, table);
        target.SetLastNumber(source.LastNumber());
        transaction.Commit();
        // What isn't sealed yet is as little sealed in the copy.
        target.ForgetWitnesses();
    });
}

std::string FirstDifference(Store& one, Store& other)
{
    const Snapshot ofOne(one.SharedDatabase());
    const Snapshot ofOther(other.SharedDatabase());
    for (const TableOfStore& table : TablesOfStore())
    {
        if (DigestOfTable(one.SharedDatabase(), table) !=
            DigestOfTable(other.SharedDatabase(), table))
            return table.Name;
    }
    return {};
}

} // namespace Tamrivo
