#include "tests/fakes/form_text.h"
#include "tests/selector/selector_fixture.h"

namespace Tamrivo::Fakes
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using Selector = SelectorTest;

TEST_F(Selector, InitializeSplitsTheCurrentLociByTheStoredTags)
{
    Select({4, 99});
    EXPECT_EQ(selector.AllLocusTags(), nullptr);
    Open();
    EXPECT_THAT(TagsOf(available), ElementsAre("A", "B", "C", "E"));
    EXPECT_THAT(TagsOf(selected), ElementsAre("D"));
    EXPECT_EQ(available->GetTextRowCol(1, 2),
              DateText(As<Locus>(selector.AllLocusTags()->Item("A"))->DateLastModified()));
    EXPECT_EQ(selector.AllLocusTags()->Count(), 5);
    EXPECT_EQ(Buttons(), "AddAll RemoveAll NewSTRLocus ");
    EXPECT_THROW(available->SetValueRowCol(1, 1, "x", 1), Failure);

    Select({});
    parameter->Lists = 0;
    Open();
    EXPECT_EQ(selector.NumberOfSelectedLocusTags(), 0);
    EXPECT_EQ(available->RowCount(), 5);
    EXPECT_EQ(selector.SelectedLocusTags().Count(), 0U);
    EXPECT_EQ(Buttons(), "AddAll NewSTRLocus ");

    Select({4, 4});
    parameter->Lists = 1;
    EXPECT_THROW(Open(), Failure);
    EXPECT_THAT(host.Utility.Reports, IsEmpty());
}

TEST_F(Selector, SaveWritesTheSelectionInTheOrderOfItsRows)
{
    host.Store("d2 ");
    Select({4, 5, 6});
    Open();
    User::Click(selected, 0);
    EXPECT_THAT(TagsOf(selected), ElementsAre("E", "d2 ", "D"));
    const std::int32_t rows = selector.NumberOfSelectedLocusTags();

    const auto save = [&](std::int32_t result) {
        host.LoadResults["d2 "] = result;
        host.Messages.clear();
        selector.Save(*parameter);
        return parameter->Tags();
    };
    EXPECT_THAT(save(0), ElementsAre("E", "d2 ", "D"));
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(save(-30984), ElementsAre("E", "D"));
    EXPECT_THAT(host.Messages,
                ElementsAre("Locus Tag Does Not Exist|Locus Tag \"d2\" does not exist in the "
                            "Database.\r\nProceeding without it in the selection.\r\n(Was it "
                            "deleted while this selector was open?)|48"));
    EXPECT_THAT(save(-7), ElementsAre("E", "D"));
    EXPECT_THAT(host.Messages, ElementsAre("Internal DB Error|Locus Tag Load returned unexpected "
                                           "condition: -7|16"));
    EXPECT_THAT(save(-30981), ElementsAre("E"));
    EXPECT_THAT(host.Messages, ElementsAre("Internal DB Error|Failed to get DB connection!|16"));
    EXPECT_EQ(selector.NumberOfSelectedLocusTags(), rows);

    parameter->Lists = 0;
    EXPECT_THAT(save(0), ElementsAre("E")) << "a parameter without a list is left alone";
}

TEST_F(Selector, ADoubleClickMovesTheRowAndHighlightsTheOneInItsPlace)
{
    Open();
    User::DoubleClick(available, 2);
    EXPECT_THAT(TagsOf(selected), ElementsAre("D", "E", "B"));
    EXPECT_THAT(HighlightOf(available), ElementsAre(2));
    User::DoubleClick(available, 2);
    EXPECT_THAT(HighlightOf(available), ElementsAre(1));
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll EditSTRLocus NewSTRLocus ");
    User::DoubleClick(available, 1);
    EXPECT_THAT(TagsOf(available), IsEmpty());
    EXPECT_EQ(Buttons(), "RemoveAll NewSTRLocus ");

    GridEventResult result;
    selected->CellDoubleClicked(0, 1, 0, nullptr, result);
    EXPECT_EQ(result.Value, 1);
    EXPECT_EQ(selector.NumberOfSelectedLocusTags(), 5);
}

