#include "tests/editor/editor_test.h"

#include <algorithm>

namespace Tamrivo
{
namespace
{

using LifecycleTest = EditorTest;

std::string Names(const ObjectList& list)
{
    std::string names;
    for (const auto& member : list.Members())
        names += member->Name() + " ";
    return names;
}

struct ModeRow
{
    Mode Opened;
    bool EditsTag;
    bool SavesAs;
    bool Generates;
    bool GeneratesOnceActive;
};

class EditorModes : public ::testing::TestWithParam<ModeRow>, protected EditorHost
{};

TEST_P(EditorModes, ShowTheControlsOfTheMode)
{
    const ModeRow& row = GetParam();
    Open(row.Opened);
    EXPECT_EQ(Page.txtLocusTag.Visible(), row.EditsTag);
    EXPECT_EQ(Page.cmbProjects.Visible(), row.EditsTag);
    EXPECT_EQ(Page.lblLocusTag.Visible(), !row.EditsTag);
    EXPECT_EQ(Page.lblProject.Visible(), !row.EditsTag);
    EXPECT_EQ(Page.cmdSaveAs.Visible() && Page.cmdSaveAs.Enabled(), row.SavesAs);
    EXPECT_EQ(Page.cmdSaveAs.Visible(), row.SavesAs);
    EXPECT_EQ(Page.cmdGenAlleleList.Visible(), row.Generates);
    EXPECT_EQ(Page.cmdGenAlleleList.Enabled(), row.Generates);

    const int changes = Host.Base->Changes;
    Host.Pane->Shown = nullptr;
    Host.Base->Activate();
    EXPECT_EQ(Page.cmdGenAlleleList.Visible(), row.GeneratesOnceActive);
    EXPECT_EQ(Page.fraAlleleNamingConvention.Visible(), row.GeneratesOnceActive);
    EXPECT_EQ(Page.fraAlleleNamingConvention.Enabled(), row.GeneratesOnceActive);
    EXPECT_EQ(Host.Base->Changes > changes, !row.GeneratesOnceActive);
    EXPECT_EQ(Host.Pane->Shown == Locus, !row.GeneratesOnceActive);

    Locus->AddAllele("edited");
    Host.Base->Deactivate();
    Host.Objects.Requests.clear();
    Host.Base->Save();
    EXPECT_EQ(Host.Objects.Requests, std::vector<std::string>{"Save " + Locus->Tag + " true"});
    EXPECT_EQ(Names(Locus->Alleles()), row.GeneratesOnceActive ? "stored " : "stored edited ");
    EXPECT_EQ(Parameters().KeyExists("NewLocus"), Locus->TagId < 1);
    EXPECT_TRUE(Reports().empty());
}

INSTANTIATE_TEST_SUITE_P(All, EditorModes,
                         ::testing::Values(ModeRow{Mode::New, true, false, true, true},
                                           ModeRow{Mode::Edit, false, true, true, true},
                                           ModeRow{Mode::EditUntagged, false, true, true, true},
                                           ModeRow{Mode::NewBinning, true, false, true, false},
                                           ModeRow{Mode::BinningTagged, false, false, false, false},
                                           ModeRow{Mode::BinningUntagged, true, false, false,
                                                   false}));

TEST_F(LifecycleTest, WithoutALocusThePageStaysAsItsFormMadeIt)
{
    SetMode(Mode::Edit);
    Initialize();
    EXPECT_EQ(Page.txtFragStart.Text(), "60");
    EXPECT_EQ(Page.lblDateLastModified.Caption(), "01/01/2001");
    EXPECT_EQ(Host.Pane->Shown, nullptr);

    User::Click(Page.cmdGenAlleleList);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"cmdGenAlleleList_Click", true}}));
    EXPECT_EQ(FailureOf([&] { Host.Base->Save(); }), ErrorNumber::NoObject);
}

TEST_F(LifecycleTest, OpensOnceAndTakesTheLocusAway)
{
    Open(Mode::Edit);
    EXPECT_FALSE(Parameters().KeyExists("Locus"));
    EXPECT_EQ(Host.Objects.Requests, (std::vector<std::string>{"Query CurrentLoci Name \"\" 0 true",
                                                               "Query Projects  \"\" 0 true"}));
    Page.txtRepeat.SetText("9");
    Initialize();
    EXPECT_EQ(Page.txtRepeat.Text(), "9");
}

