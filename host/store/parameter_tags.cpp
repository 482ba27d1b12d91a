#include "host/store/parameter_tags.h"

#include "host/database/execute.h"
#include "host/store/stored_parameter.h"

#include <unordered_set>

namespace Tamrivo
{

std::vector<std::int32_t> ReadTags(soci::session& session, std::int32_t parameterID)
{
    std::vector<std::int32_t> tagIDs;
    std::int32_t tagID = 0;
    soci::statement select =
        (session.prepare << "SELECT LocusTagID FROM AnalysisParameterTag "
                            "WHERE ParameterID = :ParameterID ORDER BY Position",
         soci::use(parameterID), soci::into(tagID));
    for (select.execute(); select.fetch();)
        tagIDs.push_back(tagID);
    return tagIDs;
}

void RemoveTags(soci::session& session, std::int32_t parameterID)
{
    Execute(session, "DELETE FROM AnalysisParameterTag WHERE ParameterID = :ParameterID",
            soci::use(parameterID));
}

void InsertTags(soci::session& session, std::int32_t parameterID, const LocusTagEntries& entries)
{
    std::int32_t tagID = 0;
    int position = 0;
    soci::statement insert =
        (session.prepare << "INSERT INTO AnalysisParameterTag (ParameterID, LocusTagID, Position) "
                            "VALUES (:ParameterID, :LocusTagID, :Position)",
         soci::use(parameterID), soci::use(tagID), soci::use(position));
    std::unordered_set<std::int32_t> written;
    for (const auto& entry : entries.Entries())
    {
        tagID = entry->TagID(0);
        if (!written.insert(tagID).second)
            continue;
        ++position;
        insert.execute(true);
    }
}

void CopyTags(soci::session& session, std::int32_t from, std::int32_t to)
{
    Execute(session,
            "INSERT INTO AnalysisParameterTag (ParameterID, LocusTagID, Position) SELECT " +
                std::to_string(to) +
                ", LocusTagID, Position FROM AnalysisParameterTag WHERE ParameterID = :ParameterID",
            soci::use(from));
}

} // namespace Tamrivo
