#include "host/panels/import.h"
#include "host/panels/panel_files.h"
#include "host/store/store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <set>

namespace Tamrivo
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string kitTable =
    "\"Panel\"\t\"Marker\"\t\"Allele\"\t\"Size\"\t\"Size.Min\"\t\"Size."
    "Max\"\t\"Virtual\"\t\"Color\""
    "\t\"Repeat\"\t\"Marker.Min\"\t\"Marker.Max\"\t\"Offset\"\t\"Short.Name\"\t\"Full.Name\"\r\n"
    "\"Kit "
    "\\\"A\\\"\"\t\"AMEL\"\t\"X\"\t81.79\t81.29\t82.29\t0\t\"Blue\"\t9\t78\t92\tNA\t\"KA\"\t\"Kit "
    "A \"\r\n"
    "\"Kit "
    "\\\"A\\\"\"\t\"TH01\"\t\"9.30\"\t175.5\t175\t176\t1\t\"green\"\t4\t148.2\t194."
    "4\t138\t\"KA\"\t\"Kit A \"\r\n"
    "\"Kit B\"\t\"TH01\"\t\"9.3\"\tNA\tNA\tNA\tNA\t\"black\"\tNA\tNA\tNA\tNA\t\"KB\"\tNA\r\n"
    "\"Kit C\"\t\"FGA\"\t\"20\"\tsmall\t1\t2\t0\t\"red\"\t4\t90\t150\t10\t\"KC\"\tNA\r\n";

const std::string panels =
    "Version\tGM v 4.1\t\t\nKit type:\tMICROSATELLITE\nChemistry Kit\tK\tnone\n"
    "Panel\tP1\tnone\t\t\t\n"
    "D3S1358\tBlue\t90.0\t150.5\t17,18\t4\t0.0\tnone\tnone\tfalse\t\"8, 9, 10,\"\t\t\n"
    "AMEL\tpurple\t70\t90\t-\t9\tnone\tX, Y\n\n\n";

std::string Bins(const std::string& set, const std::string& panel)
{
    return "Version\tGM v 4.1\nChemistry Kit\tKBinSet Name\t" + set + "\nPanel Name\t" + panel +
           "\t\t\nMarker Name\tD3S1358\n8\t93.47\t0.5\t0.5999999999999943\tvirtual\n"
           "9\t97.82\t0.5\t0.5\tdark gray\nMarker Name\tAMEL\nX\t80\t0.4\t0.4\nY\t86\t0.4\t0.4";
}

const std::string kit =
    "<?xml version=\"1.0\"?>\n<KitData><Version>2.7</Version><Kits><Set><Name> K7 </Name>\n"
    "<FsaChannelMap><Channel><KitChannelNumber>2</KitChannelNumber><Color>RED</Color></Channel>"
    "</FsaChannelMap>\n"
    "<!-- <Locus><Name>No</Name></Locus> -->\n"
    "<Locus><Name>D3S1358</Name><Channel>1</Channel><MinBP>94</MinBP><MaxBP>102</MaxBP>\n"
    "<SearchRegions><Region><MinGrid>89.5</MinGrid><MaxGrid>106</MaxGrid></Region>"
    "<Region><MinGrid>92</MinGrid><MaxGrid>107.5</MaxGrid></Region></SearchRegions>\n"
    "<Other x=\"1\"/><LadderAlleles><Allele><Name>8</Name><BP>94</BP></Allele>"
    "<Allele><Name>9.3</Name><BP>101</BP></Allele></LadderAlleles></Locus>\n"
    "<Locus><Name>AMEL</Name><Channel>2</Channel><MinBP>80</MinBP><MaxBP>86</MaxBP>"
    "<CoreRepeatNumber>6</CoreRepeatNumber><LadderAlleles><Allele><Name>1</Name><BP>80</BP></"
    "Allele>"
    "<Allele><Name>2</Name><BP>86</BP></Allele></LadderAlleles></Locus></Set></Kits></KitData>";

