#include "tests/editor/editor_test.h"

namespace Tamrivo
{
namespace
{

using GroupsTest = EditorTest;

TEST_F(GroupsTest, TheChosenConventionHasItsStartGroup)
{
    Open(Mode::Edit);
    const std::pair<int, const char*> cases[] = {{2, "numeric"}, {1, "alphabetic"}, {0, "none"}};
    for (const auto& [index, live] : cases)
    {
        User::Click(Page.optAlleleNaming.Item(index));
        for (const Control* control : std::initializer_list<const Control*>{
                 &Page.txtStartAtNumeric, &Page.udStartAtNumeric, &Page.lblStartAtNumeric})
            EXPECT_EQ(control->Enabled(), std::string(live) == "numeric") << control->Name();
        for (const Control* control : std::initializer_list<const Control*>{
                 &Page.txtStartAtAlphanumeric, &Page.udStartAtAlphanumeric,
                 &Page.lblStartAtAlphanumeric})
            EXPECT_EQ(control->Enabled(), std::string(live) == "alphabetic") << control->Name();
    }
}

TEST_F(GroupsTest, TheLetterSpinStepsByTheLocus)
{
    Open(Mode::Edit);
    User::Click(Page.optAlleleNaming.Item(1));
    Page.txtStartAtAlphanumeric.SetText("");
    User::Up(Page.udStartAtAlphanumeric);
    EXPECT_EQ(Page.txtStartAtAlphanumeric.Text(), "B");
    User::Down(Page.udStartAtAlphanumeric);
    EXPECT_EQ(Page.txtStartAtAlphanumeric.Text(), "A");
    Page.txtStartAtAlphanumeric.SetText("AB");
    User::Up(Page.udStartAtAlphanumeric);
    User::Down(Page.udStartAtAlphanumeric);
    EXPECT_EQ(Page.txtStartAtAlphanumeric.Text(), "AB");
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"udStartAtAlphanumeric_UpClick", true},
                                           {"udStartAtAlphanumeric_DownClick", true}}));
}

TEST_F(GroupsTest, ATagOfBlanksTakesTheLocusOutOfUse)
{
    Open(Mode::Edit);
    Connection validation =
        Host.Base->Validate.Connect([&](bool&) { EXPECT_TRUE(Locus->Current); });
    Page.txtLocusTag.SetText("  ");
    EXPECT_FALSE(Locus->Current);
    validation.reset();
    Page.txtLocusTag.SetText("back");
    EXPECT_FALSE(Locus->Current);
}

TEST_F(GroupsTest, ABoxSwitchesItsDependentsAndLeavesTheirContent)
{
    Locus->StutterWidth = 3;
    Open(Mode::Edit);
    const std::pair<CheckBox*, std::vector<Control*>> groups[] = {
        {&Page.chkSearchForStutter,
         {&Page.lblStutterDetecWindow, &Page.lblRepeats, &Page.txtStutterWidth,
          &Page.lblMaxRelativeStutter, &Page.txtRelStutter, &Page.lblPercentage1, &Page.UpDown1,
          &Page.UpDown2, &Page.chkDetShortStutter, &Page.chkDetLongStutter}},
        {&Page.chkDetectSpuriousPeaks,
         {&Page.lblMaxHeightSpurPeaks, &Page.txtMaxSpurHeight, &Page.UpDown3,
          &Page.lblPercentage2}},
        {&Page.chkUserSpecified, {&Page.txtConfInt, &Page.Label11}},
    };
    for (const auto& [box, dependents] : groups)
    {
        for (const bool on : {true, false})
        {
            std::vector<Control*> switched;
            const Connection observer =
                Page.ControlChanged.Connect([&, master = box](Control& control) {
                    if (&control != master)
                        switched.push_back(&control);
                });
            User::Click(*box);
            for (const Control* dependent : dependents)
                EXPECT_EQ(dependent->Enabled(), on) << dependent->Name();
            EXPECT_TRUE(switched == dependents || box == &Page.chkUserSpecified) << box->Name();
        }
    }
    EXPECT_EQ(Page.txtStutterWidth.Text(), "3");
    EXPECT_EQ(Page.chkDetShortStutter.Value(), 1);
    EXPECT_TRUE(Page.chkUseA.Enabled());
}

TEST_F(GroupsTest, OpeningLeavesTheConfidenceGroupInItsOwnTwoStates)
{
    const std::tuple<int, int, bool, bool> cases[] = {
        {0, 0, false, true}, {1, 1, true, false}, {2, 0, false, true}};
    for (const auto& [stored, box, field, unit] : cases)
    {
        EditorHost editor;
        editor.Locus->UserSpecifiedConfInt = stored;
        editor.Open(Mode::Edit);
        EXPECT_EQ(editor.Page.chkUserSpecified.Value(), box);
        EXPECT_EQ(editor.Page.txtConfInt.Enabled(), field);
        EXPECT_EQ(editor.Page.Label11.Enabled(), unit);
    }
}

