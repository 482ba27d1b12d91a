#include "console/commands/command.h"
#include "console/commands/fit_output.h"
#include "console/commands/progress_line.h"
#include "console/commands/stored_loci.h"
#include "host/fit/observed_reader.h"
#include "host/fit/proposal.h"
#include "host/loci/counts.h"
#include "host/panels/panel_files.h"
#include "host/store/store.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>

namespace Tamrivo
{

namespace
{

struct FitOptions
{
    std::vector<std::string> Tags;
    std::string Observed;
    std::string Peaks;
    bool Apply = false;
    OutputFormat Format = OutputFormat::Table;
};

std::vector<const AlleleFields*> AllelesOf(Locus& locus)
{
    std::vector<const AlleleFields*> alleles;
    for (const auto& member : locus.Alleles().Members())
        alleles.push_back(As<Allele>(member).get());
    return alleles;
}

PanelFile OpenObserved(Context& context, const std::string& path)
{
    if (path == "-")
        return {"standard input", {&context.In, [](std::istream*) {}}};
    return OpenPanelFile(path);
}

std::vector<FittedLocus> FindLoci(Store& store, const std::vector<std::string>& tags)
{
    std::vector<FittedLocus> loci;
    for (const std::string& tag : tags)
        loci.push_back({RequireLocus(store, tag), {}, {}});
    return loci;
}

MarkerSizes ReadSizes(ObservedReader& table, const std::vector<FittedLocus>& loci,
                      const LineProgress& progress)
{
    std::vector<std::string> markers;
    for (const FittedLocus& locus : loci)
    {
        markers.push_back(locus.Locus->LocusTag());
        markers.push_back(locus.Locus->LocusName);
    }
    return MarkerSizes(table, markers, progress);
}

void FitLoci(std::vector<FittedLocus>& loci, const MarkerSizes& observed,
             const std::string& tableName, const LociProgress& counting)
{
    for (FittedLocus& locus : loci)
    {
        const auto* const marker = observed.Of(locus.Locus->LocusTag(), locus.Locus->LocusName);
        if (marker == nullptr || marker->second.Sizes.empty())
            throw Failure(ErrorNumber::InvalidArgument, "Fit",
                          tableName + " has no peaks of " + locus.Locus->LocusTag() +
                              "; expected its tag or name in the column Marker");
        locus.Marker = marker->first;
        locus.Fit = FitLadder(*locus.Locus, AllelesOf(*locus.Locus), marker->second.Sizes);
        counting(static_cast<std::size_t>(&locus - loci.data()), loci.size());
    }
}

/// `--peaks` reads the table a second time.
void WriteCalledPeaks(Context& context, const FitOptions& options,
                      const std::vector<FittedLocus>& fitted, const LineProgress& progress)
{
    ObservedReader table(OpenObserved(context, options.Observed));
    WritePeaks(options.Peaks, table, fitted, progress);
}

void RequireReadTwice(const std::string& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw Failure(ErrorNumber::InvalidArgument, "Fit",
                      "--peaks reads the table twice, which " +
                          (path == "-" ? "standard input" : path) +
                          " doesn't allow; store it in a file and name that");
}

/// One line that counts the lines of markers that weren't asked for.
void ReportIgnored(Context& context, const MarkerSizes& observed,
                   const std::vector<FittedLocus>& fitted)
{
    std::set<std::string> used;
    std::size_t ignored = observed.LineCount();
    for (const FittedLocus& locus : fitted)
    {
        if (used.insert(locus.Marker).second)
            ignored -= observed.All().at(locus.Marker).Lines;
    }
    if (ignored > 0)
        context.Err << "Ignored " << ignored << (ignored == 1 ? " line" : " lines")
                    << " of markers that weren't asked for.\n";
}

void Apply(Store& store, const std::vector<FittedLocus>& fitted)
{
    auto transaction = store.Begin();
    for (const FittedLocus& locus : fitted)
    {
        if (!locus.Fit.IsProposed)
            continue;
        const auto rows = WithProposal(AllelesOf(*locus.Locus), locus.Fit);
        ObjectList& alleles = locus.Locus->Alleles();
        while (alleles.Count() > 0)
            alleles.Remove(alleles.Count());
        for (const AlleleFields& row : rows)
        {
            const auto allele = CreateObject<Allele>(store.Manager(), "Allele");
            static_cast<AlleleFields&>(*allele) = row;
            allele->SetAlleleOwner(locus.Locus);
            alleles.Add(allele);
        }
        store.Manager().Save(*locus.Locus, true);
    }
    transaction.Commit();
}

/// The cautions of a table for programs, which has no room for them.
void ReportCautions(Context& context, const std::vector<FittedLocus>& fitted)
{
    for (const FittedLocus& locus : fitted)
    {
        for (const std::string& caution : locus.Fit.Cautions)
            context.Err << locus.Locus->LocusTag() << ": " << caution << ".\n";
    }
}

void Fit(Context& context, const FitOptions& options)
{
    ObservedReader table(OpenObserved(context, options.Observed));
    if (!options.Peaks.empty())
        RequireReadTwice(options.Observed);
    Store store(context.StoreLocation);
    if (options.Apply)
        store.RequireWritable();
    ProgressLine progress(context.Err);
    std::vector<FittedLocus> fitted = FindLoci(store, options.Tags);
    const MarkerSizes observed = ReadSizes(table, fitted, progress.CountingLines("Reading"));
    FitLoci(fitted, observed, table.Name(), progress.Counting("Fitting"));
    if (!options.Peaks.empty())
        WriteCalledPeaks(context, options, fitted, progress.CountingLines("Writing"));
    progress.Clear();
    if (options.Apply)
    {
        store.SetReason(context.Reason);
        Apply(store, fitted);
    }
    ReportIgnored(context, observed, fitted);
    if (options.Format == OutputFormat::Tsv)
        ReportCautions(context, fitted);
    PrintFit(context.Out, options.Format, fitted);
    const auto proposals = static_cast<std::size_t>(std::ranges::count_if(
        fitted, [](const FittedLocus& locus) { return locus.Fit.IsProposed; }));
    if (options.Format == OutputFormat::Table)
        context.Out << (options.Apply
                            ? "Stored the proposed bins of "
                            : "Nothing was stored; --apply would store the proposed bins of ")
                    << CountOfLoci(proposals) << ".\n";
}

} // namespace

void AddFitCommand(CLI::App& program, Context& context)
{
    CLI::App& command = AddCommand(
        program, context, "fit", "Propose bins from the sizes that an instrument has shown.",
        "  tamrivo fit D3S1358 --observed sizes.tsv            what the sizes say\n"
        "  tamrivo fit D3S1358 TH01 --observed sizes.csv --apply   stores the proposed bins\n"
        "  tamrivo fit TH01 --observed sizes.tsv --peaks called.tsv   which allele each size is\n"
        "  tamrivo fit TH01 --observed sizes.tsv --format json   for a program\n\n"
        "The table of sizes has a line a peak and the columns Sample, Marker (tag or name of the\n"
        "locus) and Size (nt), separated by tabs or commas. At least 8 sizes of 3 alleles are\n"
        "needed; sizes without a ladder in them get no proposal. - is standard input.\n");
    const auto options = std::make_shared<FitOptions>();
    command.add_option("TAG", options->Tags, "The locus tags; case doesn't count")
        ->required()
        ->type_name("");
    command.add_option("--observed", options->Observed, "The table of observed sizes")
        ->required()
        ->type_name("FILE");
    command
        .add_option("--peaks", options->Peaks,
                    "Write the observed table with Tag, Called and Residual (nt) behind it")
        ->type_name("OUT");
    command.add_flag("--apply", options->Apply, "Store the proposed bins");
    AddReasonOption(command, context);
    AddFormatOption(command, options->Format,
                    {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, options] { Fit(context, *options); });
}

} // namespace Tamrivo
