#pragma once

#include "controls/user.h"
#include "controls/user_control.h"
#include "host/alleles/pane_user.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

class Shell;

// What the words of a command stand for. Each function raises `User::Refusal` with a reason that a
// person understands.

/// The page on top.
UserControl& PageOnTop(const Shell& shell);

/// The control on the page on top.
Control& NamedControl(const Shell& shell, const std::string& name);

/// The control on the page on top as one of class `Kind`; `kindName` says in the refusal what it
/// should have been.
template <class Kind>
Kind& NamedControlAs(const Shell& shell, const std::string& name, std::string_view kindName)
{
    Control& control = NamedControl(shell, name);
    if (auto* typed = dynamic_cast<Kind*>(&control))
        return *typed;
    throw User::Refusal(name + " is not " + std::string(kindName));
}

/// The allele pane on the page on top.
User::AllelePaneControl& AllelePaneOnTop(const Shell& shell);

/// A whole number from `low` to `high`, in plain digits.
std::int32_t Number(const std::string& word, std::string_view meaning, std::int32_t low,
                    std::int32_t high);

/// "true" or "false".
bool TruthValue(const std::string& word);

/// Whether the option stands among the words from `first` on. Any other word there is refused.
bool HasOption(const std::vector<std::string>& words, std::size_t first, std::string_view option);

/// All words that could stand at a position of a command whose `ShellCommand::Arguments` are given.
std::vector<std::string> ArgumentCandidates(Shell& shell, std::string_view arguments,
                                            std::size_t position);

} // namespace Tamrivo