PanelReading Read(const std::vector<std::string>& texts, const ReadChoice& choice = {})
{
    std::vector<PanelFile> files;
    for (const std::string& text : texts)
        files.push_back(PanelFileOf("file" + std::to_string(files.size() + 1), text));
    return ReadPanels(files, choice);
}

TEST(Formats, AreKnownFromTheContent)
{
    EXPECT_EQ(DetectFormat(kitTable), PanelFormat::KitTable);
    EXPECT_EQ(DetectFormat("\n" + panels), PanelFormat::PanelsBins);
    EXPECT_EQ(DetectFormat(Bins("S", "P1")), PanelFormat::PanelsBins);
    EXPECT_EQ(DetectFormat("\n  " + kit), PanelFormat::OsirisKit);
    EXPECT_EQ(DetectFormat("Panel\tMarker\tAllele\n"), PanelFormat::PanelTable);
    EXPECT_EQ(DetectFormat("no format"), PanelFormat::PanelTable);
}

TEST(Formats, AKitTableMayHaveQuotesAndMissingValues)
{
    const PanelReading reading = Read({kitTable});
    ASSERT_THAT(reading.Complaints, IsEmpty());
    ASSERT_THAT(reading.Markers, SizeIs(4));
    const PanelMarker& th01 = reading.Markers[1];
    EXPECT_EQ(th01.Panel, "Kit \"A\"");
    EXPECT_THAT(th01.Flaws, IsEmpty());
    EXPECT_EQ(th01.Alleles[0].Name, "9.3");
    EXPECT_TRUE(th01.Alleles[0].IsVirtual);
    EXPECT_FALSE(reading.Markers[0].Offset);
    EXPECT_THAT(reading.Markers[2].Flaws, SizeIs(6));
    EXPECT_TRUE(std::ranges::all_of(reading.Markers[2].Flaws, &PanelComplaint::IsLack));
    EXPECT_FALSE(reading.Markers[3].Flaws[0].IsLack);
    const PanelReading wanted = Read({kitTable}, {.Panels = {"ka"}});
    EXPECT_THAT(wanted.Markers[1].Alleles, SizeIs(1));
    EXPECT_THAT(wanted.Markers[3].Alleles, IsEmpty());
    for (const char* name : {"ka", "kit a", "KIT \"A\""})
        EXPECT_TRUE(IsOfPanels(th01, {name})) << name;
}

TEST(Formats, PanelsAndBinsArePutTogether)
{
    for (const auto& files : {std::vector{panels, Bins("S", "P1")}, {Bins("S", "p1"), panels}})
    {
        const PanelReading reading = Read(files);
        ASSERT_THAT(reading.Complaints, IsEmpty());
        ASSERT_THAT(reading.Markers, SizeIs(2));
        const PanelMarker& d3 = reading.Markers[0];
        EXPECT_EQ(d3.Panel, "P1");
        EXPECT_EQ(d3.RangeEnd, 150.5);
        ASSERT_THAT(d3.Alleles, SizeIs(2));
        EXPECT_EQ(d3.Alleles[0].BinStart, 92.97);
        EXPECT_EQ(d3.Alleles[0].BinEnd, 94.07);
        EXPECT_TRUE(d3.Alleles[0].IsVirtual);
        EXPECT_FALSE(d3.Alleles[1].IsVirtual);
        ASSERT_THAT(reading.Remarks, SizeIs(1));
        EXPECT_THAT(reading.Remarks[0].Text, HasSubstr("D3S1358, allele 10"));
    }
    const std::vector<std::string> two = {panels, Bins("One", "P1"), Bins("Two", "P1")};
    EXPECT_THAT(Read(two, {.BinSet = "two"}).Complaints, IsEmpty());
    EXPECT_THAT(Read(two, {.BinSet = "two"}).BinSets, ElementsAre("One", "Two"));
    // A panel with a single set of bins needs no choice.
    std::string panelsP2 = panels;
    panelsP2.replace(panelsP2.find("P1"), 2, "P2");
    const PanelReading both =
        Read({two[0], two[1], two[2], panelsP2, Bins("Three", "P2")}, {.BinSet = "Two"});
    EXPECT_THAT(both.Complaints, IsEmpty());
    EXPECT_TRUE(std::ranges::all_of(both.Markers, [](const auto& marker) {
        return marker.Flaws.empty() && marker.Alleles.size() == 2;
    }));

    struct Case
    {
        std::vector<std::string> Files;
        ReadChoice Choice;
        const char* Problem;
    };
    for (const auto& [files, choice, problem] : {
             Case{two, {}, "several sets of bins: One, Two"},
             {two, {.BinSet = "Three"}, "but these: One, Two"},
             {{panels, Bins("S", "P2")}, {}, "panels are P1, and the bins are of P2"},
             {{panels}, {}, "give the bins file"},
             {{Bins("S", "P1")}, {}, "give the panels file"},
             {{panels.substr(0, 60), Bins("S", "P1")}, {}, "cut off"},
         })
    {
        const PanelReading reading = Read(files, choice);
        ASSERT_THAT(reading.Complaints, testing::Not(IsEmpty())) << problem;
        EXPECT_THAT(reading.Complaints[0].Text(), HasSubstr(problem));
    }
}

