#include "console/commands/locus_sheet.h"

#include "console/commands/aligned_table.h"
#include "console/commands/text_width.h"
#include "contracts/allele.h"
#include "core/numbers.h"
#include "platform/panels/counts.h"
#include "platform/panels/dyes.h"
#include "platform/reports/locus_listing.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

using Json = nlohmann::ordered_json;

struct Choice
{
    std::int32_t Value;
    const char* Text;
};

constexpr Choice namingConventions[] = {
    {AlleleNamingConvention::NominalSize, "nominal size"},
    {AlleleNamingConvention::Alphabetic, "alphabetic"},
    {AlleleNamingConvention::Numeric, "numeric"},
};

constexpr Choice primerLabels[] = {
    {PrimerLabel::Forward, "forward"},
    {PrimerLabel::Reverse, "reverse"},
    {PrimerLabel::None, "none"},
};

constexpr Choice alleleOrigins[] = {
    {AlleleOrigin::Generated, "generated"},
    {AlleleOrigin::Edited, "edited"},
    {AlleleOrigin::Imported, "imported"},
};

template <std::size_t count>
std::string Chosen(std::int32_t value, const Choice (&choices)[count])
{
    const auto* const found = std::ranges::find(choices, value, &Choice::Value);
    return found == std::end(choices) ? IntegerText(value) : found->Text;
}

std::string YesNo(bool value)
{
    return value ? "yes" : "no";
}

std::string Number(std::int32_t value, const char* unit)
{
    return IntegerText(value) + unit;
}

std::string Tolerance(double value)
{
    return "+/- " + DoubleText(value) + " nt";
}

std::string NamesFrom(const Locus& locus)
{
    switch (locus.AlleleNamingConventionTypeID)
    {
    case AlleleNamingConvention::Alphabetic: return ", from " + locus.StartAtAlphanumeric + " on";
    case AlleleNamingConvention::Numeric:
        return ", from " + IntegerText(locus.StartAtNumeric) + " on";
    default: return {};
    }
}

struct SheetLine
{
    const char* Label;
    std::string (*Text)(const Locus&);
};

constexpr SheetLine sheetLines[] = {
    {"Tag", [](const Locus& locus) { return locus.LocusTag(); }},
    {"Name", [](const Locus& locus) { return locus.LocusName; }},
    {"Project", [](const Locus& locus) { return locus.ProjectName; }},
    {"Current", [](const Locus& locus) { return YesNo(locus.IsCurrent()); }},
    {"Changed", [](const Locus& locus) { return DateText(locus.DateLastModified()); }},
    {"Dye", [](const Locus& locus) { return DyeColor(locus.DyeIndex); }},
    {"Fragment range",
     [](const Locus& locus) {
         return Number(locus.FragStart, " to ") + Number(locus.FragEnd, " nt");
     }},
    {"Repeat unit",
     [](const Locus& locus) {
         return Number(locus.RepeatLength, " nt") +
                (locus.RepeatUnitSequence.empty() ? "" : ", " + locus.RepeatUnitSequence);
     }},
    {"Shortest allele",
     [](const Locus& locus) {
         return Number(locus.ShortestAlleleSize, " nt, repeats: ") + locus.RepeatsInShortestAllele;
     }},
    {"Allele names",
     [](const Locus& locus) {
         return Chosen(locus.AlleleNamingConventionTypeID, namingConventions) + NamesFrom(locus);
     }},
    {"Ploidy", [](const Locus& locus) { return IntegerText(locus.Ploidy); }},
    {"Primer set", [](const Locus& locus) { return locus.PrimerSet; }},
    {"GenBank accession", [](const Locus& locus) { return locus.GenBank; }},
    {"Labelled primer",
     [](const Locus& locus) { return Chosen(locus.PrimerLabelTypeID, primerLabels); }},
    {"Forward primer", [](const Locus& locus) { return locus.FwdPrimer; }},
    {"Reverse primer", [](const Locus& locus) { return locus.RevPrimer; }},
    {"Confidence interval",
     [](const Locus& locus) {
         return locus.UserSpecifiedConfInt == 1
                    ? Tolerance(locus.ConfInt) + ", entered"
                    : Tolerance(locus.SystemConfInt) + ", system generated";
     }},
    {"Search for stutter", [](const Locus& locus) { return YesNo(locus.SearchForStutter); }},
    {"Stutter window",
     [](const Locus& locus) {
         return Number(locus.StutterWidth, locus.StutterWidth == 1 ? " repeat" : " repeats");
     }},
    {"Largest stutter",
     [](const Locus& locus) { return Number(locus.RelStutter, " % of the allele's peak"); }},
    {"Shorter stutter", [](const Locus& locus) { return YesNo(locus.DetShortStutter); }},
    {"Longer stutter", [](const Locus& locus) { return YesNo(locus.DetLongStutter); }},
    {"Spurious peaks", [](const Locus& locus) { return YesNo(locus.DetectSpuriousPeaks); }},
    {"Largest spurious", [](const Locus& locus) { return Number(locus.MaxSpurHeight, " %"); }},
    {"Sizes include A", [](const Locus& locus) { return YesNo(locus.ApparentSizeIncludesA); }},
    {"Detect plus-A", [](const Locus& locus) { return YesNo(locus.DetectA); }},
    {"Call the plus-A peak", [](const Locus& locus) { return YesNo(locus.UseA); }},
};