TEST_F(LifecycleTest, ChoosesTheProjectOfTheLocusAndElseTheDefaultOne)
{
    Open(Mode::Edit);
    EXPECT_EQ(Page.cmbProjects.Text() + "|" + Page.lblProject.Caption(), "Third|Third");
    EXPECT_EQ(Locus->ProjectName, "default");

    Locus->ProjectID = 0;
    Open(Mode::New);
    EXPECT_EQ(Page.cmbProjects.Text() + "|" + Page.lblProject.Caption(), "default|default");

    Host.Objects.AddProject("default", 10);
    Open(Mode::New);
    EXPECT_EQ(Page.cmbProjects.ListIndex(), 3);
    Locus->ProjectID = 8;
    Open(Mode::New);
    EXPECT_EQ(Page.cmbProjects.ListIndex(), 1);

    Host.Objects.Lists["Projects"].Objects.clear();
    Open(Mode::New);
    EXPECT_EQ(Page.cmbProjects.ListCount(), 0);
    EXPECT_EQ(FailureOf([&] { Host.Base->Save(); }), ErrorNumber::InvalidArgument);
    EXPECT_TRUE(Host.Objects.Saved.empty());
}

TEST_F(LifecycleTest, AFailureOnTheWayStopsTheOpening)
{
    struct Nameless : Fakes::FakeProject
    {
        Nameless() : FakeProject("", 0) {}
        std::string Name() const override { throw Failure(1, "store", "gone"); }
    };
    Host.Objects.Lists["Projects"].Add(std::make_shared<Nameless>());
    EXPECT_EQ(FailureOf([&] { Open(Mode::Edit); }), 1);
    EXPECT_EQ(Reports(),
              (Tamrivo::Reports{{"LoadProjects", false}, {"m_oPageBase_Initialize", false}}));
    EXPECT_EQ(Page.txtFragStart.Text(), "");
    EXPECT_EQ(Host.Pane->Shown, nullptr);
}

TEST_F(LifecycleTest, SaveReplacesTheAllelesByThoseOfTheCopy)
{
    Open(Mode::Edit);
    auto copy = std::dynamic_pointer_cast<Fakes::FakeLocus>(Host.Pane->Shown);
    ASSERT_NE(copy, Locus);
    const auto added = copy->AddAllele("added");
    EXPECT_EQ(Names(Locus->Alleles()), "stored ");
    Host.Base->Save();
    EXPECT_EQ(Names(Locus->Alleles()), "stored added ");
    EXPECT_EQ(Locus->Alleles().Item(2), added);

    copy->AlleleList.Objects.clear();
    Host.Base->Save();
    EXPECT_EQ(Locus->Alleles().Count(), 0);
}

TEST_F(LifecycleTest, PublishesANewLocusOnceUnderItsKey)
{
    Parameters().Add(std::string("old"), "NewLocus");
    Open(Mode::New);
    Page.txtLocusTag.SetText("D3");
    Host.Objects.Before = [&](const std::string& request) {
        if (request == "Save D3")
        {
            EXPECT_EQ(ParameterItem<std::shared_ptr<Tamrivo::Locus>>(Parameters(), "NewLocus"),
                      Locus);
        }
    };
    Host.Base->Save();
    EXPECT_EQ(Host.Objects.Saved.size(), 1U);
    EXPECT_FALSE(Parameters().KeyExists("NewSaveAs"));
}

TEST_F(LifecycleTest, AFailingSaveStoresNothing)
{
    Open(Mode::Edit);
    Page.txtPloidy.SetText("x");
    EXPECT_EQ(FailureOf([&] { Host.Base->Save(); }), ErrorNumber::NotANumber);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"UpdateLocus", false}, {"m_oPageBase_Save", false}}));
    EXPECT_TRUE(Host.Objects.Saved.empty());
    EXPECT_EQ(Names(Locus->Alleles()), "stored ");
}

