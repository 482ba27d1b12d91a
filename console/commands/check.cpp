#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/difference_lines.h"
#include "console/commands/output_format.h"
#include "console/commands/progress_line.h"
#include "console/commands/stored_loci.h"
#include "host/checks/marker_check.h"
#include "host/checks/store_check.h"
#include "host/loci/counts.h"
#include "host/panels/panel_files.h"
#include "host/reports/finding_list.h"
#include "host/reports/locus_listing.h"
#include "host/store/integrity.h"
#include "host/store/store.h"

#include <algorithm>
#include <memory>

namespace Tamrivo
{

namespace
{

struct CheckOptions
{
    CheckScope Scope;
    std::vector<std::string> Files;
    std::vector<std::string> Without;
    OutputFormat Format = OutputFormat::Table;
    bool StoreIntegrity = false;
};

std::string RuleNames()
{
    std::string names;
    for (const CheckRule& rule : CheckRules)
        names.append(names.empty() ? "" : ", ").append(rule.Name);
    return names;
}

std::string RuleLines()
{
    constexpr std::size_t nameWidth = 15;
    std::string lines;
    for (const CheckRule& rule : CheckRules)
        lines.append("  ")
            .append(rule.Name)
            .append(nameWidth - rule.Name.size(), ' ')
            .append(SeverityText(rule.Weight))
            .append(": ")
            .append(rule.Meaning)
            .append("\n");
    return lines;
}

ChosenRules RulesWithout(const std::vector<std::string>& names)
{
    ChosenRules rules = AllCheckRules();
    for (const std::string& name : names)
        rules.reset(static_cast<std::size_t>(FindCheckRule(name) - CheckRules));
    return rules;
}

/// The markers that have what a locus needs; the others are told on standard error.
std::vector<PanelMarker> ReadFiles(Context& context, const std::vector<std::string>& files)
{
    std::vector<PanelFile> panels;
    for (const std::string& file : files)
        panels.push_back(OpenPanelFile(file));
    PanelReading reading = ReadPanels(panels);
    if (!reading.Complaints.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Check",
                      "Nothing was checked: " + reading.Complaints.front().Text());
    for (const PanelMarker& marker : reading.Markers)
    {
        for (const PanelComplaint& flaw : marker.Flaws)
            context.Err << marker.Marker << " is not checked: " << flaw.Text() << ".\n";
    }
    std::erase_if(reading.Markers, [](const PanelMarker& marker) { return !marker.Flaws.empty(); });
    return std::move(reading.Markers);
}

void PrintFindings(Context& context, OutputFormat format, const CheckRun& run, std::size_t loci)
{
    const std::vector<Finding>& found = run.Found();
    if (format == OutputFormat::Json)
        context.Out << JsonText(FindingsJson(found)) << '\n';
    else if (format == OutputFormat::Tsv)
        PrintTsv(context.Out, FindingsTable(found));
    else
    {
        if (!found.empty())
        {
            PrintAligned(context.Out, FindingsTable(found));
            context.Out << '\n';
        }
        context.Out << "Checked " << CountOfLoci(loci) << ": " << CountOfFindings(found) << ".\n";
    }
}

void Check(Context& context, const CheckOptions& options)
{
    ProgressLine progress(context.Err);
    std::unique_ptr<Store> store;
    CheckSource source;
    if (options.Files.empty())
    {
        store = std::make_unique<Store>(context.StoreLocation);
        for (const std::string& tag : options.Scope.Tags)
            RequireLocus(*store, tag);
        source = CheckSourceOf(*store, options.Scope);
    }
    else
        source = CheckSourceOf(ReadFiles(context, options.Files));

    const std::size_t loci = options.Scope.Tags.empty() ? source.Count : options.Scope.Tags.size();
    CheckRun run(std::move(source), RulesWithout(options.Without));
    const LociProgress counting = progress.Counting("Checking");
    while (run.Step())
        counting(run.Done(), run.Total());
    progress.Clear();
    PrintFindings(context, options.Format, run, loci);
    if (CountOfErrors(run.Found()) > 0)
        context.Status = ExitStatus::Failed;
}

/// Looks at the store itself instead of at the definitions in it.
void CheckTheStore(Context& context)
{
    Store store(context.StoreLocation);
    const std::vector<std::string> faults = CheckIntegrity(store);
    for (const std::string& fault : faults)
        context.Out << OneLine(fault) << '\n';
    if (faults.empty())
        context.Out << "The store is whole, and its history as it was written.\n";
    else
    {
        context.Out << "The store is damaged. Go on with a backup (tamrivo backup makes them).\n";
        context.Status = ExitStatus::Failed;
    }
}

/// What is checked: named loci, those of a parameter or a panel, or files.
void AddScopeOptions(CLI::App& command, CheckOptions& options)
{
    CLI::Option* const tags =
        command.add_option("TAG", options.Scope.Tags, "Locus tags; all current loci unless named")
            ->type_name("");
    CLI::Option* const parameter = command
                                       .add_option("--parameter", options.Scope.Parameter,
                                                   "The loci that this analysis parameter uses")
                                       ->type_name("NAME")
                                       ->excludes(tags);
    CLI::Option* const panel =
        command.add_option("--panel", options.Scope.Panel, "The loci of this panel (primer set)")
            ->type_name("NAME")
            ->excludes(tags)
            ->excludes(parameter);
    command.add_option("--file", options.Files, "Files to check; no store is opened")
        ->type_name("FILE...")
        ->excludes(tags)
        ->excludes(parameter)
        ->excludes(panel);
}

} // namespace

void AddCheckCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "check", "Look for mistakes in the definitions of loci.",
        "  tamrivo check                            all current loci\n"
        "  tamrivo check D3S1358 TH01               two of them, beside those of their panels\n"
        "  tamrivo check --parameter Casework       the loci of an analysis parameter, together\n"
        "  tamrivo check --panel Panel-17           the loci of a panel, together\n"
        "  tamrivo check --file panels.tsv          a file, before it is imported\n"
        "  tamrivo check --without ladder-gap       all rules but one\n"
        "  tamrivo check --format tsv | cut -f3     the tags that have findings\n"
        "  tamrivo check --store-integrity          is the store itself undamaged?\n\n"
        "Status 0: no errors, though there may be warnings; 1: errors, or no check was made.\n\n"
        "Rules:\n" +
            RuleLines());
    const auto options = std::make_shared<CheckOptions>();
    AddScopeOptions(command, *options);
    command
        .add_option("--without", options->Without, "Leave a rule out; may be given several times")
        ->type_name("RULE")
        ->expected(1)
        ->take_all()
        ->check([](const std::string& name) {
            return FindCheckRule(name) != nullptr ? std::string()
                                                  : "\"" + name + "\" is none of " + RuleNames();
        });
    command
        .add_flag("--store-integrity", options->StoreIntegrity,
                  "Check the store itself: its tables, its history, and whether they agree; status "
                  "1 when it is damaged")
        ->excludes("TAG");
    AddFormatOption(command, options->Format,
                    {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, options] {
        if (options->StoreIntegrity)
            CheckTheStore(context);
        else
            Check(context, *options);
    });
}

} // namespace Tamrivo
