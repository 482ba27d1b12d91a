#include "host/reports/locus_sheet.h"

#include "contracts/allele.h"
#include "core/numbers.h"
#include "host/alleles/allele_columns.h"
#include "host/reports/locus_listing.h"

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

std::string WithUnit(std::int32_t value, const char* unit)
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
    std::string (*Text)(const Locus&, const Dyes&);
};

constexpr SheetLine sheetLines[] = {
    {"Tag", [](const Locus& locus, const Dyes&) { return locus.LocusTag(); }},
    {"Name", [](const Locus& locus, const Dyes&) { return locus.LocusName; }},
    {"Project", [](const Locus& locus, const Dyes&) { return locus.ProjectName; }},
    {"Current", [](const Locus& locus, const Dyes&) { return YesNo(locus.IsCurrent()); }},
    {"Changed", [](const Locus& locus, const Dyes&) { return DateText(locus.DateLastModified()); }},
    {"Dye", [](const Locus& locus, const Dyes& dyes) { return dyes.TitleOf(locus.DyeIndex); }},
    {"Fragment range",
     [](const Locus& locus, const Dyes&) {
         return WithUnit(locus.FragStart, " to ") + WithUnit(locus.FragEnd, " nt");
     }},
    {"Repeat unit",
     [](const Locus& locus, const Dyes&) {
         return WithUnit(locus.RepeatLength, " nt") +
                (locus.RepeatUnitSequence.empty() ? "" : ", " + locus.RepeatUnitSequence);
     }},
    {"Shortest allele",
     [](const Locus& locus, const Dyes&) {
         return WithUnit(locus.ShortestAlleleSize, " nt, repeats: ") +
                locus.RepeatsInShortestAllele;
     }},
    {"Allele names",
     [](const Locus& locus, const Dyes&) {
         return Chosen(locus.AlleleNamingConventionTypeID, namingConventions) + NamesFrom(locus);
     }},
    {"Ploidy", [](const Locus& locus, const Dyes&) { return IntegerText(locus.Ploidy); }},
    {"Primer set", [](const Locus& locus, const Dyes&) { return locus.PrimerSet; }},
    {"GenBank accession", [](const Locus& locus, const Dyes&) { return locus.GenBank; }},
    {"Labelled primer",
     [](const Locus& locus, const Dyes&) { return Chosen(locus.PrimerLabelTypeID, primerLabels); }},
    {"Forward primer", [](const Locus& locus, const Dyes&) { return locus.FwdPrimer; }},
    {"Reverse primer", [](const Locus& locus, const Dyes&) { return locus.RevPrimer; }},
    {"Confidence interval",
     [](const Locus& locus, const Dyes&) {
         return locus.UserSpecifiedConfInt == 1
                    ? Tolerance(locus.ConfInt) + ", entered"
                    : Tolerance(locus.SystemConfInt) + ", system generated";
     }},
    {"Search for stutter",
     [](const Locus& locus, const Dyes&) { return YesNo(locus.SearchForStutter); }},
    {"Stutter window",
     [](const Locus& locus, const Dyes&) {
         return WithUnit(locus.StutterWidth, locus.StutterWidth == 1 ? " repeat" : " repeats");
     }},
    {"Largest stutter",
     [](const Locus& locus, const Dyes&) {
         return WithUnit(locus.RelStutter, " % of the allele's peak");
     }},
    {"Shorter stutter",
     [](const Locus& locus, const Dyes&) { return YesNo(locus.DetShortStutter); }},
    {"Longer stutter", [](const Locus& locus, const Dyes&) { return YesNo(locus.DetLongStutter); }},
    {"Spurious peaks",
     [](const Locus& locus, const Dyes&) { return YesNo(locus.DetectSpuriousPeaks); }},
    {"Largest spurious",
     [](const Locus& locus, const Dyes&) { return WithUnit(locus.MaxSpurHeight, " %"); }},
    {"Sizes include A",
     [](const Locus& locus, const Dyes&) { return YesNo(locus.ApparentSizeIncludesA); }},
    {"Detect plus-A", [](const Locus& locus, const Dyes&) { return YesNo(locus.DetectA); }},
    {"Call the plus-A peak", [](const Locus& locus, const Dyes&) { return YesNo(locus.UseA); }},
};

} // namespace

std::vector<SheetEntry> LocusSheet(const Locus& locus, const Dyes& dyes)
{
    std::vector<SheetEntry> entries;
    for (const SheetLine& line : sheetLines)
        entries.push_back({line.Label, line.Text(locus, dyes)});
    return entries;
}

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
                              OriginText(allele.AlleleInt1), YesNo(allele.AlleleInt2 == 0)});
    }
    return table;
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
                           {"Origin", OriginText(allele.AlleleInt1)},
                           {"Virtual", allele.AlleleInt2 == 1}});
    }
    return json;
}

} // namespace Tamrivo
