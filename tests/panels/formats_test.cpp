#include "host/panels/import.h"
#include "host/store/store.h"
#include "tests/panels/format_samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

namespace Tamrivo
{

namespace
{

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using namespace Samples;

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