TEST(Formats, ACutOffPairIsToldInOneSentence)
{
    const std::string bins = Bins("S", "P1");
    const std::string whole = panels + "TH01\tred\t90\t150\t-\t4\tnone\t8\n";
    struct Case
    {
        std::string Panels;
        std::string Bins;
        const char* Text;
    };
    for (const auto& [first, second, text] : {
             Case{panels, bins.substr(0, bins.find("9\t97") + 4),
                  "file2, line 6: The file ends in"},
             {panels.substr(0, panels.find("70")), bins, "file1, line 6: The file ends in"},
             {whole, bins.substr(0, bins.find("Marker Name\tAMEL")),
              "file2, line 6: The file ends here without bins of \"AMEL\", \"TH01\";"},
             {whole, bins.substr(0, bins.find("\nX")),
              "file2, line 7: The file ends here without bins of \"AMEL\", \"TH01\";"},
             {panels.substr(0, panels.find("AMEL")), bins,
              "file1, line 5: The file ends here without the markers \"AMEL\" of the bins;"},
             {panels + panels.substr(panels.find("D3S1358")), bins,
              "file1, line 9: The panel has a marker of this name further up"},
             {panels, bins + "\nMarker Name\tD3S1358\n8\t93\t1\t1\n",
              "file2, line 10: The marker \"D3S1358\" has other bins here"},
         })
    {
        const PanelReading reading = Read({first, second});
        std::set<std::string> texts;
        for (const PanelComplaint& complaint : reading.Complaints)
            texts.insert(complaint.Text());
        for (const PanelMarker& marker : reading.Markers)
        {
            for (const PanelComplaint& flaw : marker.Flaws)
                texts.insert(flaw.Text());
        }
        EXPECT_THAT(texts, Contains(StartsWith(text)));
        EXPECT_THAT(texts, SizeIs(testing::Le(2)));
    }
}

TEST(Formats, AKitFileGivesNominalLoci)
{
    const PanelReading reading = Read({kit}, {.Interval = 0.4});
    ASSERT_THAT(reading.Complaints, IsEmpty());
    ASSERT_THAT(reading.Markers, SizeIs(2));
    const PanelMarker& d3 = reading.Markers[0];
    EXPECT_EQ(d3.Panel, "K7");
    EXPECT_EQ(d3.Line, 5U);
    EXPECT_EQ(d3.Color, "blue");
    EXPECT_EQ(reading.Markers[1].Color, "red");
    EXPECT_EQ(d3.RepeatLength, 4);
    EXPECT_EQ(d3.RangeStart, 89.5);
    EXPECT_EQ(d3.RangeEnd, 107.5);
    EXPECT_EQ(d3.Alleles[1].BinStart, 100.6);
    EXPECT_EQ(d3.Alleles[1].Repeats, 9.3);
    EXPECT_TRUE(d3.IsNominal);
}

