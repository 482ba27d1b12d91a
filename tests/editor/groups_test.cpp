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
    Host.Base->Validate = [&](bool&) { EXPECT_TRUE(Locus->Current); };
    Page.txtLocusTag.SetText("  ");
    EXPECT_FALSE(Locus->Current);
    Host.Base->Validate = nullptr;
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
            Page.ControlChanged = [&, master = box](Control& control) {
                if (&control != master)
                    switched.push_back(&control);
            };
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

TEST_F(GroupsTest, EveryGuardTellsItsOwnName)
{
    Open(Mode::Edit);
    struct Case
    {
        Control& Victim;
        void (*Act)(LocusEditorPage&);
        Tamrivo::Reports Expected;
    };
    using Form = LocusEditorPage;
    const Case cases[] = {
        {Page.UpDown1,
         [](Form& page) { page.chkSearchForStutter.SetValue(1); },
         {{"DisplaySearchForStutter", false}, {"chkSearchForStutter_Click", true}}},
        {Page.UpDown3,
         [](Form& page) { page.chkDetectSpuriousPeaks.SetValue(1); },
         {{"DisplayDetectSpuriousPeaks", false}, {"chkDetectSpuriousPeaks_Click", true}}},
        {Page.txtConfInt,
         [](Form& page) { page.chkUserSpecified.SetValue(1); },
         {{"DisplayUserSpecified", false}, {"chkUserSpecified_Click", true}}},
        {Page.udStartAtNumeric,
         [](Form& page) { page.optAlleleNaming.Item(2).SetValue(true); },
         {{"StartAtNumeric (Let)", false}, {"optAlleleNaming_Click", true}}},
        {Page.txtConfInt,
         [](Form& page) { page.txtConfInt.LostFocus(); },
         {{"txtConfChoice_LostFocus", true}}},
        {Page.txtRepeat,
         [](Form& page) { page.txtRepeat.LostFocus(); },
         {{"txtRepeat_LostFocus", true}}},
        {Page.txtFragEnd,
         [](Form& page) { page.txtFragEnd.LostFocus(); },
         {{"txtFragEnd_LostFocus", true}}},
        {Page.txtStartAtNumeric,
         [](Form& page) { page.txtStartAtNumeric.LostFocus(); },
         {{"txtStartAtNumeric_LostFocus", true}}},
    };
    for (TextField* field :
         {&Page.txtConfInt, &Page.txtRepeat, &Page.txtFragEnd, &Page.txtStartAtNumeric})
        field->SetText("");
    for (const auto& [victim, act, expected] : cases)
    {
        Reports().clear();
        Page.ControlChanged = [&failing = victim](Control& control) {
            if (&control == &failing)
                throw Failure(1, "test", "no drawing");
        };
        act(Page);
        EXPECT_EQ(Reports(), expected);
    }
}

} // namespace
} // namespace Tamrivo
