#include "console/commands/command.h"
#include "console/commands/fit_output.h"
#include "console/commands/progress_line.h"
#include "console/commands/stored_loci.h"
#include "host/fit/proposal.h"
#include "host/loci/counts.h"
#include "host/panels/panel_files.h"
#include "host/store/store.h"

#include <algorithm>
#include <memory>

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

std::vector<FittedLocus> FitLoci(Context& context, Store& store, const FitOptions& options,
                                 const ObservedTable& table)
{
    const MarkerLines lines(table);
    std::vector<FittedLocus> fitted;
    for (const std::string& tag : options.Tags)
    {
        FittedLocus locus{RequireLocus(store, tag), {}, {}};
        locus.Lines = lines.Of(locus.Locus->LocusTag(), locus.Locus->LocusName);
        fitted.push_back(std::move(locus));
    }
    ProgressLine progress(context.Err);
    const LociProgress counting = progress.Counting("Fitting");
    for (FittedLocus& locus : fitted)
    {
        const std::vector<double> sizes = table.SizesIn(locus.Lines);
        if (sizes.empty())
            throw Failure(ErrorNumber::InvalidArgument, "Fit",
                          options.Observed + " has no peaks of " + locus.Locus->LocusTag() +
                              "; expected its tag or name in the column Marker");
        locus.Fit = FitLadder(*locus.Locus, AllelesOf(*locus.Locus), sizes);
        counting(static_cast<std::size_t>(&locus - fitted.data()), fitted.size());
    }
    return fitted;
}

/// One line that counts the lines of markers that weren't asked for.
void ReportIgnored(Context& context, const ObservedTable& table,
                   const std::vector<FittedLocus>& fitted)
{
    std::vector<bool> isUsed(table.Lines.size(), false);
    for (const FittedLocus& locus : fitted)
    {
        for (const std::size_t line : locus.Lines)
            isUsed[line] = true;
    }
    const auto ignored = std::ranges::count(isUsed, false);
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

void Fit(Context& context, const FitOptions& options)
{
    const PanelText text = LoadPanelFile(options.Observed);
    const ObservedTable table = ReadObservedTable(text.Text, text.Name);
    Store store(context.StoreLocation);
    const std::vector<FittedLocus> fitted = FitLoci(context, store, options, table);
    if (!options.Peaks.empty())
        WritePeaks(options.Peaks, table, fitted);
    if (options.Apply)
    {
        store.SetReason(context.Reason);
        Apply(store, fitted);
    }
    ReportIgnored(context, table, fitted);
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
        "needed; sizes without a ladder in them get no proposal.\n");
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
