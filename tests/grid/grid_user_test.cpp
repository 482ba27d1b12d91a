#include "controls/user_control.h"
#include "host/grid/grid_model.h"
#include "host/grid/grid_user.h"

#include <gmock/gmock.h>

namespace Tamrivo
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Two grids of four rows; the left one's events are written down.
class Form : public UserControl
{
public:
    Form() : UserControl("Form", 100, 100)
    {
        for (User::GridControl* grid : {&Left, &Right})
        {
            auto& model = dynamic_cast<GridModel&>(grid->Object());
            model.SetColumns({{"Tag", ColumnKind::Tags}, {"Date", ColumnKind::Dates}});
            model.SetRowCount(4);
        }
        m_connections.On(Left->GotFocus, [this] { Events.emplace_back("focus"); });
        m_connections.On(Left->NoticeA, [this](auto&&...) { Events.emplace_back("A"); });
        m_connections.On(Left->NoticeB, [this](auto&&...) { Events.emplace_back("B"); });
        m_connections.On(Left->SelectionStarted,
                         [this](double row, auto&&...) { Note("start", row); });
        m_connections.On(Left->SelectionChanged,
                         [this](auto&&...) { Note("highlighted", Model().HighlightedCount()); });
        m_connections.On(Left->CellClicked, [this](double row, double column, auto&&...) {
            Note("click", row * 10 + column);
        });
        m_connections.On(Left->CellDoubleClicked,
                         [this](double row, auto&&...) { Note("double", row); });
        m_connections.On(Left->CellRightClicked,
                         [this](double row, auto&&...) { Note("right", row); });
    }

    bool Enabled() const override { return m_enabled; }
    void SetEnabled(bool enabled) { m_enabled = enabled; }

    GridModel& Model() { return dynamic_cast<GridModel&>(Left.Object()); }

    User::GridControl Left{{.Name = "gridLeft", .In = *this},
                           {.Object = std::make_shared<GridModel>()}};
    User::GridControl Right{{.Name = "gridRight", .In = *this},
                            {.Object = std::make_shared<GridModel>()}};
    std::vector<std::string> Events;

private:
    void Note(const std::string& event, double number)
    {
        Events.push_back(event + " " + std::to_string(static_cast<int>(number)));
    }

    bool m_enabled = true;
    Connections m_connections;
};

struct GridUser : testing::Test
{
    std::vector<std::string> EventsOf(const std::function<void()>& action)
    {
        form.Events.clear();
        action();
        return form.Events;
    }
    std::vector<std::int32_t> Highlight() { return form.Model().HighlightedRows(); }

    Form form;
    User::GridControl& grid = form.Left;
};

TEST_F(GridUser, EventsComeInTheirOrderAndNameAHighlightedRow)
{
    EXPECT_THAT(EventsOf([&] { User::Click(grid, 2, 2); }),
                ElementsAre("focus", "start 2", "highlighted 1", "click 22"));
    EXPECT_THAT(EventsOf([&] { User::Click(grid, 2); }),
                ElementsAre("start 2", "highlighted 1", "click 21"));
    EXPECT_THAT(EventsOf([&] { User::Toggle(grid, 4); }),
                ElementsAre("A", "start 4", "highlighted 2"));
    EXPECT_THAT(EventsOf([&] { User::Toggle(grid, 4); }),
                ElementsAre("A", "start 2", "highlighted 1"));
    EXPECT_THAT(EventsOf([&] { User::Toggle(grid, 1); }),
                ElementsAre("A", "start 1", "highlighted 2"));
    EXPECT_THAT(EventsOf([&] { User::Toggle(grid, 1); }),
                ElementsAre("A", "start 2", "highlighted 1"));
    EXPECT_THAT(EventsOf([&] { User::Toggle(grid, 2); }),
                ElementsAre("A", "start 0", "highlighted 0"));
    EXPECT_THAT(EventsOf([&] { User::ExtendTo(grid, 3); }),
                ElementsAre("start 3", "highlighted 1", "click 31"));
    EXPECT_THAT(EventsOf([&] { User::ExtendTo(grid, 1); }), ElementsAre("B", "highlighted 3"));
    EXPECT_THAT(EventsOf([&] { User::ExtendTo(grid, 1); }), ElementsAre("B"));
    EXPECT_THAT(EventsOf([&] { User::ExtendTo(grid, 4); }), ElementsAre("B", "highlighted 2"));
    EXPECT_THAT(Highlight(), ElementsAre(3, 4));
    EXPECT_THAT(EventsOf([&] { User::RightClick(grid, 1); }), ElementsAre("right 1"));
    EXPECT_THAT(EventsOf([&] { User::Click(grid, 0, 2); }), ElementsAre("click 2"));
    EXPECT_THAT(Highlight(), ElementsAre(3, 4));

    User::Click(form.Right, 1);
    EXPECT_THAT(EventsOf([&] { User::DoubleClick(grid, 1); }),
                ElementsAre("focus", "start 1", "highlighted 1", "click 11", "double 1"));
}

TEST_F(GridUser, ADisabledGridTellsClicksAndKeepsItsHighlight)
{
    User::Click(grid, 2);
    grid->SetDisabledState(1);
    form.SetEnabled(false);
    EXPECT_THAT(EventsOf([&] { User::DoubleClick(grid, 1); }), ElementsAre("click 11", "double 1"));
    EXPECT_THAT(EventsOf([&] { User::RightClick(grid, 1); }), ElementsAre("right 1"));
    EXPECT_THAT(EventsOf([&] { User::Toggle(grid, 1); }), IsEmpty());
    EXPECT_THAT(EventsOf([&] { User::ExtendTo(grid, 1); }), IsEmpty());
    EXPECT_THAT(Highlight(), ElementsAre(2));
}

TEST_F(GridUser, WhatCannotBeReachedIsRefusedInWords)
{
    const auto refusal = [&](const std::function<void()>& action) -> std::string {
        try
        {
            action();
        }
        catch (const User::Refusal& refused)
        {
            return refused.what();
        }
        return "not refused";
    };
    EXPECT_EQ(refusal([&] { User::Click(grid, 5); }), "gridLeft has no row 5; its rows are 1 to 4");
    EXPECT_EQ(refusal([&] { User::RightClick(grid, 1, 3); }),
              "gridLeft has no column 3; its columns are 1 to 2");
    EXPECT_THAT(refusal([&] { User::Toggle(grid, 0); }), HasSubstr("no row 0"));
    EXPECT_THAT(refusal([&] { User::DoubleClick(grid, -1); }), HasSubstr("no row -1"));
    grid->ClearRows(0);
    EXPECT_EQ(refusal([&] { User::ExtendTo(grid, 1); }), "gridLeft has no row 1; it is empty");
    grid.SetVisible(false);
    EXPECT_EQ(refusal([&] { User::Click(grid, 0); }), "gridLeft is hidden");
    EXPECT_THAT(form.Events, IsEmpty());
}

} // namespace
} // namespace Tamrivo
