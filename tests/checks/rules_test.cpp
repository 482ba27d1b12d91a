#include "host/checks/check_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace Tamrivo
{

namespace
{

using testing::UnorderedElementsAreArray;

AlleleFields AlleleAt(const std::string& name, double size, double below = 0.5, double above = 0.5)
{
    AlleleFields allele;
    allele.AlleleText1 = name;
    allele.AlleleReal1 = size;
    allele.AlleleReal2 = size - below;
    allele.AlleleReal3 = size + above;
    return allele;
}

/// A definition without a fault: alleles 5 to 12 and 9.3 at 4.1 nt a repeat, from 120.5 nt on.
struct Definition
{
    explicit Definition(std::string tag, double from = 100) : Tag(std::move(tag))
    {
        Fields.FragStart = static_cast<std::int32_t>(from);
        Fields.FragEnd = Fields.FragStart + 60;
        Fields.AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
        for (int repeats = 5; repeats <= 12; ++repeats)
            Alleles.push_back(AlleleAt(std::to_string(repeats), from + 4.1 * repeats));
        Alleles.push_back(AlleleAt("9.3", from + 4.1 * 9.75));
    }

    AlleleFields& Named(const std::string& name)
    {
        return *std::ranges::find(Alleles, name, &AlleleFields::AlleleText1);
    }

    std::string Tag;
    LocusFields Fields;
    std::vector<AlleleFields> Alleles;
};

/// What is found in two loci of a panel, as "rule TAG allele field".
std::vector<std::string> FoundIn(const Definition& one, const Definition& two)
{
    const Definition* definitions[] = {&one, &two};
    CheckSource source;
    source.Count = std::size(definitions);
    source.Locus = [&](std::size_t at) {
        std::vector<const AlleleFields*> alleles;
        for (const AlleleFields& allele : definitions[at]->Alleles)
            alleles.push_back(&allele);
        CheckedLocus locus(definitions[at]->Tag, definitions[at]->Fields, std::move(alleles));
        locus.HasKnownDye = definitions[at]->Fields.DyeIndex < 4;
        return locus;
    };
    source.Groups = {{"panel P", {0, 1}, {}}};
    CheckRun run(std::move(source), AllCheckRules());
    while (run.Step())
    {}
    std::vector<std::string> found;
    for (const Finding& finding : run.Found())
    {
        std::string text(finding.Rule->Name);
        for (const std::string& part : {finding.Tag, finding.Allele, finding.Field})
            text += part.empty() ? "" : " " + part;
        found.push_back(std::move(text));
        EXPECT_THAT(finding.Message, testing::Not(testing::EndsWith(".")));
    }
    return found;
}

TEST(CheckRules, EachFindsItsFaultAndNoOther)
{
    const struct
    {
        const char* What;
        std::function<void(Definition&, Definition&)> Break;
        std::vector<std::string> Found;
    } cases[] = {
        {"nothing wrong", [](Definition&, Definition&) {}, {}},
        {"bin into the neighbour's",
         [](Definition& a, Definition&) { a.Named("9.3").AlleleReal3 += 0.3; },
         {"bin-overlap A 10"}},
        {"two loci in one lane",
         [](Definition&, Definition& b) { b = Definition("B", 102); },
         {"bin-overlap A 10", "bin-overlap B 9.3", "range-overlap A FragEnd",
          "range-overlap B FragStart"}},
        {"the same in two dyes",
         [](Definition&, Definition& b) {
             b = Definition("B", 102);
             b.Fields.DyeIndex = 1;
         },
         {}},
        {"size outside its bin, though it fits the name",
         [](Definition& a, Definition&) {
             a.Named("7").AlleleReal2 += 3;
             a.Named("7").AlleleReal3 += 3;
         },
         {"outside-bin A 7", "odd-bin A 7"}},
        {"size moved with its bin",
         [](Definition& a, Definition&) { a.Named("7") = AlleleAt("7", 129.5); },
         {"size-name A 7"}},
        {"size by little more than half a nt off",
         [](Definition& a, Definition&) { a.Named("7") = AlleleAt("7", 129.25); },
         {"size-name A 7"}},
        {"a ladder that bends",
         [](Definition& a, Definition&) {
             for (AlleleFields& allele : a.Alleles)
             {
                 const double off = std::pow((allele.AlleleReal1 - 120.5) / 4.1, 2) / 50;
                 allele = AlleleAt(allele.AlleleText1, allele.AlleleReal1 + off);
             }
         },
         {}},
        {"sizes in whole nt",
         [](Definition& a, Definition&) {
             for (AlleleFields& allele : a.Alleles)
                 allele = AlleleAt(allele.AlleleText1, std::round(allele.AlleleReal1), 0.4, 0.4);
         },
         {}},
        {"9.3 typed as 93",
         [](Definition& a, Definition&) { a.Named("9.3").AlleleText1 = "93"; },
         {"order A 93", "size-name A 93", "ladder-gap A 93"}},
        {"wrong repeat length",
         [](Definition& a, Definition&) {
             std::erase_if(a.Alleles, [](const auto& one) { return one.AlleleText1 == "9.3"; });
             a.Fields.RepeatLength = 5;
         },
         {"size-name A RepeatLength"}},
        {"a row twice",
         [](Definition& a, Definition&) { a.Alleles.push_back(a.Named("8")); },
         {"same-name A 8", "same-bin A 8"}},
        {"9.30 beside 9.3, without numbers for a model",
         [](Definition& a, Definition&) {
             a.Alleles = {AlleleAt("9.3", 120), AlleleAt("9.30", 124)};
         },
         {"same-name A 9.30"}},
        {"sex marker, whose repeat is for display only",
         [](Definition& a, Definition&) {
             a.Fields.RepeatLength = 9;
             a.Alleles = {AlleleAt("1", 120), AlleleAt("2", 126)};
         },
         {}},
        {"names that are sizes",
         [](Definition& a, Definition&) {
             a.Fields.AlleleNamingConventionTypeID = AlleleNamingConvention::NominalSize;
             a.Alleles.clear();
             for (int size = 120; size < 150; size += 4)
                 a.Alleles.push_back(AlleleAt(std::to_string(size), size + 0.2));
         },
         {}},
        {"sequences",
         [](Definition& a, Definition&) {
             a.Fields.RepeatUnitSequence = "AGATX";
             a.Fields.FwdPrimer = "ACTGrywN";
             a.Fields.RevPrimer = "ACT GG";
         },
         {"repeat-length A RepeatUnitSequence", "letters A RepeatUnitSequence",
          "letters A RevPrimer"}},
        {"a dye that nobody has",
         [](Definition& a, Definition&) { a.Fields.DyeIndex = 9; },
         {"unknown-dye A DyeIndex"}},
        {"one primer pair",
         [](Definition& a, Definition& b) {
             a.Fields.FwdPrimer = b.Fields.FwdPrimer = "ACGT";
             a.Fields.RevPrimer = "TTGA";
             b.Fields.RevPrimer = "ttga ";
         },
         {"same-primers B FwdPrimer"}},
        {"an allele in the other's range",
         [](Definition& a, Definition&) { a.Alleles.push_back(AlleleAt("X", 210)); },
         {"range-overlap A X", "outside-range A X", "convention A X"}},
        {"stutter below the range",
         [](Definition& a, Definition&) {
             a.Fields.SearchForStutter = true;
             a.Fields.FragStart = 118;
         },
         {"stutter-range A 5"}},
        {"a gap",
         [](Definition& a, Definition&) {
             std::erase_if(a.Alleles, [](const auto& one) { return one.AlleleText1 == "7"; });
         },
         {"ladder-gap A 8"}},
        {"bins without width",
         [](Definition& a, Definition&) { a.Named("6") = AlleleAt("6", 124.6, 0, 0); },
         {"no-width A 6"}},
        {"bins that touch",
         [](Definition& a, Definition&) { a.Named("10").AlleleReal2 = a.Named("9.3").AlleleReal3; },
         {"bins-touch A 10"}},
    };
    for (const auto& [what, breakIt, expected] : cases)
    {
        Definition one("A");
        Definition two("B", 200);
        breakIt(one, two);
        EXPECT_THAT(FoundIn(one, two), UnorderedElementsAreArray(expected)) << what;
    }
}

TEST(CheckRules, GroupsSayWhichLociAreGone)
{
    CheckSource source;
    source.Groups = {{"analysis parameter Casework", {}, {17}}};
    CheckRun run(std::move(source), AllCheckRules());
    while (run.Step())
    {}
    ASSERT_THAT(run.Found(), testing::SizeIs(1));
    EXPECT_EQ(run.Found()[0].Message, "The analysis parameter Casework names a locus that is gone, "
                                      "number 17; expected loci that the store has");
}

} // namespace

} // namespace Tamrivo
