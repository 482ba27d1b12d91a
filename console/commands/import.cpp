#include "host/panels/import.h"

#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/progress_line.h"
#include "host/checks/plan_check.h"
#include "host/loci/counts.h"
#include "host/panels/import_result.h"
#include "host/panels/panel_files.h"
#include "host/reports/finding_list.h"
#include "host/reports/table.h"
#include "host/store/store.h"

#include <algorithm>
#include <memory>
#include <set>

namespace Tamrivo
{

namespace
{

struct ImportOptions
{
    std::vector<std::string> Files;
    std::string Format;
    ReadChoice Read;
    ImportChoice Choice;
    bool Partial = false;
    bool DryRun = false;
    bool Verbose = false;
};

[[noreturn]] void RefuseImport(const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "Import", "Nothing was imported: " + why);
}

std::string SourceOf(const ImportOptions& options)
{
    if (options.Files.size() > 1)
        return "these files";
    return options.Files.front() == "-" ? "standard input" : options.Files.front();
}

PanelReading ReadFiles(Context& context, const ImportOptions& options)
{
    const std::shared_ptr<std::istream> input(&context.In, [](std::istream*) {});
    std::vector<PanelFile> files;
    for (const std::string& file : options.Files)
        files.push_back(file == "-" ? PanelFile{"standard input", input} : OpenPanelFile(file));
    ReadChoice choice = options.Read;
    choice.Panels = options.Choice.Panels;
    return ReadPanels(files, choice);
}

/// A place with the file in front where the place leaves it out, since there is only one.
std::string Located(const ImportOptions& options, const std::string& place)
{
    if (options.Files.size() > 1)
        return place;
    return SourceOf(options) + (place.starts_with("line ") ? ", " : ": ") + place;
}

/// Prints what is wrong with the files. Gives whether anything is.
bool ReportComplaints(Context& context, const ImportOptions& options, const PanelReading& reading)
{
    for (const PanelComplaint& complaint : reading.Complaints)
        context.Err << Located(options, complaint.Text()) << ".\n";
    if (reading.Complaints.size() >= MaxPanelComplaints)
        context.Err << "The rest has not been read.\n";
    return !reading.Complaints.empty();
}

/// Prints what can't come in.
void ReportObstacles(Context& context, const ImportOptions& options, const ImportPlan& plan)
{
    std::set<std::string> told;
    for (const PlannedLocus& locus : plan.Loci)
    {
        if (locus.IsLacking)
            continue;
        for (const std::string& reason : locus.Reasons())
        {
            if (told.insert(reason).second)
                context.Err << Located(options, reason) << ".\n";
        }
    }
}

/// What stands in the way of the plan, with the options that lead around it; empty: nothing.
std::string Hindrance(const ImportPlan& plan, const ImportOptions& options)
{
    const std::size_t refused = plan.Refused();
    if (refused == 0 || options.Partial)
        return {};
    std::string why = CountOfLoci(refused) + " can't come in; ";
    const auto dyes = std::ranges::count(plan.Loci, true, &PlannedLocus::NeedsDye);
    if (dyes > 0)
        why += "--add-dyes adds the dyes that " + std::to_string(dyes) + " of them need, ";
    const bool isOlder = std::ranges::any_of(plan.Loci, [](const PlannedLocus& locus) {
        return locus.Fate == ImportFate::LeftOut && !locus.Differences.empty();
    });
    if (isOlder)
        why += "--update brings those that differ to what the file says, ";
    return why + "--partial imports the rest";
}

Table DifferencesOf(const ImportPlan& plan)
{
    Table table{{{"Tag"}, {"Fate"}, {"Field"}, {"Allele"}, {"Stored"}, {"File"}}, {}};
    for (const PlannedLocus& locus : plan.Loci)
    {
        const std::string fate(NameOf(locus.Fate));
        if (locus.Differences.empty())
            table.Rows.push_back({locus.Tag, fate, "", "", "", ""});
        for (const Difference& difference : locus.Differences)
            table.Rows.push_back({locus.Tag, fate, difference.Field, difference.Allele,
                                  difference.Stored, difference.File});
    }
    return table;
}

/// Prints what was noticed in the files and what a check finds in the loci.
void PrintRemarks(std::ostream& out, const ImportPlan& plan, bool isVerbose)
{
    const std::vector<Finding> found = FindingsOf(plan);
    for (const std::string& sentence : SummaryOf(plan.Remarks))
        out << sentence << '\n';
    if (!found.empty())
        out << "A check finds " << CountOfFindings(found) << ":\n";
    for (const std::string& sentence : SummaryOf(found))
        out << "  " << sentence << '\n';
    if (!isVerbose && !(plan.Remarks.empty() && found.empty()))
        out << "--verbose lists each of them.\n";
    if (!isVerbose)
        return;
    for (const PanelRemark& remark : plan.Remarks)
        out << "  " << remark.Text << ".\n";
    if (!found.empty())
        PrintAligned(out, FindingsTable(found));
}

void PrintPlan(Context& context, const ImportOptions& options, const ImportPlan& plan)
{
    if (options.Format == "tsv")
        return PrintTsv(context.Out, DifferencesOf(plan));
    PrintAligned(context.Out, DifferencesOf(plan));
    context.Out << "\nNothing was stored. New: " << plan.Count(ImportFate::New)
                << ", same: " << plan.Count(ImportFate::Present)
                << ", changed: " << plan.Count(ImportFate::Changed)
                << ", refused: " << plan.Count(ImportFate::LeftOut) << ".\n";
    PrintRemarks(context.Out, plan, options.Verbose);
}

void Import(Context& context, ImportOptions options)
{
    // The one option names the format of the files or, for a dry run, that of the plan.
    if (!options.Format.empty() && options.Format != "tsv")
        options.Read.Format = FindFormat(options.Format);
    PanelReading reading = ReadFiles(context, options);
    if (ReportComplaints(context, options, reading))
        RefuseImport(SourceOf(options) + " can't be read");

    Store store(context.StoreLocation);
    if (!options.DryRun)
        store.RequireWritable();
    store.SetReason(context.Reason);
    ProgressLine progress(context.Err);
    ImportPlan plan = PlanImport(reading.Markers, options.Choice, store,
                                 progress.Counting("Comparing with the store"));
    progress.Clear();
    plan.Remarks.insert(plan.Remarks.end(), reading.Remarks.begin(), reading.Remarks.end());
    ReportObstacles(context, options, plan);
    const std::string hindrance = Hindrance(plan, options);
    if (options.DryRun)
    {
        PrintPlan(context, options, plan);
        context.Status = hindrance.empty() ? ExitStatus::Done : ExitStatus::Failed;
        return;
    }
    if (!hindrance.empty())
        RefuseImport(hindrance);
    CarryOutImport(plan, store, progress.Counting("Importing"));
    progress.Clear();
    for (const std::string& sentence : ResultOf(plan, SourceOf(options)))
        context.Out << sentence << '\n';
    PrintRemarks(context.Out, plan, options.Verbose);
    if (!plan.IsAny() && plan.Count(ImportFate::Present) == 0 && !plan.Loci.empty())
        context.Status = ExitStatus::Failed;
}

void AddReadingOptions(CLI::App& command, ImportOptions& options)
{
    command
        .add_option(
            "FILE", options.Files,
            "Panel or kit tables, panels and bins files, kit files of OSIRIS; - is standard "
            "input")
        ->required()
        ->type_name("");
    command
        .add_option("--format", options.Format,
                    "What the files are; known from their content unless named. For a dry run tsv "
                    "prints the plan for a program")
        ->type_name(FormatOptions("|") + "|tsv")
        ->check([](const std::string& name) {
            return name == "tsv" || FindFormat(name)
                       ? std::string()
                       : "\"" + name + "\" is none of " + FormatOptions(", ") + " and tsv";
        });
    command
        .add_option("--panel", options.Choice.Panels,
                    "Import the markers of this panel, by its name, its short or its full one; may "
                    "be given several times")
        ->type_name("NAME")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
    command
        .add_option("--bins", options.Read.BinSet,
                    "The set of bins to take, by its BinSet Name, where a panel has several")
        ->type_name("NAME");
    command
        .add_option("--interval", options.Read.Interval,
                    "From a size to either limit of its bin in nt, where a file has no bins; 0.5")
        ->type_name("NT")
        ->check(CLI::Range(0.0, 1.0));
}

void AddPlanOptions(CLI::App& command, ImportOptions& options)
{
    command
        .add_option("--project", options.Choice.Project,
                    "The project of the loci, created if there is none of that name")
        ->type_name("NAME");
    command.add_flag("--add-dyes", options.Choice.AddDyes,
                     "Give the store the dyes that the markers need");
    command.add_flag("--update", options.Choice.Update,
                     "Bring loci that the store has with other values to what the file says");
    command.add_flag("--partial", options.Partial,
                     "Leave out what can't come in, and import the rest");
    command.add_flag("--dry-run", options.DryRun,
                     "Store nothing; print what would happen, difference by difference");
    command.add_flag("--verbose", options.Verbose,
                     "List every remark and finding, not the number of a kind");
}

} // namespace

void AddImportCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "import", "Make loci of the markers in panel files.",
        "  tamrivo import panels.tsv                       every panel in the file\n"
        "  tamrivo import kits.txt --panel P17             one of them\n"
        "  tamrivo import P_panels.txt P_bins.txt --bins P_bins_POP4\n"
        "                                                  a panel with one of its sets of bins\n"
        "  tamrivo import P_LadderInfo.xml --add-dyes      with the dyes that it needs\n"
        "  tamrivo import panels.tsv --update --dry-run    what an update would change\n"
        "  tamrivo import panels.tsv --partial             without what can't come in\n"
        "  tamrivo export --store a.sqlite | tamrivo import - --store b.sqlite\n");
    const auto options = std::make_shared<ImportOptions>();
    AddReadingOptions(command, *options);
    AddPlanOptions(command, *options);
    AddReasonOption(command, context);
    command.callback([&context, options] { Import(context, *options); });
}

} // namespace Tamrivo
