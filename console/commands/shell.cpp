#include "console/shell/shell.h"

#include "console/commands/command.h"
#include "console/shell/terminal_source.h"
#include "host/database/database.h"
#include "host/framework/environment.h"
#include "host/store/store.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

namespace Tamrivo
{

namespace
{

struct ShellOptions
{
    std::string Script;
    bool KeepGoing = false;
};

std::ifstream OpenScript(const std::string& path)
{
    const bool isDirectory = std::filesystem::is_directory(path);
    std::ifstream script(path);
    if (isDirectory || !script)
        throw Failure(ErrorNumber::InvalidArgument, "Shell",
                      "Cannot read the script " + path + ": " +
                          std::strerror(isDirectory ? EISDIR : errno));
    return script;
}

bool IsTerminal(const std::istream& in)
{
    return &in == &std::cin && isatty(STDIN_FILENO) == 1 && isatty(STDOUT_FILENO) == 1;
}

void RunShell(Context& context, const ShellOptions& options)
{
    std::ifstream script;
    std::unique_ptr<LineSource> source;
    if (!options.Script.empty())
    {
        script = OpenScript(options.Script);
        source = std::make_unique<StreamSource>(script, options.Script);
    }
    else if (IsTerminal(context.In))
        source = std::make_unique<TerminalSource>(StateDirectory() / "history");
    else
        source = std::make_unique<StreamSource>(context.In, "standard input");

    Store store(context.StoreLocation);
    store.SetReason(context.Reason);
    if (store.IsReadOnly())
        context.Err << "The store is read-only: " << store.SharedDatabase().WhyReadOnly() << ".\n";
    Shell shell(store, *source, context.Out, context.Err,
                options.KeepGoing ? AfterError::KeepGoing : AfterError::Stop);
    context.Status = shell.Run();
}

} // namespace

void AddShellCommand(CLI::App& program, Context& context)
{
    auto& command = AddCommand(
        program, context, "shell", "Work with the pages by commands, one a line.",
        "  tamrivo shell                          commands from the terminal; help lists them\n"
        "  tamrivo shell tour.txt                 commands from a script\n"
        "  tamrivo shell --keep-going tour.txt    go on after a command that is refused\n"
        "  echo 'locus D3S1358' | tamrivo shell   one command\n");
    const auto options = std::make_shared<ShellOptions>();
    command.add_option("SCRIPT", options->Script, "The script; without one, standard input")
        ->type_name("");
    command.add_flag("--keep-going", options->KeepGoing, "Go on after a command that is refused");
    AddReasonOption(command, context);
    command.callback([&context, options] { RunShell(context, *options); });
}

} // namespace Tamrivo
