#include "host/panels/import.h"
#include "host/panels/panel_files.h"
#include "host/panels/table/panel_writer.h"
#include "host/store/store.h"
#include "tests/fakes/locales.h"
#include "tests/panels/read_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

namespace Tamrivo
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const std::string header = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tVirtual\tColor\tRepeat"
                           "\tMarker.Min\tMarker.Max\tOffset\n";
const std::string d3 = "P\tD3S1358\t8\t94.05\t93.55\t94.55\t1\tblue\t4\t92.01\t148.2\t62\n"
                       "P\tD3S1358\t9\t98.08\t97.58\t98.58\t0\tblue\t4\t92.01\t148.2\t62\n";
const std::string fga = "P\tFGA\t12.2\t258.45\t257.95\t258.95\t0\tYellow\t4\t257\t420\t208\n";
const std::string amel = "P\tAMEL\tX\t81.79\t81.29\t82.29\t0\tRED\t9\t78\t92\t73\n";
const std::string d3OfQ = "Q\tD3S1358\t11\t110\t109.5\t110.5\t0\tgreen\t4\t98\t148\t66\n";
const std::string purple = "P\tD12S391\t18\t232\t231.5\t232.5\t0\tpurple\t4\t211\t270\t160\n";

class Import : public testing::Test
{
protected:
    Import() { std::filesystem::create_directories(m_directory); }
    ~Import() override { std::filesystem::remove_all(m_directory); }

    std::string Path(const std::string& name) const { return m_directory / name; }

    ImportPlan Plan(const std::string& rows, const ImportChoice& choice = {})
    {
        const PanelReading reading = ReadTable(header + rows);
        EXPECT_THAT(reading.Complaints, IsEmpty());
        return PlanImport(reading.Markers, choice, m_store);
    }

    ImportPlan Run(const std::string& rows, const ImportChoice& choice = {})
    {
        ImportPlan plan = Plan(rows, choice);
        CarryOutImport(plan, m_store);
        return plan;
    }

    std::vector<std::string> Tags()
    {
        std::vector<std::string> tags;
        const auto loci = CurrentLoci(m_store.Manager(), "");
        for (const auto& locus : loci->Members())
            tags.push_back(locus->Name());
        return tags;
    }

    std::shared_ptr<Locus> Stored(const std::string& tag) { return m_store.FindLocus(tag); }

    static std::string Exported(Store& store)
    {
        std::ostringstream out;
        std::ostringstream listed;
        const auto loci = CurrentLoci(store.Manager(), "");
        WritePanelTable(listed, loci->Members(), store.Dyes());
        EXPECT_EQ(WritePanelTable(out, store), static_cast<std::size_t>(loci->Count()));
        EXPECT_EQ(out.str(), listed.str());
        return out.str();
    }

    /// Imports what this store exports into a new store.
    void Copy(const std::string& path)
    {
        Store copy(path);
        const PanelReading reading = ReadTable(Exported(m_store));
        ASSERT_THAT(reading.Complaints, IsEmpty());
        const ImportPlan plan = PlanImport(reading.Markers, {}, copy);
        ASSERT_EQ(plan.Count(ImportFate::New), plan.Loci.size());
        CarryOutImport(plan, copy);
        EXPECT_EQ(Exported(copy), Exported(m_store));
    }

    std::filesystem::path m_directory =
        std::filesystem::path(testing::TempDir()) / ("tamrivo_import_" + std::to_string(getpid()));
    Store m_store{Path("loci.sqlite")};
};

TEST_F(Import, FillsTheFieldsOfTheLocus)
{
    const ImportPlan plan = Run(d3 + fga + amel);
    EXPECT_EQ(plan.Count(ImportFate::New), 3U);
    EXPECT_EQ(plan.NewAlleles(), 4U);

    const auto locus = Stored("D3S1358");
    ASSERT_TRUE(locus);
    EXPECT_TRUE(locus->IsCurrent());
    EXPECT_EQ(locus->LocusName, "D3S1358");
    EXPECT_EQ(locus->ProjectName, "Default");
    EXPECT_EQ(locus->ProjectID, m_store.FindProject("Default")->ProjectID());
    EXPECT_EQ(locus->PrimerSet, "P");
    EXPECT_EQ(locus->DyeIndex, 0);
    EXPECT_EQ(locus->FragStart, 92);
    EXPECT_EQ(locus->FragEnd, 149);
    EXPECT_EQ(locus->RepeatLength, 4);
    EXPECT_EQ(locus->ShortestAlleleSize, 94);
    EXPECT_EQ(locus->RepeatsInShortestAllele, "8");
    AlleleFields expected;
    expected.AlleleText1 = "8";
    expected.AlleleReal1 = 94.05;
    expected.AlleleReal2 = 93.55;
    expected.AlleleReal3 = 94.55;
    expected.AlleleReal4 = 8;
    expected.AlleleInt1 = AlleleOrigin::Imported;
    expected.AlleleInt2 = 1;
    EXPECT_EQ(*As<Allele>(locus->Alleles().Item(1)), expected);

    EXPECT_EQ(Stored("FGA")->DyeIndex, 2);
    EXPECT_EQ(Stored("FGA")->RepeatsInShortestAllele, "12.2");
    EXPECT_EQ(Stored("AMEL")->DyeIndex, 3);
    EXPECT_EQ(Stored("AMEL")->RepeatsInShortestAllele, "1");
    EXPECT_EQ(Stored("AMEL")->ShortestAlleleSize, 82);
}