TEST_F(LifecycleTest, BinningReadsTheLocusAgainAtActivate)
{
    Open(Mode::BinningTagged);
    EXPECT_FALSE(Binning->Initialized);
    EXPECT_EQ(Host.Pane->Shown, Locus);

    Locus->FragStart = 300;
    Locus->FragEnd = 200;
    Locus->ShortestAlleleSize = 400;
    Locus->DyeIndex = 3;
    Locus->RepeatUnitSequence = " GATA ";
    Locus->AlleleNamingConventionTypeID = AlleleNamingConvention::Alphabetic;
    Locus->StartAtAlphanumeric = "";
    Locus->StartAtNumeric = -4;
    const int changes = Host.Base->Changes;
    Host.Base->Activate();
    EXPECT_EQ(Page.txtShortestAlleleSize.Text(), "200");
    EXPECT_EQ(Page.udShortestAlleleSize.Min(), 300);
    EXPECT_EQ(Page.udShortestAlleleSize.Max(), 200);
    EXPECT_EQ(Page.cmbDye.Text(), "D4");
    EXPECT_EQ(Page.txtRepeatUnitSequence.Text(), "GATA");
    EXPECT_TRUE(Page.optAlleleNaming.Item(1).Value());
    EXPECT_EQ(Locus->StartAtAlphanumeric + Page.txtStartAtAlphanumeric.Text(), "AA");
    EXPECT_EQ(Page.txtStartAtNumeric.Text(), "1");
    EXPECT_GT(Host.Base->Changes, changes);

    Locus->AlleleNamingConventionTypeID = 999;
    Page.txtStartAtNumeric.SetText("5");
    EXPECT_EQ(FailureOf([&] { Host.Base->Activate(); }), ErrorNumber::Application);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"m_oPageBase_Activate", false}}));
    EXPECT_EQ(Reports()[0].Error.Description, "Invalid ID: 999");
    EXPECT_EQ(Page.txtStartAtNumeric.Text(), "5");
}

TEST_F(LifecycleTest, BinningWritesThePageBackAtDeactivate)
{
    Open(Mode::BinningTagged);
    Locus->Current = false;
    Locus->ConfInt = 0.25;
    Page.txtFragStart.SetText("100");
    Page.txtShortestAlleleSize.SetText("150");
    Page.txtRepeatUnitSequence.SetText(" AAT ");
    Page.txtStartAtAlphanumeric.SetText("Q");
    Page.txtStartAtNumeric.SetText("x");
    Page.chkUserSpecified.SetValue(1);
    Page.txtConfInt.SetText("");
    Page.optAlleleNaming.Item(2).SetValue(true);
    Host.Base->Deactivate();
    EXPECT_EQ(Locus->FragStart, 100);
    EXPECT_EQ(Locus->ShortestAlleleSize, 60);
    EXPECT_EQ(Locus->RepeatUnitSequence + Locus->StartAtAlphanumeric, "AATQ");
    EXPECT_EQ(Locus->StartAtNumeric, 1);
    EXPECT_EQ(Locus->UserSpecifiedConfInt, 1);
    EXPECT_EQ(Locus->ConfInt, 0.25);
    EXPECT_EQ(Locus->AlleleNamingConventionTypeID, AlleleNamingConvention::Numeric);
    EXPECT_FALSE(Locus->Current);

    Page.cmbDye.SetText("D2");
    Page.txtFragEnd.SetText("");
    EXPECT_EQ(FailureOf([&] { Host.Base->Deactivate(); }), ErrorNumber::NotANumber);
    EXPECT_TRUE(Reports().empty());
    EXPECT_EQ(Locus->DyeIndex, 1);
}

TEST_F(LifecycleTest, OutsideBinningDeactivateLeavesTheLocusAlone)
{
    Open(Mode::Edit);
    const LocusFields before = *Locus;
    Page.txtFragStart.SetText("100");
    Host.Base->Deactivate();
    Host.Base->Activate();
    EXPECT_EQ(static_cast<const LocusFields&>(*Locus), before);
    EXPECT_EQ(Page.txtFragStart.Text(), "100");
}

TEST(LocusEditorPage, LeavesNothingBehindOnObjectsThatOutliveIt)
{
    Fakes::FakeHost host;
    const auto locus = std::make_shared<Fakes::FakeLocus>();
    {
        LocusEditorPage page(host);
        EXPECT_EQ(page.Page(), host.Base);
        host.Objects.AddProject("Default", 1);
        host.Base->Collection->Add(std::static_pointer_cast<Locus>(locus), "Locus");
        host.Base->Initialize(nullptr);
    }
    bool valid = true;
    host.Base->Activate();
    host.Base->Deactivate();
    host.Base->Validate(valid);
    host.Base->Save();
    host.Pane->ListChanged();
    host.Pane->ValidityChanged(valid);
    locus->SetIsCurrent(!locus->IsCurrent());
    EXPECT_TRUE(host.Objects.Saved.empty());
}

} // namespace
} // namespace Tamrivo
