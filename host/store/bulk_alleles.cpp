#include "host/store/bulk_alleles.h"

#include "host/database/columns.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/store/allele_row.h"
#include "host/store/locus_reader.h"
#include "host/store/locus_table.h"
#include "host/store/store.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace Tamrivo
{

namespace
{

constexpr const char* NotLoaded = "The alleles are not loaded";

/// " WHERE LocusID IN (1,2,3)"
std::string ConditionOn(const std::vector<StoredLocus*>& loci)
{
    std::string condition = " WHERE LocusID IN (";
    for (const StoredLocus* locus : loci)
        condition.append(std::to_string(locus->LocusID())).append(",");
    condition.back() = ')';
    return condition;
}

std::unordered_map<std::int32_t, std::vector<AlleleFields>> ReadRows(Database& database,
                                                                     soci::session& session,
                                                                     const std::string& condition)
{
    std::unordered_map<std::int32_t, std::vector<AlleleFields>> alleles;
    AlleleRow row;
    soci::statement statement(session);
    BindInto(database, statement, row);
    Prepare(statement, "SELECT " + ColumnNames(row) + " FROM Allele" + condition +
                           " ORDER BY LocusID, Position");
    std::vector<AlleleFields>* ofLocus = nullptr;
    std::int32_t number = 0;
    for (statement.execute(); statement.fetch();)
    {
        if (!ofLocus || number != row.LocusID)
        {
            number = row.LocusID;
            ofLocus = &alleles[number];
        }
        ofLocus->push_back(std::move(row.Fields));
    }
    return alleles;
}

std::unordered_map<std::int32_t, std::int32_t> ReadRevisions(soci::session& session,
                                                             const std::string& condition)
{
    std::unordered_map<std::int32_t, std::int32_t> revisions;
    std::int32_t number = 0;
    std::int32_t revision = 0;
    soci::statement rows = (session.prepare << "SELECT LocusID, Revision FROM Locus" << condition,
                            soci::into(number), soci::into(revision));
    for (rows.execute(); rows.fetch();)
        revisions[number] = revision;
    return revisions;
}

} // namespace

void LoadAlleles(const std::vector<StoredLocus*>& loci)
{
    if (loci.empty())
        return;
    Database& database = loci.front()->SharedDatabase();
    database.Run(NotLoaded, [&](soci::session& session) {
        const std::string condition = ConditionOn(loci);
        auto alleles = ReadRows(database, session, condition);
        // Asked afterwards, so that a change made in between is noticed.
        const auto revisions = ReadRevisions(session, condition);
        for (StoredLocus* locus : loci)
        {
            const auto revision = revisions.find(locus->LocusID());
            RequireRevision(revision == revisions.end() ? 0 : revision->second, *locus,
                            "The alleles of the locus \"" + locus->LocusTag() +
                                "\" are not loaded");
        }
        for (StoredLocus* locus : loci)
            locus->SetAlleles(alleles[locus->LocusID()]);
    });
}

std::size_t CountCurrentLoci(Store& store)
{
    return store.SharedDatabase().Run("The loci are not counted", [](soci::session& session) {
        long long count = 0;
        Execute(session, "SELECT COUNT(*) FROM Locus WHERE IsCurrent = 1", soci::into(count));
        return static_cast<std::size_t>(count);
    });
}

void ForEachCurrentLocus(Store& store, const std::function<void(Locus&, std::size_t)>& handler)
{
    Database& database = store.SharedDatabase();
    LocusReader reader(database, "IsCurrent = 1");
    for (std::size_t at = 0; const auto read = reader.Next(); ++at)
    {
        database.Progress();
        const auto locus = As<StoredLocus>(store.Manager().Create("Locus"));
        locus->SetState(read->State);
        locus->SetIdentity(read->Identity);
        handler(*locus, at);
    }
}

void ForEachWithAlleles(std::span<const std::shared_ptr<BusinessObject>> loci,
                        const std::function<void(Locus&, std::size_t)>& handler)
{
    for (std::size_t begin = 0; begin < loci.size(); begin += LociAtOnce)
    {
        const auto some = loci.subspan(begin, std::min(LociAtOnce, loci.size() - begin));
        const std::vector<StoredLocus*> without = LociWithoutAlleles(some);
        LoadAlleles(without);
        for (std::size_t at = 0; at < some.size(); ++at)
            handler(*As<Locus>(some[at]), begin + at);
        for (StoredLocus* locus : without)
            locus->ForgetAlleles();
    }
}

} // namespace Tamrivo
