#include "platform/panels/import.h"

#include "console/commands/command.h"
#include "console/commands/progress_line.h"
#include "platform/panels/counts.h"
#include "platform/panels/import_result.h"
#include "platform/panels/panel_file.h"
#include "platform/store/store.h"

#include <memory>

namespace Tamrivo
{

namespace
{

struct Options
{
    std::string File;
    ImportChoice Choice;
    bool Partial = false;
};

/// Prints what is wrong with the table. Gives whether anything is.
bool ReportComplaints(Context& context, const std::string& file, const PanelReading& reading)
{
    for (const PanelComplaint& complaint : reading.Complaints)
        context.Err << file << ", " << complaint.Text() << '\n';
    if (reading.Complaints.size() >= MaxPanelComplaints)
        context.Err << file << ": the rest of the table has not been read.\n";
    return !reading.Complaints.empty();
}

/// Prints what can't come in. Gives the number of loci.
std::size_t ReportObstacles(Context& context, const std::string& file, const ImportPlan& plan)
{
    for (const PlannedLocus& locus : plan.Loci)
    {
        for (const std::string& obstacle : locus.Obstacles)
            context.Err << file << ", " << locus.Place() << ": " << obstacle << ".\n";
    }
    return plan.Count(ImportFate::LeftOut);
}

[[noreturn]] void RefuseImport(const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "Import", "Nothing was imported: " + why);
}

void Import(Context& context, const Options& options)
{
    const PanelReading reading = ReadPanelFile(options.File);
    if (ReportComplaints(context, options.File, reading))
        RefuseImport(options.File + " has lines that can't be read");

    Store store(context.StoreLocation);
    ProgressLine progress(context.Err);
    const ImportPlan plan = PlanImport(reading.Markers, options.Choice, store,
                                       progress.Counting("Comparing with the store"));
    progress.Clear();
    const std::size_t leftOut = ReportObstacles(context, options.File, plan);
    if (leftOut > 0 && !options.Partial)
        RefuseImport(CountOfLoci(leftOut) + " can't come in; --partial imports the rest");
    CarryOutImport(plan, store, progress.Counting("Importing"));
    progress.Clear();
    for (const std::string& sentence : ResultOf(plan, options.File))
        context.Out << sentence << '\n';
}

} // namespace

void AddImportCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "import", "Make loci of the markers in a panel table.",
        "  tamrivo import panels.tsv                       every panel in the file\n"
        "  tamrivo import panels.tsv --panel Panel-17      one of them\n"
        "  tamrivo import panels.tsv --project Casework    into a project, new or not\n"
        "  tamrivo import panels.tsv --partial             without what can't come in\n");
    const auto options = std::make_shared<Options>();
    command.add_option("FILE", options->File, "A tab-separated table, one line an allele")
        ->required()
        ->type_name("");
    command
        .add_option("--panel", options->Choice.Panels,
                    "Import the markers of this panel; may be given several times")
        ->type_name("NAME")
        ->expected(1)
        ->take_all();
    command
        .add_option("--project", options->Choice.Project,
                    "The project of the loci, created if there is none of that name")
        ->type_name("NAME");
    command.add_flag("--partial", options->Partial,
                     "Leave out what can't come in, and import the rest");
    command.callback([&context, options] { Import(context, *options); });
}

} // namespace Tamrivo