TEST_F(GroupsTest, GeneratingWorksOnTheCopy)
{
    Open(Mode::Edit);
    const auto copy = std::dynamic_pointer_cast<Fakes::FakeLocus>(Host.Pane->Shown);
    Page.txtFragStart.SetText("100");
    Page.txtFragEnd.SetText("108");
    Page.txtShortestAlleleSize.SetText("100");
    Page.txtRepeat.SetText("2");
    Page.txtRepeatsInShortestAllele.SetText("5.2");
    Page.txtPloidy.SetText("9");
    Page.txtStartAtNumeric.SetText("any");
    const LocusFields before = *Locus;
    const int changes = Host.Base->Changes;
    User::Click(Page.cmdGenAlleleList);
    EXPECT_EQ(copy->AlleleList.Count(), 5);
    EXPECT_EQ(copy->RepeatsInShortestAllele, "5.2");
    EXPECT_EQ(copy->Ploidy, 2);
    EXPECT_EQ(Host.Pane->Refreshes, 1);
    EXPECT_EQ(Host.Base->Changes, changes);
    EXPECT_EQ(static_cast<const LocusFields&>(*Locus), before);
    EXPECT_EQ(Locus->AlleleList.Count(), 1);

    Page.txtFragStart.SetText("90");
    Page.txtRepeat.SetText("");
    User::Click(Page.cmdGenAlleleList);
    EXPECT_EQ(copy->FragStart, 90);
    EXPECT_EQ(copy->RepeatLength, 2);
    EXPECT_EQ(Host.Pane->Refreshes, 1);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"cmdGenAlleleList_Click", true}}));
}

TEST_F(GroupsTest, GeneratingStoresTheStartOfTheChosenConventionAlone)
{
    Open(Mode::Edit);
    const auto copy = Host.Pane->Shown;
    Page.txtStartAtAlphanumeric.SetText("K");
    Page.txtStartAtNumeric.SetText("12");
    User::Click(Page.optAlleleNaming.Item(1));
    User::Click(Page.cmdGenAlleleList);
    EXPECT_EQ(copy->AlleleNamingConventionTypeID, AlleleNamingConvention::Alphabetic);
    EXPECT_EQ(copy->StartAtAlphanumeric + std::to_string(copy->StartAtNumeric), "K1");
    User::Click(Page.optAlleleNaming.Item(2));
    Page.txtStartAtAlphanumeric.SetText("L");
    User::Click(Page.cmdGenAlleleList);
    EXPECT_EQ(copy->StartAtAlphanumeric + std::to_string(copy->StartAtNumeric), "K12");
}

TEST_F(GroupsTest, InBinningTheHostHearsOfChangedAlleles)
{
    Open(Mode::NewBinning);
    User::Click(Page.cmdGenAlleleList);
    EXPECT_TRUE(Binning->Changed);
    EXPECT_GT(Locus->AlleleList.Count(), 1);
    Binning->Changed = false;
    Host.Pane->ListChanged();
    EXPECT_TRUE(Binning->Changed);
    Binning->Changed = false;
    Fakes::FakeAllele allele;
    Host.Pane->AlleleEdited(allele);
    EXPECT_TRUE(Binning->Changed);
}

struct GuardRow
{
    Mode Opened;
    const char* Undrawn; ///< A control whose changes can't be shown.
    void (*Act)(EditorHost& editor);
    const char* Guards;
};

