#include "tests/selector/selector_fixture.h"

#include <random>

namespace Tamrivo::Fakes
{
namespace
{

/// Someone who does anything that a person can do, at random, and checks what must always hold.
struct RandomPerson : SelectorTest
{
    RandomPerson()
    {
        Open();
        selector.PopupMenuRequested = [this](Menu& menu, int) {
            Control* item = menu.Children()[static_cast<std::size_t>(
                Below(static_cast<std::int32_t>(menu.Children().size())))];
            if (Below(3) != 0)
                Try([&] { User::Click(dynamic_cast<MenuItem&>(*item)); });
        };
        host.Launcher.Run = [this](ParameterCollection& parameters) { return Wizard(parameters); };
    }

    std::int32_t Below(std::int32_t bound)
    {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(bound));
    }

    /// Gives whether the person could do it.
    static bool Try(const std::function<void()>& action)
    {
        try
        {
            action();
            return true;
        }
        catch (const User::Refusal&)
        {
            return false;
        }
    }

    bool Wizard(ParameterCollection& parameters)
    {
        auto locus = std::dynamic_pointer_cast<FakeLocus>(
            ParameterItem<std::shared_ptr<Locus>>(parameters, ParameterKey::Locus));
        const bool completed = Below(3) != 0;
        const std::int32_t saveTimes = Below(3);
        const bool isNew = locus->TagId == 0;
        for (std::int32_t time = 0; time < saveTimes; ++time)
            locus = host.Store("new" + std::to_string(Below(1'000'000)));
        if (saveTimes > 0)
            parameters.Add(static_cast<std::int16_t>(saveTimes), ParameterKey::SaveTimes);
        if (completed)
        {
            host.Store(locus, isNew && saveTimes == 0 ? "n" + std::to_string(Below(1'000'000))
                                                      : locus->Tag);
            if (saveTimes > 0)
                parameters.Add(std::shared_ptr<Locus>(locus), ParameterKey::NewSaveAs);
        }
        editorRuns = true;
        return completed;
    }

    void Act()
    {
        User::GridControl& grid = Below(2) == 0 ? available : selected;
        const std::int32_t row = Below(static_cast<std::int32_t>(grid->RowCount()) + 1);
        const std::int32_t column = 1 + Below(2);
        CommandButton* const buttons[] = {
            &selector.cmdAddSingle, &selector.cmdRemoveSingle, &selector.cmdEditSTRLocus,
            &selector.cmdNewSTRLocus, Below(9) == 0 ? &selector.cmdAddAll : &selector.cmdRemoveAll};
        switch (Below(11))
        {
        case 0: User::DoubleClick(grid, row, column); break;
        case 1: User::Click(grid, row, column); break;
        case 2:
        case 3: User::Toggle(grid, row); break;
        case 4: User::ExtendTo(grid, row); break;
        case 5:
        case 6: User::RightClick(grid, row, column); break;
        case 7: User::GotFocus(grid); break;
        case 8:
            selector.SetEnabled(Below(3) != 0);
            editSwitchedOff = true;
            break;
        default: User::Click(*buttons[Below(5)]); break;
        }
    }

    void Check()
    {
        std::vector<std::string> shown = TagsOf(available);
        const std::vector<std::string> chosen = TagsOf(selected);
        shown.insert(shown.end(), chosen.begin(), chosen.end());
        std::vector<std::string> known;
        for (const auto& member : selector.AllLocusTags()->Members())
            known.push_back(member->Name());
        ASSERT_THAT(shown, testing::UnorderedElementsAreArray(known));
        ASSERT_EQ(static_cast<std::size_t>(selector.NumberOfSelectedLocusTags()), chosen.size());
        ASSERT_EQ(selector.SelectedLocusTags().Count(), chosen.size());
        ASSERT_EQ(parameter->Tags(), saved);

        if (!selector.Enabled())
        {
            ASSERT_EQ(Buttons(), "");
            return;
        }
        const std::size_t left = HighlightOf(available).size();
        const std::size_t right = HighlightOf(selected).size();
        ASSERT_TRUE(left == 0 || right == 0);
        // A new locus shows before the buttons follow.
        ASSERT_TRUE(editorRan || selector.cmdAddAll.Enabled() == (available->RowCount() > 0));
        ASSERT_EQ(selector.cmdAddSingle.Enabled(), left > 0);
        ASSERT_EQ(selector.cmdRemoveAll.Enabled(), !chosen.empty());
        ASSERT_EQ(selector.cmdRemoveSingle.Enabled(), right > 0);
        const bool one = left + right == 1;
        if (selector.cmdEditSTRLocus.Enabled() || !one)
            editSwitchedOff = false;
        ASSERT_EQ(selector.cmdEditSTRLocus.Enabled(), one && !editSwitchedOff);
    }

    std::mt19937 random{20};
    bool editorRuns = false;
    bool editorRan = false;       ///< In the last action that was not refused.
    bool editSwitchedOff = false; ///< By the selector's switch; it stays so until a selection.
    std::vector<std::string> saved{"", ""};
};

TEST_F(RandomPerson, FindsEveryTagInOneGridAndTheButtonsInOrder)
{
    FakeObjectList& stored = host.Objects.Lists["CurrentLoci"];
    for (int step = 0; step < 6'000; ++step)
    {
        SCOPED_TRACE(step);
        editorRuns = false;
        if (Try([&] { Act(); }))
            editorRan = editorRuns;
        Check();
        if (HasFatalFailure())
            return;
        if (Below(50) == 0)
        {
            saved.clear();
            for (const std::string& tag : TagsOf(selected))
            {
                if (stored.KeyExists(tag))
                    saved.push_back(tag);
            }
            selector.Save(*parameter);
        }
        if (Below(100) == 0)
        {
            // Others remove loci while the selector is open; then it is opened anew.
            while (stored.Count() > 8)
                stored.Remove(1 + Below(stored.Count()));
        }
        else if (Below(100) == 0 && selector.Enabled())
        {
            // The current rows outlive Initialize; a click on each header ends them.
            Open();
            User::Click(available, 0);
            User::Click(selected, 0);
            editSwitchedOff = editorRan = false;
        }
    }
}

} // namespace
} // namespace Tamrivo::Fakes
