#include "host/store/project_changes.h"

#include "contracts/locus.h"
#include "core/text.h"
#include "host/database/database.h"
#include "host/database/execute.h"
#include "host/loci/counts.h"
#include "host/loci/keys.h"
#include "host/store/history_content.h"
#include "host/store/history_writer.h"
#include "host/store/locus_reader.h"
#include "host/store/projects.h"
#include "host/store/store.h"

namespace Tamrivo
{

namespace
{

std::shared_ptr<StoredProject> Required(Database& database, const std::string& name)
{
    if (auto project = ReadProject(database, name))
        return project;
    throw Failure(StoreError::NotFound, "Store", "There is no project \"" + name + "\"");
}

std::vector<std::string> TagsIn(Database& database, std::int32_t projectID)
{
    std::vector<std::string> tags;
    LocusReader loci(database, "ProjectID = " + std::to_string(projectID));
    while (const auto locus = loci.Next())
        tags.push_back(locus->State.Tag);
    return tags;
}

void Record(Database& database, const StoredProject& project, std::string_view operation,
            const std::string& name)
{
    const bool isDeleted = operation == HistoryOperation::Deleted;
    HistoryWriter(database).Record({.Kind = HistoryKind::Project,
                                    .ObjectNumber = project.ProjectID(),
                                    .Operation = operation,
                                    .Name = name,
                                    .Content = isDeleted ? "" : ContentOfValue("Name", name)});
}

} // namespace

void AddNewProject(Store& store, const std::string& name)
{
    AddProject(store.SharedDatabase(), name);
}

void RenameProject(Store& store, const std::string& name, const std::string& newName)
{
    Database& database = store.SharedDatabase();
    const std::string key = LookupKey(newName);
    if (key.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Store", "A project needs a name");
    store.Together([&] {
        const auto project = Required(database, name);
        const std::int32_t number = project->ProjectID();
        database.Run("The project \"" + name + "\" is not renamed", [&](soci::session& session) {
            Execute(session,
                    "UPDATE Project SET Name = :Name, NameKey = :Key WHERE ProjectID = :ID",
                    soci::use(newName), soci::use(key), soci::use(number));
        });
        Record(database, *project, HistoryOperation::Changed, newName);
        for (const std::string& tag : TagsIn(database, number))
        {
            // A locus without a tag can't be found; its number still names the project.
            if (const auto locus = store.FindLocus(tag))
            {
                locus->ProjectName = newName;
                store.Manager().Save(*locus, true);
            }
        }
    });
}

void DeleteProject(Store& store, const std::string& name)
{
    Database& database = store.SharedDatabase();
    store.Together([&] {
        const auto project = Required(database, name);
        const std::int32_t number = project->ProjectID();
        const std::size_t loci = TagsIn(database, number).size();
        if (loci > 0)
            throw Failure(ErrorNumber::InvalidArgument, "Store",
                          "The project \"" + name + "\" is not deleted: " + CountOfLoci(loci) +
                              (loci == 1 ? " is" : " are") +
                              " in it. Move them to another one first (tamrivo set TAG "
                              "--project NAME)");
        database.Run("The project \"" + name + "\" is not deleted", [&](soci::session& session) {
            Execute(session, "DELETE FROM Project WHERE ProjectID = :ID", soci::use(number));
        });
        Record(database, *project, HistoryOperation::Deleted, project->Name());
    });
}

} // namespace Tamrivo
