#include "console/shell/command_table.h"

#include "console/shell/arguments.h"
#include "console/shell/shell.h"
#include "controls/user.h"
#include "core/text.h"

#include <algorithm>
#include <iomanip>

namespace Tamrivo
{

namespace
{

std::vector<CommandGroup> AllCommands()
{
    return {HostCommands(), PersonCommands(), ReadingCommands()};
}

const ShellCommand* Find(std::string_view name)
{
    for (const CommandGroup& group : AllCommands())
    {
        const auto found = std::ranges::find(group.Commands, name, &ShellCommand::Name);
        if (found != group.Commands.end())
            return &*found;
    }
    return nullptr;
}

std::string Usage(const ShellCommand& command)
{
    return std::string(command.Name) + (command.Arguments.empty() ? "" : " ") +
           std::string(command.Arguments);
}

void RequireAllowed(const ShellCommand& command, const Stage& stage)
{
    const std::string name(command.Name);
    const bool hasMenu = stage.TopMenu() != nullptr;
    const bool hasMessage = stage.TopMessage() != nullptr;
    if (command.Allowed == Allowed::Always || (command.Allowed == Allowed::InMenu && hasMenu) ||
        (command.Allowed == Allowed::InMessage && hasMessage))
        return;
    if (hasMenu)
        throw User::Refusal(name +
                            " has to wait: a menu is open; pick an item of it or dismiss it");
    if (hasMessage)
        throw User::Refusal(name + " has to wait: a message box is open; answer it");
    if (command.Allowed == Allowed::InMenu)
        throw User::Refusal("no menu is open");
    if (command.Allowed == Allowed::InMessage)
        throw User::Refusal("no message box is open");
}

} // namespace

void RunCommand(Shell& shell, const Words& words)
{
    const ShellCommand* command = Find(words.front());
    if (!command)
        throw User::Refusal("there is no command \"" + words.front() + "\"; help lists them all");
    RequireAllowed(*command, shell.Stage());
    const Words arguments(words.begin() + 1, words.end());
    if (arguments.size() < command->MinArguments || arguments.size() > command->MaxArguments)
        throw User::Refusal("usage: " + Usage(*command));
    command->Run(shell, arguments);
}

void PrintHelp(std::ostream& out)
{
    constexpr int summaryColumn = 34;
    for (const CommandGroup& group : AllCommands())
    {
        out << group.Title << '\n';
        for (const ShellCommand& command : group.Commands)
            out << "  " << std::left << std::setw(summaryColumn) << Usage(command) << ' '
                << command.Summary << '\n';
        out << '\n';
    }
    out << "A word with blanks stands in double quotes. A line that starts with # is a comment.\n";
}

std::vector<std::string> Completions(Shell& shell, std::string_view beforeCursor)
{
    const std::string_view word = beforeCursor.substr(beforeCursor.find_last_of(" \t") + 1);
    const Words words = SplitWords(beforeCursor.substr(0, beforeCursor.size() - word.size()));

    std::vector<std::string> candidates;
    if (words.empty())
    {
        for (const CommandGroup& group : AllCommands())
            for (const ShellCommand& command : group.Commands)
                candidates.emplace_back(command.Name);
    }
    else if (const ShellCommand* command = Find(words.front()))
    {
        candidates = ArgumentCandidates(shell, command->Arguments, words.size() - 1);
    }
    std::erase_if(candidates,
                  [word](const std::string& candidate) { return !candidate.starts_with(word); });
    return candidates;
}

} // namespace Tamrivo
