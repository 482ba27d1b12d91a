#pragma once

#include "console/shell/words.h"

#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

class Shell;

/// When a command may be given.
enum class Allowed
{
    Always,    ///< Also while a menu or a message box waits.
    Otherwise, ///< While neither waits.
    InMenu,
    InMessage,
};

/// A command of the shell.
struct ShellCommand
{
    std::string_view Name;
    /// How its words are written in `help`. A word in capitals stands for something, one in
    /// brackets may be left out.
    std::string_view Arguments;
    std::size_t MinArguments;
    std::size_t MaxArguments;
    Tamrivo::Allowed Allowed;
    std::string_view Summary;
    void (*Run)(Shell& shell, const Words& arguments);
};

/// The commands of one group, under their heading in `help`.
struct CommandGroup
{
    std::string_view Title;
    std::span<const ShellCommand> Commands;
};

CommandGroup HostCommands();
CommandGroup PersonCommands();
CommandGroup ReadingCommands();

/// Runs the command that the words name. Raises `User::Refusal` for words that are no command, or
/// one that can't be given now.
void RunCommand(Shell& shell, const Words& words);

/// Prints all commands.
void PrintHelp(std::ostream& out);

/// The words that could take the place of the last word of the text. Raises `User::Refusal` for
/// text that `SplitWords` refuses, and failures of the store.
std::vector<std::string> Completions(Shell& shell, std::string_view beforeCursor);

} // namespace Tamrivo
