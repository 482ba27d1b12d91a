#include "host/store/projects.h"

#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/database/transaction.h"
#include "host/loci/keys.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"

namespace Tamrivo
{

std::vector<std::shared_ptr<StoredProject>> ReadProjects(Database& database)
{
    return database.Run("The projects are not read", [](soci::session& session) {
        std::vector<std::shared_ptr<StoredProject>> projects;
        std::int32_t number = 0;
        std::string name;
        soci::statement statement =
            (session.prepare << "SELECT ProjectID, Name FROM Project ORDER BY ProjectID",
             soci::into(number), soci::into(name));
        for (statement.execute(); statement.fetch();)
            projects.push_back(std::make_shared<StoredProject>(number, name));
        return projects;
    });
}

std::shared_ptr<StoredProject> ReadProject(Database& database, const std::string& name)
{
    return database.Run("The project \"" + name + "\" is not read", [&](soci::session& session) {
        const std::string key = LookupKey(name);
        std::int32_t number = 0;
        std::string storedName;
        Execute(session, "SELECT ProjectID, Name FROM Project WHERE NameKey = :NameKey",
                soci::use(key), soci::into(number), soci::into(storedName));
        return number > 0 ? std::make_shared<StoredProject>(number, storedName) : nullptr;
    });
}

std::shared_ptr<StoredProject> AddProject(Database& database, const std::string& name)
{
    const std::string key = LookupKey(name);
    if (key.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Store", "A project needs a name");
    return database.Run("The project \"" + name + "\" is not stored", [&](soci::session& session) {
        Transaction transaction(database);
        const std::int32_t number = database.NextNumber();
        Execute(session, "INSERT INTO Project (ProjectID, Name, NameKey) VALUES (:ID, :Name, :Key)",
                soci::use(number), soci::use(name), soci::use(key));
        HistoryWriter(database).Record({.Kind = HistoryKind::Project,
                                        .ObjectNumber = number,
                                        .Operation = HistoryOperation::Made,
                                        .Name = name,
                                        .Content = ContentOfValue("Name", name)});
        transaction.Commit();
        return std::make_shared<StoredProject>(number, name);
    });
}

} // namespace Tamrivo
