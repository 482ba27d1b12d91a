#include "host/panels/bins/panels_bins_writer.h"
#include "host/panels/export_files.h"
#include "host/panels/import.h"
#include "host/panels/osiris/kit_writer.h"
#include "host/panels/panel_files.h"
#include "host/panels/table/kit_table_writer.h"
#include "host/store/store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

namespace Tamrivo
{

namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string table = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize."
                          "Max\tVirtual\tColor\tRepeat\tMarker.Min\tMarker.Max\n"
                          "P\tD3S1358\t7.3\t93.1\t92.6\t93.6\t1\tblue\t4\t90\t150\n"
                          "P\tD3S1358\t8\t94.5\t94\t95.1234\t0\tblue\t4\t90\t150\n"
                          "P\tD3S1358\t9.3\t101.2\t100.8\t101.6\t0\tblue\t4\t90\t150\n"
                          "P\tD3S1358\t10\t102.4\t102\t102.8\t0\tblue\t4\t90\t150\n"
                          "P\tTH01\t4\t104.6\t104\t105\t0\tblue\t4\t151\t200\n"
                          "P\tTH01\t5\t108\t107.5\t108.5\t0\tblue\t4\t151\t200\n"
                          "P\tTH01\t6\t112\t111.5\t112.5\t0\tblue\t4\t151\t200\n"
                          "P\tAMEL\tX\t81.79\t81.29\t82.29\t0\tred\t9\t78\t92\n"
                          "P\tAMEL\tY\t87.55\t87.05\t88.05\t0\tred\t9\t78\t92\n"
                          "P\tQS1\t1\t70\t69.5\t70.5\t0\tgreen\t6\t60\t80\n"
                          "P\tBARE\t\t\t\t\t\tgreen\t6\t60\t80\n";

class Export : public testing::Test
{
protected:
    Export()
    {
        std::filesystem::create_directories(m_directory);
        const PanelFile text = PanelFileOf("table", table);
        CarryOutImport(PlanImport(ReadPanels({&text, 1}).Markers, {}, m_store), m_store);
    }
    ~Export() override { std::filesystem::remove_all(m_directory); }

    ExportPlan Plan(const ExportChoice& choice)
    {
        const auto loci = CurrentLoci(m_store.Manager(), "");
        return PlanExport(loci->Members(), choice, m_store.Dyes());
    }

    std::string Text(const ExportChoice& choice)
    {
        std::ostringstream out;
        WriteExport(out, Plan(choice));
        return out.str();
    }

    /// What an import of the files into this store would do.
    ImportPlan Back(const std::vector<std::string>& texts, const ImportChoice& choice = {})
    {
        std::vector<PanelFile> files;
        for (const std::string& text : texts)
            files.push_back(PanelFileOf("file" + std::to_string(files.size()), text));
        const PanelReading reading = ReadPanels(files);
        EXPECT_THAT(reading.Complaints, IsEmpty());
        return PlanImport(reading.Markers, choice, m_store);
    }