const GuardRow GuardRows[] = {
    {Mode::Edit, "txtFragStart", [](EditorHost& e) { e.OpenAgain(); },
     "ClearInformation propagating, m_oPageBase_Initialize propagating"},
    {Mode::Edit, "txtShortestAlleleSize", [](EditorHost& e) { e.OpenAgain(); },
     "LoadDefaults propagating, m_oPageBase_Initialize propagating"},
    {Mode::Edit, "cmbProjects", [](EditorHost& e) { e.OpenAgain(); },
     "LoadProjects propagating, m_oPageBase_Initialize propagating"},
    {Mode::Edit, "optAlleleNaming(1)", [](EditorHost& e) { e.OpenAgain(); },
     "LoadLocusData propagating, m_oPageBase_Initialize propagating"},
    {Mode::BinningTagged, "optAlleleNaming(1)", [](EditorHost& e) { e.Host.Base->Activate(); },
     "m_oPageBase_Activate propagating"},
    {Mode::BinningTagged, "", [](EditorHost& e) { e.Host.Base->Deactivate(); }, ""},
    {Mode::Edit, "", [](EditorHost& e) { e.Host.Base->Save(); },
     "UpdateLocus propagating, m_oPageBase_Save propagating"},
    {Mode::Edit, "", [](EditorHost& e) { e.Page.cmdSaveAs.Click(); },
     "UpdateLocus propagating, cmdSaveAs_Click terminal"},
    {Mode::Edit, "", [](EditorHost& e) { e.Page.cmdGenAlleleList.Click(); },
     "cmdGenAlleleList_Click terminal"},
    {Mode::Edit, "", [](EditorHost& e) { e.Host.Base->PageChanged(); },
     "m_oPageBase_Validate propagating"},
    {Mode::Edit, "", [](EditorHost& e) { e.Page.txtLocusTag.Change(); },
     "m_oPageBase_Validate propagating, txtLocusTag_Change terminal"},
    {Mode::Edit, "", [](EditorHost& e) { e.Page.txtStartAtNumeric.Change(); },
     "m_oPageBase_Validate propagating"},
    {Mode::Edit, "txtStartAtAlphanumeric",
     [](EditorHost& e) { e.Page.udStartAtAlphanumeric.UpClick(); },
     "udStartAtAlphanumeric_UpClick terminal"},
    {Mode::Edit, "txtStartAtAlphanumeric",
     [](EditorHost& e) { e.Page.udStartAtAlphanumeric.DownClick(); },
     "udStartAtAlphanumeric_DownClick terminal"},
    {Mode::Edit, "lblStartAtAlphanumeric",
     [](EditorHost& e) { e.Page.optAlleleNaming.Item(1).Click(); },
     "StartAtAlphanumeric (Let) propagating, optAlleleNaming_Click terminal"},
    {Mode::Edit, "lblStartAtNumeric", [](EditorHost& e) { e.Page.optAlleleNaming.Item(2).Click(); },
     "StartAtNumeric (Let) propagating, optAlleleNaming_Click terminal"},
    {Mode::Edit, "UpDown1", [](EditorHost& e) { e.Page.chkSearchForStutter.SetValue(1); },
     "DisplaySearchForStutter propagating, chkSearchForStutter_Click terminal"},
    {Mode::Edit, "UpDown3", [](EditorHost& e) { e.Page.chkDetectSpuriousPeaks.SetValue(1); },
     "DisplayDetectSpuriousPeaks propagating, chkDetectSpuriousPeaks_Click terminal"},
    {Mode::Edit, "txtConfInt", [](EditorHost& e) { e.Page.chkUserSpecified.SetValue(1); },
     "DisplayUserSpecified propagating, chkUserSpecified_Click terminal"},
    {Mode::Edit, "txtShortestAlleleSize",
     [](EditorHost& e) { e.Page.txtShortestAlleleSize.LostFocus(); }, ""},
};

TEST(LocusEditorPage, EachGuardTellsItsNameAndForm)
{
    for (const auto& [mode, undrawn, act, guards] : GuardRows)
    {
        EditorHost editor;
        editor.Open(mode);
        editor.Locus->AlleleNamingConventionTypeID = AlleleNamingConvention::Alphabetic;
        const std::string failing = undrawn;
        if (failing.empty())
            editor.Page.txtFragEnd.SetText("99999999999");
        editor.Page.txtShortestAlleleSize.SetText("1");
        const Connection observer = editor.Page.ControlChanged.Connect([&](Control& control) {
            if (control.Name() == failing)
                throw Failure(1, "test", "no drawing");
        });
        EXPECT_EQ(editor.Host.Utility.GuardsOf([&, does = act] { does(editor); }), guards)
            << failing;
    }

    struct Baseless : Fakes::FakeHost
    {
        std::shared_ptr<PageBase> NewPageBase() override { throw Failure(1, "host", "none"); }
    } baseless;
    EXPECT_EQ(baseless.Utility.GuardsOf([&] { LocusEditorPage page(baseless); }),
              "UserControl_Initialize terminal");
}

TEST_F(GroupsTest, EachRepairTellsItsNameAndForm)
{
    Open(Mode::Edit);
    std::string told;
    for (Control* control : Page.Controls())
    {
        auto* field = dynamic_cast<TextField*>(control);
        if (field == nullptr)
            continue;
        field->SetText("");
        const Connection observer = Page.ControlChanged.Connect([&](Control& changed) {
            if (&changed == field)
                throw Failure(1, "test", "no drawing");
        });
        const std::string guards = Host.Utility.GuardsOf([&] { field->LostFocus(); });
        told += guards.empty() ? "" : guards + "\n";
    }
    EXPECT_EQ(told, R"(txtFragStart_LostFocus terminal
txtFragEnd_LostFocus terminal
txtRepeat_LostFocus terminal
txtRepeatsInShortestAllele_LostFocus terminal
txtPloidy_LostFocus terminal
txtStartAtAlphanumeric_LostFocus terminal
txtStartAtNumeric_LostFocus terminal
txtStutterWidth_LostFocus terminal
txtRelStutter_LostFocus terminal
txtMaxSpurHeight_LostFocus terminal
txtConfChoice_LostFocus terminal
)");
}

} // namespace
} // namespace Tamrivo
