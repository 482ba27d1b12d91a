#include "host/store/settings.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/transaction.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"

namespace Tamrivo
{

namespace
{

/// A store has one set of settings, an object of the history.
constexpr std::int32_t settingsNumber = 0;

std::string ReasonRule(bool isRequired)
{
    return isRequired ? "required" : "optional";
}

} // namespace

std::string ReasonRuleContent(bool isRequired)
{
    return ContentOfValue("Value", ReasonRule(isRequired));
}

std::string IdentityIn(soci::session& session)
{
    std::string identity;
    Execute(session, "SELECT Value FROM Setting WHERE Name = 'identity'", soci::into(identity));
    return identity;
}

std::string ReadIdentity(Database& database)
{
    return database.Run("The store is not looked at", [&](soci::session& session) {
        std::string identity = IdentityIn(session);
        if (identity.empty())
            throw Failure(StoreError::NotAStore, "Store",
                          "The store \"" + database.Name() +
                              "\" is damaged: it has lost what it is known by. Take it from a "
                              "backup");
        return identity;
    });
}

bool IsReasonRequired(Database& database)
{
    return database.Run("The settings are not read", [](soci::session& session) {
        int count = 0;
        Execute(session, "SELECT COUNT(*) FROM Setting WHERE " + std::string(ReasonIsRequired),
                soci::into(count));
        return count > 0;
    });
}

void SetReasonRequired(Database& database, bool required)
{
    database.Run("The settings stay as they are", [&](soci::session& session) {
        Transaction transaction(database);
        if (IsReasonRequired(database) == required)
            return;
        const std::string name = "reason";
        const std::string value = ReasonRule(required);
        // First, so that the rule until now holds for its change.
        HistoryWriter(database).Record({.Kind = HistoryKind::Setting,
                                        .ObjectNumber = settingsNumber,
                                        .Operation = HistoryOperation::Changed,
                                        .Name = name,
                                        .Content = ReasonRuleContent(required)});
        Execute(session,
                "INSERT INTO Setting (Name, Value) VALUES (:Name, :Value) "
                "ON CONFLICT (Name) DO UPDATE SET Value = EXCLUDED.Value",
                soci::use(name), soci::use(value));
        transaction.Commit();
    });
}

} // namespace Tamrivo