    std::filesystem::path m_directory =
        std::filesystem::path(testing::TempDir()) / ("tamrivo_export_" + std::to_string(getpid()));
    Store m_store{m_directory / "loci.sqlite"};
};

TEST_F(Export, OfAKitTableIsForTheProgramsOfR)
{
    const std::string text = Text({.Format = PanelFormat::KitTable, .ShortName = "P17"});
    EXPECT_THAT(text,
                HasSubstr("P\tD3S1358\t8\t94.5\t94\t95.1234\t0\tblue\t4\t90\t150\t62\tP17\tP\t"
                          "FALSE\tFALSE\tFALSE\n"));
    EXPECT_THAT(text, HasSubstr("P\tTH01\t4\t104.6\t104\t105\t0\tblue\t4\t151\t200\t89\t"));
    EXPECT_THAT(text, HasSubstr("\tNA\tP17\tP\tTRUE\tTRUE\tFALSE\n"));
    EXPECT_THAT(text, HasSubstr("60\t80\tNA\tP17\tP\tFALSE\tFALSE\tTRUE\n"));
    EXPECT_EQ(Back({text}).Count(ImportFate::Present), 4U);
    EXPECT_THAT(Plan({.Format = PanelFormat::KitTable}).Losses, HasSubstr("BARE (no alleles)"));
    EXPECT_THROW(Plan({.Format = PanelFormat::KitTable, .ShortName = "TRUE"}), Failure);
}

TEST_F(Export, AppendsToAKitTableInItsOwnForm)
{
    const std::string old =
        "\"Marker\"\t\"Panel\"\t\"Allele\"\t\"Size\"\t\"Size.Min\"\t\"Size.Max\"\t"
        "\"Virtual\"\t\"Color\"\t\"Repeat\"\t\"Marker.Min\"\t\"Marker.Max\"\t"
        "\"Offset\"\t\"Short.Name\"\t\"Full.Name\"\t\"More\"\r\n"
        "\"A\"\t\"Q\"\t\"8\"\t9\t8\t10\t0\t\"blue\"\t4\t1\t9\tNA\t\"Q1\"\t\"Q\"\tx";
    std::ostringstream out;
    AppendToKitTable(out, old, Plan({.Format = PanelFormat::KitTable, .ShortName = "P\"1"}));
    EXPECT_THAT(out.str(), AllOf(StartsWith(old + "\r\n\"D3S1358\"\t\"P\"\t\"7.3\"\t93.1\t"),
                                 HasSubstr("\t62\t\"P\\\"1\"\t\"P\"\tNA\r\n")));
    EXPECT_EQ(Back({out.str()}, {.Panels = {"p\"1"}}).Count(ImportFate::Present), 4U);
    for (const auto& [text, name] : {std::pair{old, "q1"}, {table, "P1"}, {std::string(), "P1"}})
        EXPECT_THROW(
            AppendToKitTable(out, text, Plan({.Format = PanelFormat::KitTable, .ShortName = name})),
            Failure);
}

TEST_F(Export, OfPanelsAndBinsIsReadBackUnchanged)
{
    const ExportPlan plan = Plan({.Format = PanelFormat::PanelsBins, .Kit = "K"});
    std::ostringstream panels;
    std::ostringstream bins;
    WritePanelsFile(panels, plan);
    WriteBinsFile(bins, plan);
    EXPECT_THAT(panels.str(), HasSubstr("Chemistry Kit\tK\tnull\nPanel\tP\tnull\n"
                                        "D3S1358\tblue\t90\t150\t-\t4\tnone\t8, 9.3, 10\n"));
    EXPECT_THAT(bins.str(), AllOf(HasSubstr("\nBinSet Name\tK_Bins\nPanel Name\tP\n"),
                                  HasSubstr("\n7.3\t93.1\t0.5\t0.5\tvirtual\n"
                                            "8\t94.5\t0.5\t0.6234\n"),
                                  Not(HasSubstr("\n\n"))));
    EXPECT_EQ(Back({panels.str(), bins.str()}).Count(ImportFate::Present), 4U);
}

TEST_F(Export, OfAKitFileFollowsTheRepeats)
{
    const ExportChoice choice{
        .Format = PanelFormat::OsirisKit, .Kit = "K", .SizeStandards = {"S1", "S2"}};
    const std::string text = Text(choice);
    const PanelFile file = PanelFileOf("kit", text);
    const PanelReading reading = ReadPanels({&file, 1});
    ASSERT_EQ(reading.Markers.size(), 3U);
    std::string sizes;
    for (const PanelMarker& marker : reading.Markers)
    {
        sizes += marker.Marker + "/" + std::to_string(marker.RepeatLength);
        for (const PanelAllele& allele : marker.Alleles)
            sizes += " " + allele.Name + ":" + std::to_string(std::lround(allele.Size));
        sizes += "; ";
    }
    EXPECT_EQ(sizes, "D3S1358/4 8:95 9.3:102 10:103; TH01/4 4:105 5:109 6:113; AMEL/6 1:82 2:88; ");
    // The search regions of neighbours meet in the middle of the gap: (102.4 + 104.6) / 2.
    EXPECT_THAT(text,
                AllOf(HasSubstr("<MinGrid>91.5</MinGrid>"), HasSubstr("<MaxGrid>103.5</MaxGrid>"),
                      HasSubstr("<MinGrid>103.5</MinGrid>"), HasSubstr("<MinBP>94</MinBP>"),
                      HasSubstr("<NChannels>5</NChannels>"), HasSubstr("<ILSName>S2</ILSName>")));
    EXPECT_THAT(Plan(choice).Losses,
                AllOf(HasSubstr("virtual alleles (1)"), HasSubstr("names that are no numbers (1)"),
                      HasSubstr("BARE (no alleles)"),
                      HasSubstr("QS1 (fewer than two alleles in the ladder)")));
    EXPECT_THROW(Plan({.Format = PanelFormat::OsirisKit, .Kit = "K"}), Failure);
    EXPECT_THROW(Plan({.Format = PanelFormat::OsirisKit, .Kit = "a<b", .SizeStandards = {"S"}}),
                 Failure);
}

TEST_F(Export, SaysWhatAFormatCantCarry)
{
    const auto locus = m_store.FindLocus("TH01");
    locus->GenBank = "D00269";
    locus->Ploidy = 4;
    As<Allele>(locus->Alleles().Item(2))->AlleleText1 = "4,5";
    m_store.Manager().Save(*locus, true);
    EXPECT_THAT(
        Plan({.Format = PanelFormat::KitTable}).Losses,
        AllOf(HasSubstr("GenBank accessions (1), ploidies (1)"), Not(HasSubstr("primers"))));
    EXPECT_THAT(Plan({.Format = PanelFormat::PanelsBins}).Losses,
                HasSubstr("TH01 (a comma or a quote in an allele's name)"));
    EXPECT_THAT(Plan({}).Losses, IsEmpty());
}

} // namespace

} // namespace Tamrivo