Table AlleleTable(Locus& locus)
{
    Table table{{{"Allele"},
                 {"Size (nt)", Table::Number},
                 {"Bin from (nt)", Table::Number},
                 {"Bin to (nt)", Table::Number},
                 {"Repeats", Table::Number},
                 {"Origin"},
                 {"In ladder"}},
                {}};
    for (const auto& member : locus.Alleles().Members())
    {
        const AlleleFields& allele = *As<Allele>(member);
        table.Rows.push_back({allele.AlleleText1, DoubleText(allele.AlleleReal1),
                              DoubleText(allele.AlleleReal2), DoubleText(allele.AlleleReal3),
                              allele.AlleleReal4 == 0 ? "" : DoubleText(allele.AlleleReal4),
                              Chosen(allele.AlleleInt1, alleleOrigins),
                              YesNo(allele.AlleleInt2 == 0)});
    }
    return table;
}

} // namespace

void PrintLocusSheet(std::ostream& out, Locus& locus)
{
    constexpr std::size_t labelWidth = 22;
    for (const SheetLine& line : sheetLines)
    {
        const std::string text = PrintableText(line.Text(locus));
        if (!text.empty())
            out << line.Label << std::string(labelWidth - TextWidth(line.Label), ' ') << text
                << '\n';
    }
    const Table alleles = AlleleTable(locus);
    out << '\n' << CountOfAlleles(alleles.Rows.size()) << '\n';
    if (!alleles.Rows.empty())
    {
        out << '\n';
        PrintAligned(out, alleles);
    }
}

Json LocusJson(Locus& locus)
{
    Json json;
    json["LocusTag"] = locus.LocusTag();
    for (const LocusField& field : LocusFieldTable)
        std::visit([&](auto member) { json[std::string(field.Name)] = locus.*member; },
                   field.Member);
    json["IsCurrent"] = locus.IsCurrent();
    json["LocusID"] = locus.LocusID();
    json["LocusTagID"] = locus.LocusTagID();
    json["DateLastModified"] = IsoDate(locus.DateLastModified());
    Json& alleles = json["Alleles"] = Json::array();
    for (const auto& member : locus.Alleles().Members())
    {
        const AlleleFields& allele = *As<Allele>(member);
        alleles.push_back({{"Name", allele.AlleleText1},
                           {"Size", allele.AlleleReal1},
                           {"BinStart", allele.AlleleReal2},
                           {"BinEnd", allele.AlleleReal3},
                           {"Repeats", allele.AlleleReal4},
                           {"Origin", Chosen(allele.AlleleInt1, alleleOrigins)},
                           {"Virtual", allele.AlleleInt2 == 1}});
    }
    return json;
}

} // namespace Tamrivo
