#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/output_format.h"
#include "console/commands/progress_line.h"
#include "console/commands/stored_loci.h"
#include "host/fit/observed_sizes.h"
#include "host/fit/proposal.h"
#include "host/loci/counts.h"
#include "host/loci/keys.h"
#include "host/panels/cells.h"
#include "host/panels/panel_files.h"
#include "host/panels/whole_file.h"
#include "host/reports/locus_listing.h"
#include "host/store/store.h"

#include <algorithm>
#include <cmath>
#include <map>
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

/// A locus with what its observed sizes say.
struct FittedLocus
{
    std::shared_ptr<Tamrivo::Locus> Locus;
    std::vector<std::size_t> Lines; ///< Of the observed table.
    LadderFit Fit;
};

std::vector<const AlleleFields*> AllelesOf(Locus& locus)
{
    std::vector<const AlleleFields*> alleles;
    for (const auto& member : locus.Alleles().Members())
        alleles.push_back(As<Allele>(member).get());
    return alleles;
}

/// The lines of the locus: those whose marker is its tag, else those with its name.
std::vector<std::size_t> LinesOf(const Locus& locus,
                                 const std::map<std::string, std::vector<std::size_t>>& lines)
{
    for (const std::string& name : {locus.LocusTag(), locus.LocusName})
    {
        const auto found = lines.find(LookupKey(name));
        if (found != lines.end())
            return found->second;
    }
    return {};
}