TEST_F(Selector, ButtonsAndMenusMoveTheHighlightOrElseTheCurrentRow)
{
    Open();
    User::Click(available, 1);
    User::Toggle(available, 3);
    EXPECT_FALSE(selector.mnuEditAvailable.Enabled());
    pick = &selector.mnuAdd;
    User::RightClick(available, 3);
    EXPECT_THAT(TagsOf(selected), ElementsAre("D", "E", "A", "C"));
    EXPECT_THAT(HighlightOf(available), ElementsAre(1));
    EXPECT_TRUE(selector.mnuEditAvailable.Enabled());
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll EditSTRLocus NewSTRLocus ");

    host.SharedGridHelper().SetHighlightedRows(available.Object(), {});
    available->SelectionChanged(nullptr, 0, 0);
    EXPECT_TRUE(selector.mnuEditAvailable.Enabled() && selector.cmdEditSTRLocus.Enabled());
    User::Click(selector.mnuAdd);
    EXPECT_THAT(TagsOf(selected), ElementsAre("D", "E", "A", "C", "B")) << "the current row moves";

    User::Click(selected, 0);
    EXPECT_THROW(User::Click(selector.cmdRemoveSingle), User::Refusal);
    User::Click(selected, 1);
    User::Click(selector.cmdRemoveSingle);
    EXPECT_THAT(TagsOf(available), ElementsAre("E"));
    EXPECT_THAT(HighlightOf(selected), ElementsAre(1));
    User::Click(selector.cmdRemoveAll);
    EXPECT_EQ(Buttons(), "AddAll NewSTRLocus ");
}

TEST_F(Selector, TurningToOneGridDropsTheHighlightOfTheOther)
{
    Open();
    User::Click(available, 1);
    User::Toggle(available, 2);
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll NewSTRLocus ");
    User::Toggle(available, 2);
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll EditSTRLocus NewSTRLocus ");
    User::RightClick(selected, 2);
    EXPECT_THAT(HighlightOf(available), IsEmpty());
    EXPECT_THAT(HighlightOf(selected), ElementsAre(2));
    EXPECT_EQ(Buttons(), "RemoveSingle AddAll RemoveAll EditSTRLocus NewSTRLocus ");
    available->NoticeA(0, 0, nullptr);
    EXPECT_THAT(HighlightOf(selected), IsEmpty());
    EXPECT_EQ(Buttons(), "AddAll RemoveAll NewSTRLocus ");
    EXPECT_THAT(menus, ElementsAre("mnuSTRLocusSelected 2"));
}

TEST_F(Selector, TheHeadersMenuSortsTheGridItWasOpenedOn)
{
    Open();
    User::Click(selected, 2);
    std::vector<std::int32_t> pointers;
    host.Screen.SetMousePointer(1);
    connections.On(host.Screen.MousePointerChanged,
                   [&] { pointers.push_back(host.Screen.MousePointer()); });
    pick = &selector.mnuDescending;
    User::RightClick(selected, 0, 2);
    EXPECT_THAT(TagsOf(selected), ElementsAre("E", "D"));
    EXPECT_THAT(TagsOf(available), ElementsAre("A", "B", "C"));
    EXPECT_THAT(HighlightOf(selected), IsEmpty());
    EXPECT_THAT(menus, ElementsAre("mnuSTRLocusColumn 2"));
    EXPECT_THAT(pointers, ElementsAre(Pointer::Hourglass, 1));
}

TEST_F(Selector, WithoutInitializeNothingBreaks)
{
    EXPECT_THROW(User::Click(selector.mnuAscending), Failure);
    EXPECT_THAT(host.Utility.Reports, ElementsAre(Report{"GridSort", false}));
    host.Launcher.Run = [](ParameterCollection&) { return true; };
    EXPECT_THROW(User::Click(selector.cmdNewSTRLocus), Failure);
    Open();
    EXPECT_THAT(TagsOf(available), ElementsAre("A", "B", "C"));
}

TEST_F(Selector, DisabledItKeepsThePersonFromEverything)
{
    Open();
    User::Click(available, 1);
    selector.SetEnabled(false);
    EXPECT_EQ(Buttons(), "");
    User::DoubleClick(available, 2);
    User::RightClick(selected, 1);
    EXPECT_THAT(menus, IsEmpty());
    EXPECT_THAT(HighlightOf(available), ElementsAre(1));
    EXPECT_EQ(selector.NumberOfSelectedLocusTags(), 2);
    available->NoticeB(0, 0, nullptr);
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll ") << "a notice doesn't ask";
    for (Control* control :
         {static_cast<Control*>(&selector.mnuAdd), static_cast<Control*>(&selector.cmdAddAll)})
        EXPECT_THROW(User::RequireReach(*control), User::Refusal);

    selector.SetEnabled(true);
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll NewSTRLocus ");
    User::Click(available, 1);
    EXPECT_EQ(Buttons(), "AddSingle AddAll RemoveAll EditSTRLocus NewSTRLocus ");

    selector.SetEnabled(false);
    Open();
    EXPECT_FALSE(selector.Enabled());
    EXPECT_TRUE(selector.cmdAddAll.Enabled());
}

TEST_F(Selector, DeclaresEachControlAsItIsShown)
{
    EXPECT_EQ(FormText(selector), FormFile("selector"));
}

} // namespace
} // namespace Tamrivo::Fakes
