#pragma once

#include "console/exit_status.h"

#include <CLI/CLI.hpp>

#include <istream>
#include <ostream>
#include <string>

namespace Tamrivo
{

/// What the subcommands share.
struct Context
{
    std::istream& In;
    std::ostream& Out;
    std::ostream& Err;
    /// Where the store is: `--store`, else `TAMRIVO_STORE`, else the user's own. In place before a
    /// command runs.
    std::string StoreLocation;
    /// What the history is told of the command's changes: `--reason`.
    std::string Reason;
    /// For a command that has done part of its work; a `Failure` that leaves a command is printed
    /// on `Err` and means `ExitStatus::Failed` anyway.
    int Status = ExitStatus::Done;
};

/// Adds a subcommand that knows `--store`. Its callback, set with `CLI::App::callback`, does the
/// work once the whole command line has been read.
/// @param examples lines for the end of `--help`, each a command and what it does
CLI::App& AddCommand(CLI::App& program, Context& context, const std::string& name,
                     const std::string& description, const std::string& examples);

/// Adds `--at` with a moment or a revision, as `History::LocusRecordAt` takes it.
CLI::Option& AddAtOption(CLI::App& command, std::string& at, const std::string& description);
/// Adds `--reason` to a command that stores something.
void AddReasonOption(CLI::App& command, Context& context);

// The subcommands, one file each.

void AddListCommand(CLI::App& program, Context& context);
void AddShowCommand(CLI::App& program, Context& context);
void AddImportCommand(CLI::App& program, Context& context);
void AddExportCommand(CLI::App& program, Context& context);
void AddDyesCommand(CLI::App& program, Context& context);
void AddRenameCommand(CLI::App& program, Context& context);
void AddDuplicateCommand(CLI::App& program, Context& context);
void AddSetCommand(CLI::App& program, Context& context);
void AddDeleteCommand(CLI::App& program, Context& context);
void AddReportCommand(CLI::App& program, Context& context);
void AddCheckCommand(CLI::App& program, Context& context);
void AddFitCommand(CLI::App& program, Context& context);
void AddShellCommand(CLI::App& program, Context& context);
void AddHistoryCommand(CLI::App& program, Context& context);
void AddDiffCommand(CLI::App& program, Context& context);
void AddRestoreCommand(CLI::App& program, Context& context);
void AddSettingsCommand(CLI::App& program, Context& context);
void AddBackupCommand(CLI::App& program, Context& context);
void AddCopyCommand(CLI::App& program, Context& context);
void AddParametersCommand(CLI::App& program, Context& context);
void AddProjectsCommand(CLI::App& program, Context& context);

} // namespace Tamrivo
