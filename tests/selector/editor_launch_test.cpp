#include "tests/selector/selector_fixture.h"

namespace Tamrivo::Fakes
{
namespace
{

using testing::ElementsAre;

struct EditorLaunch : SelectorTest
{
    EditorLaunch() { Open(); }

    /// The next wizard stores loci under new tags, as its Save As does, and ends.
    void Wizard(const std::vector<std::string>& saveAs, bool completed)
    {
        host.Launcher.Run = [this, saveAs, completed](ParameterCollection& parameters) {
            given = std::dynamic_pointer_cast<FakeLocus>(
                ParameterItem<std::shared_ptr<Locus>>(parameters, ParameterKey::Locus));
            parameters.Remove(ParameterKey::Locus);
            std::shared_ptr<FakeLocus> last = given;
            for (const std::string& tag : saveAs)
                last = host.Store(tag);
            if (!saveAs.empty())
                parameters.Add(static_cast<std::int16_t>(saveAs.size()), ParameterKey::SaveTimes);
            if (completed)
            {
                host.Store(last, last->Tag);
                if (!saveAs.empty())
                    parameters.Add(std::shared_ptr<Locus>(last), ParameterKey::NewSaveAs);
            }
            return completed;
        };
    }

    std::shared_ptr<FakeLocus> given; ///< What the last wizard was given.
};

TEST_F(EditorLaunch, EveryStoredTagOfAnEditReachesTheGrid)
{
    struct
    {
        std::vector<std::string> SaveAs;
        bool Completed;
        std::vector<std::string> Added;
        bool Refreshed;
    } const cases[] = {
        {{}, false, {}, false},
        {{}, true, {}, false},
        {{"K"}, true, {"K"}, false},
        {{"L"}, false, {"L"}, true},
        {{"M", "N"}, true, {"N", "M"}, true},
        {{"O", "P"}, false, {"O", "P"}, true},
    };
    for (const auto& [saveAs, completed, added, refreshed] : cases)
    {
        host.Objects.Requests.clear();
        auto expected = TagsOf(available);
        expected.insert(expected.end(), added.begin(), added.end());
        Wizard(saveAs, completed);
        User::Click(selected, 1);
        User::Click(selector.cmdEditSTRLocus);
        EXPECT_EQ(given->Tag, "D");
        EXPECT_EQ(!host.Objects.Requests.empty(), refreshed);
        EXPECT_EQ(TagsOf(available), expected);
        EXPECT_THAT(TagsOf(selected), ElementsAre("D", "E"));
        EXPECT_EQ(static_cast<std::size_t>(selector.AllLocusTags()->Count()), 2 + expected.size());
    }
    EXPECT_EQ(host.Launcher.Started.front(), "LocusEditor - -1 -1 -1 -1 -1 -1 \"\" 0 0");
}

TEST_F(EditorLaunch, ACompletedEditRewritesTheDateAlone)
{
    const std::string before = selected->GetTextRowCol(1, 2);
    host.Launcher.Run = [this](ParameterCollection& parameters) {
        const auto locus = ParameterItem<std::shared_ptr<Locus>>(parameters, ParameterKey::Locus);
        host.Store(std::dynamic_pointer_cast<FakeLocus>(locus), "d ");
        return true;
    };
    User::Click(selected, 1);
    pick = &selector.mnuEditSelected;
    User::RightClick(selected, 1);
    EXPECT_EQ(selected->GetTextRowCol(1, 1), "D");
    EXPECT_NE(selected->GetTextRowCol(1, 2), before);
    EXPECT_THAT(HighlightOf(selected), ElementsAre(1));
    EXPECT_THROW(selected->SetValueRowCol(1, 1, "x", 1), Failure) << "read-only again";
    EXPECT_EQ(selector.AllLocusTags()->Count(), 5);
}

TEST_F(EditorLaunch, ANewLocusStandsAtTheEndOfTheAvailable)
{
    Wizard({"New"}, true);
    User::Click(selected, 1);
    User::Toggle(selected, 2);
    pick = &selector.mnuNewSelected;
    User::RightClick(selected, 2);
    EXPECT_THAT(TagsOf(available), ElementsAre("A", "B", "C", "New"));
    EXPECT_THAT(HighlightOf(selected), ElementsAre(1, 2)) << "the highlight is put back";

    Wizard({"Lost"}, false);
    User::Click(selector.cmdNewSTRLocus);
    EXPECT_EQ(available->RowCount(), 4) << "only an edit looks for what a cancelled wizard stored";

    User::Click(selector.cmdAddAll);
    Wizard({"Only"}, true);
    User::Click(selector.cmdNewSTRLocus);
    EXPECT_THAT(TagsOf(available), ElementsAre("Only"));
    EXPECT_FALSE(selector.cmdAddAll.Enabled()) << "a new row alone enables nothing";
}

} // namespace
} // namespace Tamrivo::Fakes