TEST_F(Import, MakesTagsUniqueByThePanel)
{
    Run(d3 + fga + d3OfQ);
    EXPECT_THAT(Tags(), ElementsAre("D3S1358 (P)", "FGA", "D3S1358 (Q)"));
    // One panel after the other, in whatever choice, finds its loci again.
    for (const ImportChoice& choice : {ImportChoice{{"p"}, ""}, {{"P", "Q"}, ""}, {}})
        EXPECT_EQ(Run(d3 + fga + d3OfQ, choice).Count(ImportFate::New), 0U);
}

TEST_F(Import, GivesAPanelAfterAnotherItsOwnTags)
{
    Run(d3 + d3OfQ, {{"Q"}, ""});
    EXPECT_THAT(Tags(), ElementsAre("D3S1358"));
    EXPECT_TRUE(Run(d3 + d3OfQ, {{"P"}, ""}).Loci[0].IsRenamed());
    EXPECT_THAT(Tags(), ElementsAre("D3S1358", "D3S1358 (P)"));
    EXPECT_EQ(Run(d3 + d3OfQ).Count(ImportFate::Present), 2U);
}

TEST_F(Import, RefusesAPanelThatIsNotThere)
{
    try
    {
        Plan(d3 + d3OfQ, {{"R"}, ""});
        FAIL();
    }
    catch (const Failure& failure)
    {
        EXPECT_THAT(failure.what(), AllOf(HasSubstr("\"R\""), HasSubstr("these: P, Q")));
    }
}

TEST_F(Import, NamesWhatFitsNoFieldAndBringsInTheRest)
{
    struct Misfit
    {
        const char* Rows;
        const char* Obstacle;
    };
    for (const Misfit& misfit : {
             Misfit{purple.c_str(), "purple"},
             {"P\tA\t8\t94\t93\t95\t0\tblue\t4\t90\t999.5\t62\n", "Marker.Max is 1000"},
             {"P\tA\t8\t94\t93\t95\t0\tblue\t4\t-0.5\t200\t62\n", "Marker.Min is -1"},
             {"P\tA\t8\t94\t93\t95\t0\tblue\t256\t90\t1e300\t62\n", "Repeat is 256"},
             {"P\tfga\t8\t94\t93\t95\t0\tblue\t4\t90\t200\t62\n", "comes from line 2"},
         })
    {
        const ImportPlan plan = Plan(fga + misfit.Rows);
        EXPECT_EQ(plan.Loci[0].Fate, ImportFate::New);
        EXPECT_EQ(plan.Loci[1].Fate, ImportFate::LeftOut) << misfit.Rows;
        EXPECT_EQ(plan.Loci[1].Line, 3U);
        EXPECT_THAT(plan.Loci[1].Obstacles, testing::Contains(HasSubstr(misfit.Obstacle)));
    }
    Run(d3 + purple);
    EXPECT_THAT(Tags(), ElementsAre("D3S1358"));
}

TEST_F(Import, ChangesNoStoredLocus)
{
    Run(d3 + fga);
    auto edited = Stored("FGA");
    edited->FragEnd = 430;
    edited->Ploidy = 4;
    m_store.Manager().Save(*edited, true);

    const ImportPlan plan = Run(d3 + fga + amel);
    EXPECT_EQ(plan.Loci[0].Fate, ImportFate::Present);
    EXPECT_EQ(plan.Loci[1].Fate, ImportFate::LeftOut);
    EXPECT_THAT(plan.Loci[1].Obstacles, ElementsAre(HasSubstr("differs in: FragEnd.")));
    EXPECT_EQ(plan.Loci[2].Fate, ImportFate::New);
    EXPECT_EQ(Stored("FGA")->FragEnd, 430);

    // A field that the table doesn't state may have any value.
    edited = Stored("FGA");
    edited->FragEnd = 420;
    m_store.Manager().Save(*edited, true);
    EXPECT_EQ(Run(d3 + fga + amel).Count(ImportFate::Present), 3U);
    EXPECT_EQ(Plan(d3, {.Project = "Casework"}).Loci[0].Obstacles.size(), 1U);
}

