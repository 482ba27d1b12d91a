#include "console/commands/command.h"
#include "console/commands/progress_line.h"
#include "console/commands/stored_loci.h"
#include "host/loci/counts.h"
#include "host/panels/export_files.h"
#include "host/panels/export_scope.h"
#include "host/panels/panel_files.h"
#include "host/panels/table/kit_table_writer.h"
#include "host/panels/table/panel_writer.h"
#include "host/panels/whole_file.h"
#include "host/store/store.h"

#include <unistd.h>

#include <memory>

namespace Tamrivo
{

namespace
{

struct ExportOptions
{
    std::vector<std::string> Files;
    std::string Format = "panel-table";
    ExportChoice Choice;
    ExportScope Scope;
    bool Append = false;
};

void CheckFiles(const ExportOptions& options)
{
    const bool isPair = options.Choice.Format == PanelFormat::PanelsBins;
    if (isPair && options.Files.size() != 2)
        throw CLI::ValidationError("FILE", "panels and bins take two file names, PANELS BINS");
    if (!isPair && options.Files.size() > 1)
        throw CLI::ValidationError("FILE", "this format takes one file name");
    if (options.Append &&
        (options.Choice.Format != PanelFormat::KitTable || options.Files.size() != 1))
        throw CLI::ValidationError("--append", "adds to the FILE of a kit table");
}

void WriteFiles(const ExportOptions& options, const ExportPlan& plan, const LociProgress& progress)
{
    if (!options.Append)
        return WriteExportFiles(plan, options.Files, progress);
    const PanelText table = LoadPanelFile(options.Files.front());
    WriteWholeFile(options.Files.front(),
                   [&](std::ostream& out) { AppendToKitTable(out, table.Text, plan, progress); });
}

void PrintExported(Context& context, std::size_t loci, const std::vector<std::string>& files)
{
    context.Out << "Exported " << CountOfLoci(loci) << " to " << files.front()
                << (files.size() > 1 ? " and " + files.back() : "") << ".\n";
}

/// On a terminal the table itself shows how far it is.
LociProgress ProgressOfOutput(ProgressLine& progress)
{
    return isatty(STDOUT_FILENO) == 1 ? LociProgress() : progress.Counting("Exporting");
}

/// Everything in the program's own format, which needs no plan.
void ExportAll(Context& context, Store& store, const ExportOptions& options)
{
    ProgressLine progress(context.Err);
    if (options.Files.empty())
    {
        WritePanelTable(context.Out, store, ProgressOfOutput(progress));
        return;
    }
    std::size_t count = 0;
    WriteWholeFile(options.Files.front(), [&](std::ostream& out) {
        count = WritePanelTable(out, store, progress.Counting("Exporting"));
    });
    progress.Clear();
    PrintExported(context, count, options.Files);
}

void Export(Context& context, ExportOptions options)
{
    options.Choice.Format = FindFormat(options.Format).value_or(PanelFormat::PanelTable);
    CheckFiles(options);
    Store store(context.StoreLocation);
    if (options.Choice.Format == PanelFormat::PanelTable && options.Scope.IsAll())
        return ExportAll(context, store, options);
    for (const std::string& tag : options.Scope.Tags)
        RequireLocus(store, tag);
    ProgressLine progress(context.Err);
    const ExportPlan plan = PlanExport(LociInScope(store, options.Scope), options.Choice,
                                       store.Dyes(), progress.Counting("Reading the loci"));
    progress.Clear();
    if (options.Files.empty())
    {
        WriteExport(context.Out, plan, ProgressOfOutput(progress));
        if (!plan.Losses.empty())
            context.Err << plan.Losses << '\n';
        return;
    }
    WriteFiles(options, plan, progress.Counting("Exporting"));
    progress.Clear();
    PrintExported(context, plan.Count(), options.Files);
    if (!plan.Losses.empty())
        context.Out << plan.Losses << '\n';
}

void AddChoiceOfLoci(CLI::App& command, ExportOptions& options)
{
    auto* parameter = command
                          .add_option("--parameter", options.Scope.Parameter,
                                      "Only the loci of this analysis parameter, in its order")
                          ->type_name("NAME");
    auto* panel =
        command
            .add_option("--panel", options.Scope.Panel, "Only the loci of this panel (primer set)")
            ->type_name("NAME");
    command.add_option("--tag", options.Scope.Tags, "Only this locus; may be given several times")
        ->type_name("TAG")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false)
        ->excludes(parameter)
        ->excludes(panel);
    parameter->excludes(panel);
}

void AddFormatOptions(CLI::App& command, ExportOptions& options)
{
    command
        .add_option("--format", options.Format,
                    "What is written; the panel table unless named, which alone has everything")
        ->type_name(FormatOptions("|"))
        ->check([](const std::string& name) {
            return FindFormat(name) ? std::string()
                                    : "\"" + name + "\" is none of " + FormatOptions(", ");
        });
    command
        .add_option("--kit", options.Choice.Kit,
                    "Name of the kit in a kit file or in panels and bins files; the panel's unless "
                    "named")
        ->type_name("NAME");
    command
        .add_option("--size-standard", options.Choice.SizeStandards,
                    "A size standard of a kit file, as OSIRIS has it; may be given several times")
        ->type_name("NAME")
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
    command
        .add_option(
            "--short-name", options.Choice.ShortName,
            "Name by which programs select the one panel of a kit table; the panel's unless "
            "named")
        ->type_name("NAME");
    command.add_flag("--append", options.Append,
                     "Add the panels to the kit table that stands in FILE, and leave its lines as "
                     "they are");
}

} // namespace

void AddExportCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "export", "Write the current loci for other programs.",
        "  tamrivo export loci.tsv                into a file; import reads it back unchanged\n"
        "  tamrivo export | column -ts $'\\t'      to standard output\n"
        "  tamrivo export kit.txt --format kit-table --panel Panel-17 --short-name P17\n"
        "                                         for strvalidator and euroformix\n"
        "  tamrivo export kit.txt --format kit-table --panel Panel-18 --append\n"
        "                                         one more panel in the same file\n"
        "  tamrivo export P_panels.txt P_bins.txt --format panels-bins --panel Panel-17\n"
        "  tamrivo export P_LadderInfo.xml --format osiris-kit --parameter Casework --kit P\n"
        "          --size-standard STANDARD-1     a kit file of OSIRIS\n");
    const auto options = std::make_shared<ExportOptions>();
    command.add_option("FILE", options->Files, "The file; without one, standard output")
        ->type_name("")
        ->expected(0, 2);
    AddFormatOptions(command, *options);
    AddChoiceOfLoci(command, *options);
    command.callback([&context, options] { Export(context, *options); });
}

} // namespace Tamrivo
