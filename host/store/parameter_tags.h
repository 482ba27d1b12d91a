#pragma once

#include <cstdint>
#include <vector>

namespace soci
{
class session;
}

namespace Tamrivo
{

class LocusTagEntries;

// The rows of the table AnalysisParameterTag that belong to one parameter: the numbers of its tags
// in their order. All may raise the failures of the database.

std::vector<std::int32_t> ReadTags(soci::session& session, std::int32_t parameterID);
void RemoveTags(soci::session& session, std::int32_t parameterID);
/// A tag that stands in the list more than once is stored at its first place.
void InsertTags(soci::session& session, std::int32_t parameterID, const LocusTagEntries& entries);
/// Gives a parameter without tags those of another one.
void CopyTags(soci::session& session, std::int32_t from, std::int32_t to);

} // namespace Tamrivo
