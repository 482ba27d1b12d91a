#include "console/commands/fit_output.h"

#include "console/commands/aligned_table.h"
#include "host/fit/fit_words.h"
#include "host/fit/observed_reader.h"
#include "host/fit/proposal.h"
#include "host/loci/keys.h"
#include "host/panels/cells.h"
#include "host/panels/whole_file.h"
#include "host/reports/locus_listing.h"

#include <unordered_map>
#include <vector>

namespace Tamrivo
{

namespace
{

nlohmann::ordered_json FitJson(const FittedLocus& locus)
{
    const LadderFit& fit = locus.Fit;
    nlohmann::ordered_json json{{"tag", locus.Locus->LocusTag()},
                                {"proposed", fit.IsProposed},
                                {"reason", ReasonText(fit)},
                                {"period", FitFigure(fit.Period)},
                                {"periodError", FitFigure(fit.PeriodError)},
                                {"offset", FitFigure(fit.Offset)},
                                {"offsetError", FitFigure(fit.OffsetError)},
                                {"meanResidual", FitFigure(fit.MeanResidual)},
                                {"shareInBins", FitFigure(fit.ShareInBins)},
                                {"gain", FitFigure(fit.Gain)},
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
    out << locus.Locus->LocusTag() << '\n';
    for (const std::string& sentence : WordsOf(locus.Fit))
        out << sentence << '\n';
    if (locus.Fit.IsProposed)
        PrintAligned(out, AllelesTable({&locus, 1}, true));
    out << '\n';
}

/// What stands behind the table's own cells for a size; null: the line has none.
std::vector<std::string> CallCells(const FittedLocus* locus, const double* size)
{
    if (locus == nullptr)
        return {"", "", ""};
    const std::string tag = locus->Locus->LocusTag();
    const ProposedAllele* const called = size != nullptr ? CallSize(locus->Fit, *size) : nullptr;
    if (called == nullptr)
        return {tag, "", ""};
    return {tag, called->Fields.AlleleText1,
            NumberCell(FitFigure(*size - called->Fields.AlleleReal1))};
}

std::vector<std::string> WithCells(std::vector<std::string> cells,
                                   const std::vector<std::string>& further)
{
    cells.insert(cells.end(), further.begin(), further.end());
    return cells;
}

} // namespace

void PrintFit(std::ostream& out, OutputFormat format, std::span<const FittedLocus> fitted)
{
    if (format == OutputFormat::Json)
    {
        auto array = nlohmann::ordered_json::array();
        for (const FittedLocus& locus : fitted)
            array.push_back(FitJson(locus));
        out << JsonText(array) << '\n';
    }
    else if (format == OutputFormat::Tsv)
        PrintTsv(out, AllelesTable(fitted, false));
    else
    {
        for (const FittedLocus& locus : fitted)
            PrintFitForPeople(out, locus);
    }
}

void WritePeaks(const std::string& path, ObservedReader& table, std::span<const FittedLocus> fitted,
                const LineProgress& progress)
{
    constexpr std::size_t linesAtOnce = 4096;
    std::unordered_map<std::string, const FittedLocus*> locusOfMarker;
    for (const FittedLocus& locus : fitted)
        locusOfMarker[locus.Marker] = locus.Fit.IsProposed ? &locus : nullptr;
    WriteWholeFile(path, [&](std::ostream& out) {
        PrintTsvRow(out, WithCells(table.Titles(), {"Tag", "Called", "Residual"}));
        ObservedLine line;
        while (table.Next(line))
        {
            if (table.LineNumber() % linesAtOnce == 0)
                progress(table.LineNumber());
            const auto found = locusOfMarker.find(LookupKey(line.Cells[table.MarkerColumn()]));
            const FittedLocus* const locus = found == locusOfMarker.end() ? nullptr : found->second;
            if (line.Sizes.empty())
                PrintTsvRow(out, WithCells(line.Cells, CallCells(locus, nullptr)));
            for (const double size : line.Sizes)
            {
                if (line.Sizes.size() > 1)
                    line.Cells[table.SizeColumn()] = NumberCell(size);
                PrintTsvRow(out, WithCells(line.Cells, CallCells(locus, &size)));
            }
        }
    });
}

} // namespace Tamrivo