std::vector<FittedLocus> FitLoci(Context& context, Store& store, const FitOptions& options,
                                 const ObservedTable& table)
{
    const auto linesOfMarker = table.LinesOfMarker();
    std::vector<FittedLocus> fitted;
    for (const std::string& tag : options.Tags)
    {
        FittedLocus locus{RequireLocus(store, tag), {}, {}};
        locus.Lines = LinesOf(*locus.Locus, linesOfMarker);
        fitted.push_back(std::move(locus));
    }
    ProgressLine progress(context.Err);
    const LociProgress counting = progress.Counting("Fitting");
    for (FittedLocus& locus : fitted)
    {
        std::vector<double> sizes;
        for (const std::size_t line : locus.Lines)
            sizes.insert(sizes.end(), table.Lines[line].Sizes.begin(),
                         table.Lines[line].Sizes.end());
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

/// Rounded, so that people and programs needn't read digits that mean nothing.
double Rounded(double value)
{
    constexpr double tenThousand = 10'000;
    return std::round(value * tenThousand) / tenThousand;
}

nlohmann::ordered_json FitJson(const FittedLocus& locus)
{
    const LadderFit& fit = locus.Fit;
    nlohmann::ordered_json json{{"tag", locus.Locus->LocusTag()},
                                {"proposed", fit.IsProposed},
                                {"reason", fit.Reason},
                                {"period", Rounded(fit.Period)},
                                {"periodError", Rounded(fit.PeriodError)},
                                {"offset", Rounded(fit.Offset)},
                                {"offsetError", Rounded(fit.OffsetError)},
                                {"meanResidual", Rounded(fit.MeanResidual)},
                                {"shareInBins", Rounded(fit.ShareInBins)},
                                {"gain", Rounded(fit.Gain)},
                                {"unplaced", fit.Unplaced}};
    auto& alleles = json["alleles"] = nlohmann::ordered_json::array();
    for (const auto& [allele, count] : fit.Alleles)
        alleles.push_back({{"name", allele.AlleleText1},
                           {"size", allele.AlleleReal1},
                           {"from", allele.AlleleReal2},
                           {"to", allele.AlleleReal3},
                           {"count", count}});
    return json;
}

Table AllelesTable(std::span<const FittedLocus> fitted, bool isForPeople)
{
    Table table{{{"Tag"},
                 {"Name"},
                 {isForPeople ? "Size, nt" : "Size", Table::Number},
                 {isForPeople ? "From, nt" : "From", Table::Number},
                 {isForPeople ? "To, nt" : "To", Table::Number},
                 {"Count", Table::Number}},
                {}};
    for (const FittedLocus& locus : fitted)
    {
        for (const auto& [allele, count] : locus.Fit.Alleles)
            table.Rows.push_back({locus.Locus->LocusTag(), allele.AlleleText1,
                                  NumberCell(allele.AlleleReal1), NumberCell(allele.AlleleReal2),
                                  NumberCell(allele.AlleleReal3), std::to_string(count)});
    }
    return table;
}

void PrintFitForPeople(std::ostream& out, const FittedLocus& locus)
{
    const LadderFit& fit = locus.Fit;
    const auto text = [](double value) { return NumberCell(Rounded(value)); };
    out << locus.Locus->LocusTag() << ": ";
    if (!fit.IsProposed)
    {
        out << "no proposal. " << fit.Reason << ".\n";
        return;
    }
    out << "period " << text(fit.Period) << " +/- " << text(fit.PeriodError) << " nt, offset "
        << text(fit.Offset) << " +/- " << text(fit.OffsetError) << " nt\n"
        << "mean residual " << text(fit.MeanResidual) << " nt, in bins "
        << text(std::round(1000 * fit.ShareInBins) / 10) << " %, ladder " << text(fit.Gain)
        << " times as clear as in random sizes\n";
    if (!fit.Unplaced.empty())
    {
        out << "not placed:";
        for (const double size : fit.Unplaced)
            out << ' ' << text(size);
        out << " nt\n";
    }
    PrintAligned(out, AllelesTable({&locus, 1}, true));
}

void PrintFit(Context& context, const FitOptions& options, const std::vector<FittedLocus>& fitted)
{
    if (options.Format == OutputFormat::Json)
    {
        auto array = nlohmann::ordered_json::array();
        for (const FittedLocus& locus : fitted)
            array.push_back(FitJson(locus));
        context.Out << JsonText(array) << '\n';
    }
    else if (options.Format == OutputFormat::Tsv)
        PrintTsv(context.Out, AllelesTable(fitted, false));
    else
    {
        for (const FittedLocus& locus : fitted)
        {
            PrintFitForPeople(context.Out, locus);
            context.Out << '\n';
        }
    }
}

/// Writes the observed table with tag, called allele and residual behind its columns.
void WritePeaks(const std::string& path, const ObservedTable& table,
                const std::vector<FittedLocus>& fitted)
{
    std::vector<const FittedLocus*> locusOfLine(table.Lines.size(), nullptr);
    for (const FittedLocus& locus : fitted)
    {
        for (const std::size_t line : locus.Lines)
            locusOfLine[line] = locus.Fit.IsProposed ? &locus : nullptr;
    }
    Table peaks;
    for (const std::string& title : table.Titles)
        peaks.Columns.push_back({title});
    for (const char* const title : {"Tag", "Called", "Residual"})
        peaks.Columns.push_back({title});
    for (std::size_t at = 0; at < table.Lines.size(); ++at)
    {
        const auto& [cells, sizes] = table.Lines[at];
        const FittedLocus* const locus = locusOfLine[at];
        const std::string tag = locus != nullptr ? locus->Locus->LocusTag() : "";
        for (std::size_t number = 0; number < std::max<std::size_t>(1, sizes.size()); ++number)
        {
            auto& row = peaks.Rows.emplace_back(cells);
            if (sizes.size() > 1)
                row[table.SizeColumn] = NumberCell(sizes[number]);
            const ProposedAllele* const called =
                locus != nullptr && !sizes.empty() ? CallSize(locus->Fit, sizes[number]) : nullptr;
            row.push_back(tag);
            row.push_back(called != nullptr ? called->Fields.AlleleText1 : "");
            row.push_back(called != nullptr
                              ? NumberCell(Rounded(sizes[number] - called->Fields.AlleleReal1))
                              : "");
        }
    }
    WriteWholeFile(path, [&peaks](std::ostream& out) { PrintTsv(out, peaks); });
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
        Apply(store, fitted);
    ReportIgnored(context, table, fitted);
    PrintFit(context, options, fitted);
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
    AddFormatOption(command, options->Format,
                    {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json});
    command.callback([&context, options] { Fit(context, *options); });
}

} // namespace Tamrivo
