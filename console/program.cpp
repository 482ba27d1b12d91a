#include "console/program.h"

#include "console/commands/command.h"
#include "core/error.h"
#include "host/database/address.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr void (*commands[])(CLI::App&, Context&) = {
    AddListCommand,       AddShowCommand,     AddImportCommand,  AddExportCommand,
    AddCheckCommand,      AddFitCommand,      AddRenameCommand,  AddDuplicateCommand,
    AddSetCommand,        AddDeleteCommand,   AddReportCommand,  AddDyesCommand,
    AddHistoryCommand,    AddDiffCommand,     AddRestoreCommand, AddSettingsCommand,
    AddParametersCommand, AddProjectsCommand, AddBackupCommand,  AddCopyCommand,
    AddShellCommand,
};

void AddStoreOption(CLI::App& app, Context& context)
{
    app.add_option("--store", context.StoreLocation,
                   "A database file, or the address of a PostgreSQL database; by default "
                   "$TAMRIVO_STORE or a file in the XDG data directory")
        ->type_name("LOCATION");
}

} // namespace

CLI::App& AddCommand(CLI::App& program, Context& context, const std::string& name,
                     const std::string& description, const std::string& examples)
{
    CLI::App& command = *program.add_subcommand(name, description);
    AddStoreOption(command, context);
    command.footer("Examples:\n" + examples);
    return command;
}

CLI::Option& AddAtOption(CLI::App& command, std::string& at, const std::string& description)
{
    return *command
                .add_option("--at", at,
                            description + ": a revision, or a date and time in UTC such as "
                                          "2026-11-23 or 2026-11-23T08:15")
                ->type_name("WHEN|REVISION");
}

void AddReasonOption(CLI::App& command, Context& context)
{
    command
        .add_option("--reason", context.Reason,
                    "Why this is done, for the history; a store may ask for it")
        ->type_name("TEXT");
}

int RunProgram(std::vector<std::string> arguments, std::istream& in, std::ostream& out,
               std::ostream& err)
{
    Context context{in, out, err, DefaultStoreAddress(), {}};
    CLI::App program("Defines STR loci and chooses those that an analysis uses.", "tamrivo");
    program.set_version_flag("--version", "tamrivo " TAMRIVO_VERSION);
    program.require_subcommand(0, 1);
    AddStoreOption(program, context);
    program.footer("Each command explains itself with examples: tamrivo COMMAND --help");
    for (const auto add : commands)
        add(program, context);

    try
    {
        std::ranges::reverse(arguments);
        program.parse(std::move(arguments));
        if (program.get_subcommands().empty())
        {
            err << program.help();
            return ExitStatus::Usage;
        }
        if (!out.flush())
            throw Failure(ErrorNumber::Unexpected, "Program",
                          "Not all of the output could be written");
        return context.Status;
    }
    catch (const CLI::ParseError& error)
    {
        return program.exit(error, out, err) == 0 ? ExitStatus::Done : ExitStatus::Usage;
    }
    catch (...)
    {
        err << "tamrivo: " << CurrentError().Description << '\n';
        return ExitStatus::Failed;
    }
}

} // namespace Tamrivo
