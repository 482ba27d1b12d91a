#pragma once

#include <string>
#include <string_view>

namespace soci
{
class session;
}

namespace Tamrivo
{

class Database;

/// `Store::Identity`
std::string ReadIdentity(Database& database);
/// The same of the store that a connection leads to; empty when it has none.
std::string IdentityIn(soci::session& session);

/// The condition on the table Setting that each change has to have a reason.
inline constexpr std::string_view ReasonIsRequired = "Name = 'reason' AND Value = 'required'";

/// What the history keeps of the rule.
std::string ReasonRuleContent(bool isRequired);

/// Whether each change has to have a reason.
bool IsReasonRequired(Database& database);
void SetReasonRequired(Database& database, bool required);

} // namespace Tamrivo
