#include "console/commands/command.h"
#include "console/commands/progress_line.h"
#include "console/commands/stored_loci.h"
#include "core/text.h"
#include "host/loci/counts.h"
#include "host/panels/bins/panels_bins_writer.h"
#include "host/panels/export_plan.h"
#include "host/panels/panel_files.h"
#include "host/panels/table/kit_table_writer.h"
#include "host/panels/whole_file.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <unistd.h>

#include <algorithm>
#include <memory>
#include <unordered_map>

namespace Tamrivo
{

namespace
{

using StoredLoci = std::vector<std::shared_ptr<BusinessObject>>;

struct ExportOptions
{
    std::vector<std::string> Files;
    std::string Format = "panel-table";
    ExportChoice Choice;
    std::string Parameter;
    std::string Panel;
    std::vector<std::string> Tags;
    bool Append = false;
};

[[noreturn]] void Refuse(std::int32_t number, const std::string& why)
{
    throw Failure(number, "Export", "Nothing was exported: " + why);
}

/// The loci of an analysis parameter, in its order.
StoredLoci LociOfParameter(Store& store, const StoredLoci& current, const std::string& name)
{
    ParameterStore parameters(store);
    const auto parameter = parameters.Open(name);
    StoredLoci loci;
    if (parameter->FragAnalysisParam().LocusTagListCount() == 0)
        return loci;
    std::unordered_map<std::int32_t, std::size_t> places;
    for (std::size_t at = 0; at < current.size(); ++at)
        places.emplace(As<Locus>(current[at])->LocusTagID(), at);
    for (const auto& entry : parameter->FragAnalysisParam().LocusTagList(0).Entries())
    {
        if (const auto place = places.find(entry->TagID(0)); place != places.end())
            loci.push_back(current[place->second]);
    }
    return loci;
}

StoredLoci ChosenLoci(Store& store, const ExportOptions& options)
{
    StoredLoci loci;
    if (!options.Tags.empty())
    {
        for (const std::string& tag : options.Tags)
            loci.push_back(RequireLocus(store, tag));
        return loci;
    }
    const auto list = CurrentLoci(store.Manager(), "");
    loci.assign(list->Members().begin(), list->Members().end());
    if (!options.Parameter.empty())
        return LociOfParameter(store, loci, options.Parameter);
    if (!options.Panel.empty())
    {
        std::erase_if(loci, [&options](const auto& locus) {
            return !EqualNoCase(Trim(As<Locus>(locus)->PrimerSet), Trim(options.Panel));
        });
        if (loci.empty())
            Refuse(StoreError::NotFound,
                   "the store has no loci of a panel (primer set) \"" + options.Panel + "\"");
    }
    return loci;
}

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
    const std::string& file = options.Files.front();
    if (options.Append)
    {
        const PanelText table = LoadPanelFile(file);
        WriteWholeFile(
            file, [&](std::ostream& out) { AppendToKitTable(out, table.Text, plan, progress); });
    }
    else if (plan.Choice.Format == PanelFormat::PanelsBins)
    {
        WriteWholeFile(file, [&](std::ostream& out) { WritePanelsFile(out, plan); });
        WriteWholeFile(options.Files.back(), [&](std::ostream& out) { WriteBinsFile(out, plan); });
    }
    else
        WriteWholeFile(file, [&](std::ostream& out) { WriteExport(out, plan, progress); });
}

void Export(Context& context, ExportOptions options)
{
    options.Choice.Format = FindFormat(options.Format).value_or(PanelFormat::PanelTable);
    CheckFiles(options);
    Store store(context.StoreLocation);
    ProgressLine progress(context.Err);
    const ExportPlan plan = PlanExport(ChosenLoci(store, options), options.Choice, store.Dyes(),
                                       progress.Counting("Reading the loci"));
    progress.Clear();
    if (options.Files.empty())
    {
        // On a terminal the table itself shows how far it is.
        WriteExport(context.Out, plan,
                    isatty(STDOUT_FILENO) == 1 ? LociProgress() : progress.Counting("Exporting"));
        if (!plan.Losses.empty())
            context.Err << plan.Losses << '\n';
        return;
    }
    WriteFiles(options, plan, progress.Counting("Exporting"));
    progress.Clear();
    context.Out << "Exported " << CountOfLoci(plan.Count()) << " to " << options.Files.front()
                << (options.Files.size() > 1 ? " and " + options.Files.back() : "") << ".\n";
    if (!plan.Losses.empty())
        context.Out << plan.Losses << '\n';
}

void AddChoiceOfLoci(CLI::App& command, ExportOptions& options)
{
    auto* parameter = command
                          .add_option("--parameter", options.Parameter,
                                      "Only the loci of this analysis parameter, in its order")
                          ->type_name("NAME");
    auto* panel =
        command.add_option("--panel", options.Panel, "Only the loci of this panel (primer set)")
            ->type_name("NAME");
    command.add_option("--tag", options.Tags, "Only this locus; may be given several times")
        ->type_name("TAG")
        ->expected(1)
        ->take_all()
        ->excludes(parameter)
        ->excludes(panel);
    parameter->excludes(panel);
}

void AddFormatOptions(CLI::App& command, ExportOptions& options)
{
    command
        .add_option("--format", options.Format,
                    "What is written; the panel table unless named, which alone has everything")
        ->type_name("panel-table|kit-table|panels-bins|osiris-kit")
        ->check([](const std::string& name) {
            return FindFormat(name) ? std::string()
                                    : "\"" + name +
                                          "\" is none of panel-table, kit-table, panels-bins and "
                                          "osiris-kit";
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
        ->take_all();
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
