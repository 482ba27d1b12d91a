#include "console/commands/command.h"
#include "console/commands/store_to_change.h"
#include "host/store/parameter_store.h"
#include "host/store/project_changes.h"

#include <functional>
#include <memory>

namespace Tamrivo
{

namespace
{

/// The names that a subcommand is given.
struct GivenNames
{
    std::string First;
    std::string Second;
};

using Work = std::function<void(Store&, const GivenNames&)>;

/// Adds "NAME" as a command below another one, which takes one or two names.
void AddChange(CLI::App& command, Context& context, const char* name, const char* description,
               const char* second, const char* done, const Work& work)
{
    CLI::App& change = *command.add_subcommand(name, description);
    const auto names = std::make_shared<GivenNames>();
    change.add_option("NAME", names->First, "The name; case doesn't count")
        ->required()
        ->type_name("");
    if (*second)
        change.add_option(second, names->Second, "The new name")->required()->type_name("");
    change.fallthrough(); // --store may stand at the end.
    AddReasonOption(change, context);
    change.callback([&context, names, done, work] {
        StoreToChange store(context);
        work(store, *names);
        context.Out << done << ' ' << names->First
                    << (names->Second.empty() ? "" : " to " + names->Second) << ".\n";
    });
}

} // namespace

void AddParametersCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "parameters", "List, make, rename and delete analysis parameters.",
        "  tamrivo parameters                           their names\n"
        "  tamrivo parameters add \"Run 1\"               with an empty list of tags\n"
        "  tamrivo parameters rename \"Run 1\" \"Run 2\"\n"
        "  tamrivo parameters delete \"Run 2\"\n");
    command.require_subcommand(0, 1);
    AddChange(command, context, "add", "Make one with an empty list of tags", "", "Made",
              [](Store& store, const GivenNames& names) {
                  ParameterStore(store).Create(names.First, TagLists::OneEmpty);
              });
    AddChange(command, context, "rename", "Give one another name", "NEW-NAME", "Renamed",
              [](Store& store, const GivenNames& names) {
                  ParameterStore(store).Rename(names.First, names.Second);
              });
    AddChange(
        command, context, "delete", "Delete one; its loci stay", "", "Deleted",
        [](Store& store, const GivenNames& names) { ParameterStore(store).Delete(names.First); });
    command.callback([&context, &command] {
        if (!command.get_subcommands().empty())
            return;
        Store store(context.StoreLocation);
        for (const std::string& name : ParameterStore(store).Names())
            context.Out << name << '\n';
    });
}

void AddProjectsCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "projects", "List, make, rename and delete projects.",
                   "  tamrivo projects                          their names\n"
                   "  tamrivo projects add Casework\n"
                   "  tamrivo projects rename Casework Cases    in its loci too\n"
                   "  tamrivo projects delete Cases             when no locus is in it\n");
    command.require_subcommand(0, 1);
    AddChange(command, context, "add", "Make one", "", "Made",
              [](Store& store, const GivenNames& names) { AddNewProject(store, names.First); });
    AddChange(command, context, "rename", "Give one another name", "NEW-NAME", "Renamed",
              [](Store& store, const GivenNames& names) {
                  RenameProject(store, names.First, names.Second);
              });
    AddChange(command, context, "delete", "Delete one that no locus is in", "", "Deleted",
              [](Store& store, const GivenNames& names) { DeleteProject(store, names.First); });
    command.callback([&context, &command] {
        if (!command.get_subcommands().empty())
            return;
        Store store(context.StoreLocation);
        const auto projects = Projects(store.Manager());
        for (const auto& project : projects->Members())
            context.Out << project->Name() << '\n';
    });
}

} // namespace Tamrivo