TEST(Formats, WhatIsNoneOfThemIsToldInOneSentence)
{
    constexpr std::size_t pastLargest = 16'000'000;
    using namespace std::string_literals;
    const std::string columns = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tColor\tRepeat\t"
                                "Marker.Min\tMarker.Max\n";
    for (const auto& [text, problem] : {
             std::pair{""s, "is empty"},
             {"\xFF\xFEP\0"s, "UTF-16"},
             {"P\0"s, "binary"},
             {kit.substr(0, 300), "cut off"},
             {"<svg/>"s, "root is <svg>"},
             {"<KitData/>"s, "no loci"},
             {"<KitData>" + std::string(pastLargest, ' '), "larger than"},
             {columns + std::string(1'000'001, 'x') + "\n", "longer than a million bytes"},
             {columns + std::string(100'000, '\n') + "P\0"s, "zero byte"},
             {"<!DOCTYPE a [<!ENTITY b \"bb\">]><KitData>&b;</KitData>"s, "declares entities"},
         })
    {
        const PanelReading reading = Read({text});
        ASSERT_THAT(reading.Complaints, SizeIs(1)) << problem;
        EXPECT_THAT(reading.Complaints[0].Problem, HasSubstr(problem));
    }
    EXPECT_THAT(Read({kit.substr(0, 300)}).Complaints[0].Text(), StartsWith("line 5, column 71: "));
    std::string flawed = kit;
    flawed.replace(flawed.find("101<"), 3, "x");
    EXPECT_THAT(Read({flawed}).Markers[0].Flaws[0].Text(),
                StartsWith("line 7, column 97, element BP: "));
}

class FormatsInAStore : public testing::Test
{
protected:
    FormatsInAStore() { std::filesystem::create_directories(m_directory); }
    ~FormatsInAStore() override { std::filesystem::remove_all(m_directory); }

    ImportPlan Import(const std::vector<std::string>& texts, const ImportChoice& choice)
    {
        ImportPlan plan = PlanImport(Read(texts).Markers, choice, m_store);
        CarryOutImport(plan, m_store);
        return plan;
    }

    std::filesystem::path m_directory =
        std::filesystem::path(testing::TempDir()) / ("tamrivo_formats_" + std::to_string(getpid()));
    Store m_store{m_directory / "loci.sqlite"};
};

TEST_F(FormatsInAStore, WhatAFileLacksKeepsItsMarkerOut)
{
    const ImportPlan plan = Import({kitTable}, {.Panels = {"ka", "KB"}});
    EXPECT_EQ(plan.Count(ImportFate::New), 2U);
    EXPECT_EQ(plan.Refused(), 0U);
    EXPECT_TRUE(plan.Loci[2].IsLacking);
    EXPECT_EQ(PlanImport(Read({kitTable}).Markers, {}, m_store).Refused(), 1U);
}

TEST_F(FormatsInAStore, DyesAreAddedWithTheLociThatNeedThem)
{
    EXPECT_TRUE(Import({panels, Bins("S", "P1")}, {}).Loci[1].NeedsDye);
    const ImportPlan plan = Import({panels, Bins("S", "P1")}, {.AddDyes = true});
    EXPECT_EQ(m_store.Dyes().ColorOf(4), "purple");
    EXPECT_EQ(m_store.FindLocus("AMEL")->DyeIndex, 4);
    // Someone else has changed the dyes since a plan was made.
    const ImportPlan late = PlanImport(Read({kitTable}).Markers, {.Panels = {"KA"}}, m_store);
    m_store.SetDyes(
        Dyes({{"blue", "A"}, {"green", ""}, {"yellow", ""}, {"red", ""}, {"purple", ""}}));
    EXPECT_THROW(CarryOutImport(late, m_store), Failure);
    EXPECT_FALSE(m_store.FindLocus("TH01"));
}

TEST_F(FormatsInAStore, NamingFollowsTheNamesOfTheAlleles)
{
    Import({panels, Bins("S", "P1")}, {.AddDyes = true});
    EXPECT_EQ(m_store.FindLocus("D3S1358")->AlleleNamingConventionTypeID,
              AlleleNamingConvention::Numeric);
    EXPECT_EQ(m_store.FindLocus("D3S1358")->StartAtNumeric, 8);
    EXPECT_EQ(m_store.FindLocus("AMEL")->AlleleNamingConventionTypeID,
              AlleleNamingConvention::Alphabetic);
    EXPECT_EQ(m_store.FindLocus("AMEL")->StartAtAlphanumeric, "X");
}

TEST_F(FormatsInAStore, AnUpdateBringsWhatTheFileHasAndKeepsTheRest)
{
    Import({panels, Bins("S", "P1")}, {.AddDyes = true});
    const auto edited = m_store.FindLocus("D3S1358");
    edited->GenBank = "NT_005997";
    edited->FragEnd = 200;
    As<Allele>(edited->Alleles().Item(1))->AlleleReal1 = 94;
    As<Allele>(edited->Alleles().Item(2))->AlleleText1 = "9.2";
    m_store.Manager().Save(*edited, true);

    const ImportPlan plan = Import({panels, Bins("S", "P1")}, {.Update = true});
    EXPECT_EQ(plan.Loci[0].Fate, ImportFate::Changed);
    EXPECT_EQ(plan.Loci[1].Fate, ImportFate::Present);
    std::string differences;
    for (const Difference& one : plan.Loci[0].Differences)
        differences += one.Field + "/" + one.Allele + ":" + one.Stored + ">" + one.File + " ";
    EXPECT_EQ(differences, "FragEnd/:200>151 Size/8:94>93.47 Allele/9.2:9.2> Allele/9:>9 ");
    const auto updated = m_store.FindLocus("D3S1358");
    EXPECT_EQ(updated->GenBank, "NT_005997");
    EXPECT_EQ(updated->FragEnd, 151);
    EXPECT_EQ(As<Allele>(updated->Alleles().Item(1))->AlleleReal1, 93.47);
    EXPECT_EQ(updated->Alleles().Count(), 2);

    // A kit file knows alleles by name, and neither sizes nor bins nor what isn't in the ladder.
    std::string of = kit;
    of.replace(of.find(" K7 "), 4, "P1");
    const ImportPlan byKit = Import({of}, {.Update = true});
    const auto after = m_store.FindLocus("D3S1358");
    ASSERT_EQ(after->Alleles().Count(), 2);
    EXPECT_EQ(As<Allele>(after->Alleles().Item(1))->AlleleReal1, 93.47);
    EXPECT_EQ(As<Allele>(after->Alleles().Item(2))->AlleleText1, "9.3");
    EXPECT_EQ(after->FragEnd, 151);
    const auto amel = m_store.FindLocus("AMEL");
    EXPECT_EQ(As<Allele>(amel->Alleles().Item(1))->AlleleText1, "X");
    EXPECT_EQ(amel->DyeIndex, 3);

    // A save over a change that someone else has made meanwhile is refused.
    const ImportPlan late =
        PlanImport(Read({panels, Bins("S", "P1")}).Markers, {.Update = true}, m_store);
    amel->GenBank = "M55418";
    m_store.Manager().Save(*amel, true);
    EXPECT_THROW(CarryOutImport(late, m_store), Failure);
    EXPECT_EQ(m_store.FindLocus("D3S1358")->Alleles().Count(), 2);
}

} // namespace

} // namespace Tamrivo
