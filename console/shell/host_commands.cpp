#include "console/shell/arguments.h"
#include "console/shell/command_table.h"
#include "console/shell/shell.h"

// What the host does with the pages.

namespace Tamrivo
{

namespace
{

WizardSession& WizardOnTop(Shell& shell)
{
    if (WizardSession* wizard = shell.Stage().Wizard())
        return *wizard;
    throw User::Refusal("no wizard is open; new and edit start one");
}

void RequireNoWizard(Shell& shell)
{
    if (const WizardSession* wizard = shell.Stage().Wizard())
        throw User::Refusal("the wizard " + wizard->Name() + " is open; finish or cancel it first");
}

void RequireNoParameterPage(Shell& shell)
{
    RequireNoWizard(shell);
    if (const auto& open = shell.Stage().Parameter)
        throw User::Refusal("the page of parameter \"" + open->Name() +
                            "\" is open; close it first");
}

ParameterPage& ParameterPageOnTop(Shell& shell)
{
    RequireNoWizard(shell);
    if (!shell.Stage().Parameter)
        throw User::Refusal("no parameter's page is open; parameter opens one");
    return *shell.Stage().Parameter;
}

void New(Shell& shell, const Words& arguments)
{
    RequireNoWizard(shell);
    shell.LastParameters = shell.Host().NewLocus(HasOption(arguments, 0, "--binning")).Parameters;
}

void Edit(Shell& shell, const Words& arguments)
{
    RequireNoWizard(shell);
    const bool binning = HasOption(arguments, 1, "--binning");
    shell.LastParameters = shell.Host().EditLocus(arguments[0], binning).Parameters;
}

void Activate(Shell& shell, const Words&)
{
    WizardOnTop(shell).Activate();
}

void Deactivate(Shell& shell, const Words&)
{
    WizardOnTop(shell).Deactivate();
}

void Validate(Shell& shell, const Words&)
{
    shell.Out() << (WizardOnTop(shell).Validate() ? "valid\n" : "invalid\n");
}

void Finish(Shell& shell, const Words&)
{
    if (!WizardOnTop(shell).Finish())
        shell.Out() << "invalid\n";
}

void Cancel(Shell& shell, const Words&)
{
    WizardOnTop(shell).Cancel();
}

void OpenParameter(Shell& shell, const Words& arguments)
{
    RequireNoParameterPage(shell);
    const bool noList = HasOption(arguments, 1, "--no-list");
    auto& parameters = shell.Host().Parameters();
    auto parameter = parameters.Find(arguments[0]);
    if (!parameter)
        parameter = parameters.Create(arguments[0], noList ? TagLists::None : TagLists::OneEmpty);
    shell.Stage().Parameter = std::make_unique<ParameterPage>(shell.Host(), std::move(parameter));
}

void Save(Shell& shell, const Words&)
{
    ParameterPageOnTop(shell).Save();
}

void Close(Shell& shell, const Words&)
{
    ParameterPageOnTop(shell);
    shell.Stage().Parameter.reset();
}

void RenameParameter(Shell& shell, const Words& arguments)
{
    RequireNoParameterPage(shell);
    shell.Host().Parameters().Rename(arguments[0], arguments[1]);
}

void DuplicateParameter(Shell& shell, const Words& arguments)
{
    RequireNoParameterPage(shell);
    shell.Host().Parameters().Duplicate(arguments[0], arguments[1]);
}

void DeleteParameter(Shell& shell, const Words& arguments)
{
    RequireNoParameterPage(shell);
    shell.Host().Parameters().Delete(arguments[0]);
}

void Enable(Shell& shell, const Words& arguments)
{
    ParameterPageOnTop(shell).Selector().SetEnabled(TruthValue(arguments[0]));
}

void Delete(Shell& shell, const Words& arguments)
{
    shell.Host().Store().DeleteLocus(arguments[0]);
}

void Reason(Shell& shell, const Words& arguments)
{
    shell.Host().Store().SetReason(arguments[0]);
}

void Quit(Shell& shell, const Words&)
{
    shell.Quit();
}

using enum Allowed;

constexpr ShellCommand hostCommands[] = {
    {"new", "[--binning]", 0, 1, Otherwise, "edit a new locus", New},
    {"edit", "TAG [--binning]", 1, 2, Otherwise, "edit a stored locus", Edit},
    {"activate", "", 0, 0, Otherwise, "turn to the page on top", Activate},
    {"deactivate", "", 0, 0, Otherwise, "turn away from the page on top", Deactivate},
    {"validate", "", 0, 0, Otherwise, "ask the page on top whether it is valid", Validate},
    {"finish", "", 0, 0, Otherwise, "save the page on top and end its wizard", Finish},
    {"cancel", "", 0, 0, Otherwise, "end the wizard on top without saving", Cancel},
    {"parameter", "NAME [--no-list]", 1, 2, Otherwise, "open an analysis parameter", OpenParameter},
    {"save", "", 0, 0, Otherwise, "save the parameter", Save},
    {"close", "", 0, 0, Otherwise, "close the parameter's page", Close},
    {"rename-parameter", "NAME NEW-NAME", 2, 2, Otherwise, "rename a parameter", RenameParameter},
    {"duplicate-parameter", "NAME NEW-NAME", 2, 2, Otherwise, "store a copy", DuplicateParameter},
    {"delete-parameter", "NAME", 1, 1, Otherwise, "remove a parameter", DeleteParameter},
    {"enable", "true|false", 1, 1, Otherwise, "switch the selector on or off", Enable},
    {"delete", "TAG", 1, 1, Otherwise, "remove a locus from the store", Delete},
    {"reason", "TEXT", 1, 1, Always, "why the changes to come are made", Reason},
    {"quit", "", 0, 0, Otherwise, "close everything and end", Quit},
};

} // namespace

CommandGroup HostCommands()
{
    return {"The host", hostCommands};
}

} // namespace Tamrivo