TEST_F(Import, IsAllOrNothing)
{
    const ImportPlan plan = Plan(d3 + fga + amel, {.Project = "Casework"});
    // Someone else takes a tag before the plan is carried out.
    const auto other = CreateObject<Locus>(m_store.Manager(), "Locus");
    other->SetLocusTag("amel");
    m_store.Manager().Save(*other, true);

    EXPECT_THROW(CarryOutImport(plan, m_store), Failure);
    EXPECT_THAT(Tags(), ElementsAre("amel"));
    EXPECT_FALSE(m_store.FindProject("Casework"));
}

TEST_F(Import, CreatesTheProject)
{
    Run(d3 + fga, {.Project = "Casework"});
    EXPECT_EQ(Stored("FGA")->ProjectName, "Casework");
    EXPECT_EQ(Stored("FGA")->ProjectID, m_store.FindProject("casework")->ProjectID());
}

TEST_F(Import, OfAnExportGivesEqualLociAndAlleles)
{
    Run(d3 + amel + d3OfQ, {.Project = "Casework"});
    const auto bare = CreateObject<Locus>(m_store.Manager(), "Locus");
    bare->SetLocusTag("No alleles ");
    bare->ProjectName = "Default";
    bare->ProjectID = m_store.FindProject("Default")->ProjectID();
    m_store.Manager().Save(*bare, true);

    const auto edited = Stored("AMEL");
    edited->SetLocusTag("Amelogenin, \xC3\xA9"
                        "dit\xC3\xA9");
    edited->LocusName = "tab\there, line\nthere, back\\slash";
    edited->PrimerSet = "";
    edited->RepeatUnitSequence = "AGAT";
    edited->RepeatsInShortestAllele = "05";
    edited->AlleleNamingConventionTypeID = AlleleNamingConvention::Alphabetic;
    edited->StartAtAlphanumeric = "";
    edited->GenBank = "M64982";
    edited->PrimerLabelTypeID = PrimerLabel::Reverse;
    edited->ConfInt = 1.0 / 3;
    edited->SystemConfInt = 0;
    edited->UserSpecifiedConfInt = 1;
    edited->SearchForStutter = edited->DetLongStutter = edited->UseA = true;
    edited->RelStutter = 99;
    edited->Ploidy = 10;
    const auto allele = As<Allele>(edited->Alleles().Item(1));
    allele->AlleleReal1 = 81.1 + 0.7;
    allele->AlleleReal4 = 2.5;
    allele->AlleleInt1 = AlleleOrigin::Edited;
    m_store.Manager().Save(*edited, true);

    Copy(Path("copy.sqlite"));

    Store copy(Path("copy.sqlite"));
    const auto loci = CurrentLoci(m_store.Manager(), "");
    for (const auto& member : loci->Members())
    {
        const auto locus = As<Locus>(member);
        const auto copied = copy.FindLocus(locus->LocusTag());
        ASSERT_TRUE(copied);
        EXPECT_EQ(copied->LocusTag(), locus->LocusTag());
        copied->ProjectID = locus->ProjectID;
        EXPECT_EQ(static_cast<const LocusFields&>(*copied), *locus) << locus->LocusTag();
        ASSERT_EQ(copied->Alleles().Count(), locus->Alleles().Count());
        for (std::int32_t index = 1; index <= locus->Alleles().Count(); ++index)
            EXPECT_EQ(static_cast<const AlleleFields&>(*As<Allele>(copied->Alleles().Item(index))),
                      *As<Allele>(locus->Alleles().Item(index)));
    }
    const PanelReading again = ReadTable(Exported(m_store));
    EXPECT_EQ(PlanImport(again.Markers, {}, m_store).Count(ImportFate::Present), 4U);
}

TEST_F(Import, AndExportDontFollowTheLocale)
{
    const Fakes::LocaleGuard comma(L',', L'.');
    Run(d3 + fga);
    EXPECT_EQ(Stored("FGA")->RepeatsInShortestAllele, "12,2");
    EXPECT_THAT(Exported(m_store),
                AllOf(HasSubstr("\t258.45\t"), HasSubstr("\t12.2\t"), Not(HasSubstr(","))));
    Copy(Path("copy.sqlite"));
    EXPECT_EQ(Store(Path("copy.sqlite")).FindLocus("FGA")->RepeatsInShortestAllele, "12,2");
}

TEST_F(Import, TableKeepsTheColumnsOfAPanel)
{
    Run(amel + fga);
    const PanelReading reading = ReadTable(Exported(m_store));
    ASSERT_THAT(reading.Markers, SizeIs(2));
    EXPECT_EQ(reading.Markers[0].Panel, "P");
    EXPECT_EQ(reading.Markers[0].Marker, "AMEL");
    EXPECT_EQ(reading.Markers[0].Color, "red");
    EXPECT_EQ(reading.Markers[0].Offset, 73);
    EXPECT_EQ(reading.Markers[1].Offset, 208);
}

} // namespace

} // namespace Tamrivo
