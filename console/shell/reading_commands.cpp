#include "console/shell/arguments.h"
#include "console/shell/command_table.h"
#include "console/shell/readout.h"
#include "console/shell/shell.h"
#include "core/numbers.h"
#include "core/text.h"
#include "host/alleles/pane_user.h"
#include "host/grid/grid_user.h"

#include <algorithm>
#include <limits>
#include <span>

// What can be read, also while a menu or a message box waits.

namespace Tamrivo
{

namespace
{

void Get(Shell& shell, const Words& arguments)
{
    const std::string& what = arguments[0];
    const std::size_t dot = std::min(what.find('.'), what.size());
    const Control& control = NamedControl(shell, what.substr(0, dot));
    const Properties properties = ReadableProperties(control);
    if (dot == what.size())
        return PrintProperties(shell.Out(), properties);

    const std::string name = what.substr(dot + 1);
    for (const auto& [each, value] : properties)
    {
        if (EqualNoCase(each, name))
        {
            shell.Out() << ValueText(value) << '\n';
            return;
        }
    }
    throw User::Refusal(control.Name() + " has no property " + name + "; get " + control.Name() +
                        " prints those it has");
}

void ListControls(Shell& shell, const Words&)
{
    for (const Control* control : PageOnTop(shell).InTabOrder())
        shell.Out() << control->Name() << '\n';
}

void Rows(Shell& shell, const Words& arguments)
{
    const auto& grid = NamedControlAs<User::GridControl>(shell, arguments[0], "a grid");
    const auto& helper = shell.Host().SharedGridHelper();
    const Gridocx& rows = grid.Object();
    for (std::int32_t row = 1; row <= static_cast<std::int32_t>(rows.RowCount()); ++row)
        PrintRow(shell.Out(),
                 {std::to_string(row), rows.GetTextRowCol(row, 1), rows.GetTextRowCol(row, 2),
                  helper.IsRowHighlighted(rows, row) ? "*" : "-"});
}

void PrintAlleles(Shell& shell, const AlleleRows& alleles, bool numbered)
{
    int number = 0;
    for (const auto& allele : alleles)
    {
        std::vector<std::string> cells;
        if (numbered)
            cells.push_back(std::to_string(++number));
        for (const AlleleColumn& column : std::span(AlleleColumns).first<ListedColumns>())
            cells.push_back(column.Text(*allele));
        PrintRow(shell.Out(), cells);
    }
}

void Pane(Shell& shell, const Words&)
{
    PrintAlleles(shell, User::AllelesOf(AllelePaneOnTop(shell)).Rows(), true);
}

const STRLocusTagSelector& Selector(Shell& shell)
{
    if (!shell.Stage().Parameter)
        throw User::Refusal("no parameter's page is open; parameter opens one");
    return shell.Stage().Parameter->Selector();
}

void Selected(Shell& shell, const Words&)
{
    for (const auto& locus : Selector(shell).SelectedLocusTags())
        PrintRow(shell.Out(), {locus->LocusTag()});
}

void Count(Shell& shell, const Words&)
{
    shell.Out() << Selector(shell).NumberOfSelectedLocusTags() << '\n';
}

void ListParameters(Shell& shell, const Words&)
{
    WizardSession* wizard = shell.Stage().Wizard();
    const auto& parameters = wizard ? wizard->Base().Parameters() : shell.LastParameters;
    if (!parameters)
        throw User::Refusal("no wizard has been started yet; new and edit start one");
    for (const std::string& key : parameters->Keys())
        PrintRow(shell.Out(), {key});
}

void ParameterNames(Shell& shell, const Words&)
{
    for (const std::string& name : shell.Host().Parameters().Names())
        PrintRow(shell.Out(), {name});
}

void Loci(Shell& shell, const Words&)
{
    const auto loci = CurrentLoci(shell.Host().Store().Manager(), "Name");
    for (const auto& object : loci->Members())
        PrintRow(shell.Out(), {As<Locus>(object)->LocusTag()});
}

void ShowLocus(Shell& shell, const Words& arguments)
{
    PrintLocus(shell.Out(), *shell.Host().StoredLocus(arguments[0]));
}

void Alleles(Shell& shell, const Words& arguments)
{
    const auto locus = shell.Host().StoredLocus(arguments[0]);
    AlleleRows alleles;
    for (const auto& object : locus->Alleles().Members())
        alleles.push_back(As<Allele>(object));
    PrintAlleles(shell, alleles, false);
}

void Contexts(Shell& shell, const Words& arguments)
{
    constexpr auto last = std::numeric_limits<std::int32_t>::max();
    const std::int32_t typeID = arguments.empty()
                                    ? LocusReportContext::Identifier
                                    : Number(arguments[0], "identifier", -last - 1, last);
    const ReportContexts contexts = shell.Host().Contexts(typeID);
    for (const auto& [key, locus] : contexts.Entries())
        PrintRow(shell.Out(), {key});
}

void ContextTypes(Shell& shell, const Words&)
{
    for (const ContextKind& kind : shell.Host().ContextKinds())
        PrintRow(shell.Out(),
                 {std::to_string(kind.Identifier), kind.Name, DoubleText(kind.Number)});
}

void Page(Shell& shell, const Words&)
{
    const UserControl* page = shell.Stage().Page();
    shell.Out() << (page ? page->Name() : "host") << '\n';
}

void Echo(Shell& shell, const Words& arguments)
{
    shell.Out() << arguments[0] << '\n';
}

void Help(Shell& shell, const Words&)
{
    PrintHelp(shell.Out());
}

using enum Allowed;

constexpr ShellCommand readingCommands[] = {
    {"get", "CONTROL[.PROPERTY]", 1, 1, Always, "one property of a control, or all", Get},
    {"controls", "", 0, 0, Always, "the controls of the page on top, in tab order", ListControls},
    {"rows", "GRID", 1, 1, Always, "row, tag, date and highlight of each row", Rows},
    {"pane", "", 0, 0, Always, "the alleles on the page on top", Pane},
    {"selected", "", 0, 0, Always, "the tags of the selected loci", Selected},
    {"count", "", 0, 0, Always, "the number of selected loci", Count},
    {"parameters", "", 0, 0, Always, "the keys in the wizard's collection", ListParameters},
    {"parameter-names", "", 0, 0, Always, "the names of the stored parameters", ParameterNames},
    {"loci", "", 0, 0, Always, "the tags of the stored current loci", Loci},
    {"locus", "TAG", 1, 1, Always, "the properties of a stored locus", ShowLocus},
    {"alleles", "TAG", 1, 1, Always, "name, size and bin of the stored alleles", Alleles},
    {"contexts", "[ID]", 0, 1, Always, "the report contexts that the service gives", Contexts},
    {"context-types", "", 0, 0, Always, "the kinds of report context", ContextTypes},
    {"page", "", 0, 0, Always, "what is on top", Page},
    {"echo", "TEXT", 1, 1, Always, "print the text", Echo},
    {"help", "", 0, 0, Always, "this list", Help},
};

} // namespace

CommandGroup ReadingCommands()
{
    return {"Reading", readingCommands};
}

} // namespace Tamrivo
