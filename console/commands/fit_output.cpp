#include "console/commands/fit_output.h"

#include "console/commands/aligned_table.h"
#include "host/fit/fit_words.h"
#include "host/fit/proposal.h"
#include "host/panels/cells.h"
#include "host/panels/whole_file.h"
#include "host/reports/locus_listing.h"

#include <algorithm>
#include <utility>

namespace Tamrivo
{

namespace
{

nlohmann::ordered_json FitJson(const FittedLocus& locus)
{
    const LadderFit& fit = locus.Fit;
    nlohmann::ordered_json json{{"tag", locus.Locus->LocusTag()},
                                {"proposed", fit.IsProposed},
                                {"reason", fit.Reason},
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

/// The fit of each line's locus; null where none is proposed.
std::vector<const FittedLocus*> LocusOfLines(const ObservedTable& table,
                                             std::span<const FittedLocus> fitted)
{
    std::vector<const FittedLocus*> locusOfLine(table.Lines.size(), nullptr);
    for (const FittedLocus& locus : fitted)
    {
        for (const std::size_t line : locus.Lines)
            locusOfLine[line] = locus.Fit.IsProposed ? &locus : nullptr;
    }
    return locusOfLine;
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

void WritePeaks(const std::string& path, const ObservedTable& table,
                std::span<const FittedLocus> fitted)
{
    Table peaks;
    for (const std::string& title : table.Titles)
        peaks.Columns.push_back({title});
    for (const char* const title : {"Tag", "Called", "Residual"})
        peaks.Columns.push_back({title});
    const auto locusOfLine = LocusOfLines(table, fitted);
    for (std::size_t at = 0; at < table.Lines.size(); ++at)
    {
        const auto& [cells, sizes] = table.Lines[at];
        for (std::size_t number = 0; number < std::max<std::size_t>(1, sizes.size()); ++number)
        {
            auto& row = peaks.Rows.emplace_back(cells);
            if (sizes.size() > 1)
                row[table.SizeColumn] = NumberCell(sizes[number]);
            const double* const size = sizes.empty() ? nullptr : &sizes[number];
            for (std::string& cell : CallCells(locusOfLine[at], size))
                row.push_back(std::move(cell));
        }
    }
    WriteWholeFile(path, [&peaks](std::ostream& out) { PrintTsv(out, peaks); });
}

} // namespace Tamrivo
