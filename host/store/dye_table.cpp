#include "host/store/dye_table.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/transaction.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"

namespace Tamrivo
{

namespace
{

/// A name in a list of at most so many.
void Append(std::string& list, std::size_t count, const std::string& name)
{
    constexpr std::size_t most = 20;
    if (count < most)
        list += (list.empty() ? "" : ", ") + name;
    else if (count == most)
        list += " and more";
}

/// Tags of the loci whose dye is lost or, unless `recolor`, changes its colour.
std::string TagsAffected(soci::session& session, const Dyes& before, const Dyes& after,
                         bool recolor)
{
    std::string tags;
    std::size_t count = 0;
    std::int32_t dye = 0;
    std::string tag;
    soci::statement loci = (session.prepare << "SELECT DyeIndex, LocusTag FROM Locus ORDER BY "
                                               "DyeIndex, LocusID",
                            soci::into(dye), soci::into(tag));
    for (loci.execute(); loci.fetch();)
    {
        const bool isLost = dye >= after.Count() && dye < before.Count();
        if (isLost || (!recolor && before.ColorOf(dye) != after.ColorOf(dye)))
            Append(tags, count++, tag);
    }
    return tags;
}

} // namespace

Dyes ReadDyes(Database& database)
{
    return database.Run("The dyes are not read", [](soci::session& session) {
        std::vector<Dye> dyes;
        Dye dye;
        soci::statement rows = (session.prepare << "SELECT Color, Name FROM Dye ORDER BY Position",
                                soci::into(dye.Color), soci::into(dye.Name));
        for (rows.execute(); rows.fetch();)
            dyes.push_back(dye);
        return Dyes(std::move(dyes));
    });
}

std::vector<std::size_t> CountLociByDye(Database& database, const Dyes& dyes)
{
    return database.Run("The loci are not counted", [&](soci::session& session) {
        std::vector<std::size_t> counts(dyes.All().size());
        std::int32_t dye = 0;
        long long count = 0;
        soci::statement rows =
            (session.prepare << "SELECT DyeIndex, COUNT(*) FROM Locus GROUP BY DyeIndex",
             soci::into(dye), soci::into(count));
        for (rows.execute(); rows.fetch();)
        {
            if (dye >= 0 && dye < dyes.Count())
                counts[static_cast<std::size_t>(dye)] = static_cast<std::size_t>(count);
        }
        return counts;
    });
}

void WriteDyes(Database& database, const Dyes& dyes, bool recolor)
{
    const std::string consequence = "The dyes stay as they are";
    database.Run(consequence, [&](soci::session& session) {
        Transaction transaction(database);
        const Dyes before = ReadDyes(database);
        if (dyes.Count() < before.Count())
        {
            const std::string tags = TagsAffected(session, before, dyes, true);
            if (!tags.empty())
                throw Failure(ErrorNumber::InvalidArgument, "Store",
                              consequence + ": loci have the dyes that would go: " + tags +
                                  ". Give them other dyes first, or keep " +
                                  std::to_string(before.Count()) + " dyes");
        }
        const std::string tags = TagsAffected(session, before, dyes, recolor);
        if (!tags.empty())
            throw Failure(ErrorNumber::InvalidArgument, "Store",
                          consequence + ": the dyes of these loci would get another colour: " +
                              tags + ". Recolour them expressly if that is meant (--recolour)");
        Execute(session, "DELETE FROM Dye");
        std::int32_t position = 0;
        for (const Dye& dye : dyes.All())
        {
            Execute(session,
                    "INSERT INTO Dye (Position, Color, Name) VALUES (:Position, :Color, :Name)",
                    soci::use(position), soci::use(dye.Color), soci::use(dye.Name));
            ++position;
        }
        HistoryWriter(database).Record({.Kind = HistoryKind::Dyes,
                                        .ObjectNumber = 0,
                                        .Operation = HistoryOperation::Changed,
                                        .Name = "Dyes",
                                        .Content = ContentOf(dyes)});
        transaction.Commit();
    });
}

} // namespace Tamrivo
