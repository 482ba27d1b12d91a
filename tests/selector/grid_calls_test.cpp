#include "tests/selector/selector_fixture.h"

#include <map>

namespace Tamrivo::Fakes
{
namespace
{

using testing::ElementsAre;

/// What is done to the grids and asked of the helper, with every argument.
using Log = std::string;

class RecordedGrid : public GridModel
{
public:
    RecordedGrid(Log& log, std::string name) : m_log(log), m_name(std::move(name)) {}

    bool LockUpdate(bool lock) override
    {
        Note("lock", lock);
        return GridModel::LockUpdate(lock);
    }
    void Redraw(std::int32_t value) override
    {
        Note("redraw", value);
        GridModel::Redraw(value);
    }
    void SetReadOnly(bool readOnly) override
    {
        Note("readOnly", readOnly);
        GridModel::SetReadOnly(readOnly);
    }
    void SetLockReadOnly(bool lock) override
    {
        Note("lockReadOnly", lock);
        GridModel::SetLockReadOnly(lock);
    }
    void ClearRows(std::int32_t value) override
    {
        Note("clear", value);
        GridModel::ClearRows(value);
    }
    void SetValueRowCol(double row, double column, const std::string& text,
                        std::int32_t value) override
    {
        Note("write" + std::to_string(static_cast<int>(10 * row + column)), value);
        GridModel::SetValueRowCol(row, column, text, value);
    }
    std::shared_ptr<GridRange> CreateRange() override
    {
        return IsBroken ? throw Failure(1, "test", "broken") : GridModel::CreateRange();
    }
    void SelectRange(const std::shared_ptr<GridRange>& range, bool select) override
    {
        Note("select", select);
        GridModel::SelectRange(range, select);
    }
    void SetSetting(std::int32_t id, std::variant<std::int32_t, std::int16_t> value) override
    {
        std::visit(
            [&](auto number) {
                Note(std::to_string(id) + "/" + std::to_string(sizeof number), number);
            },
            value);
        GridModel::SetSetting(id, value);
    }
    void SetBackgroundColor(std::int32_t color) override { Note("background", color); }
    void SetDisabledState(std::int32_t state) override
    {
        Note("state", state);
        GridModel::SetDisabledState(state);
    }
    void SetStyleRange(const std::shared_ptr<GridRange>& range,
                       const std::shared_ptr<GridStyle>& style, std::int16_t flags) override
    {
        GridModel::SetStyleRange(range, style, flags);
        Note("text/" + std::to_string(flags), TextColor());
    }
    void SortRows(const std::shared_ptr<GridRange>& range, std::int32_t a,
                  std::span<const std::shared_ptr<GridSortInfo>> keys, std::int32_t b) override
    {
        for (const auto& key : keys)
            key ? Note("key" + std::to_string(key->nRC) + (key->bCase ? "c" : "") +
                           std::to_string(key->SortType),
                       key->SortOrder)
                : Note("key", 0);
        Note("sort" + std::to_string(a), b);
        GridModel::SortRows(range, a, keys, b);
    }
    void Note(const std::string& what, std::int32_t value)
    {
        m_log += m_name + what + " " + std::to_string(value) + "; ";
    }

    bool IsBroken = false;

private:
    Log& m_log;
    std::string m_name;
};

class RecordedHelper : public GridModelHelper
{
public:
    void PrepareGrid(Gridocx& grid, std::int32_t value) override
    {
        Of(grid).Note("prepare", value);
        GridModelHelper::PrepareGrid(grid, value);
    }
    void ApplyLayout(Gridocx& grid, const Grid& layout, std::int32_t a, std::int32_t b,
                     std::int32_t c) override
    {
        m_layouts[&grid] = &layout;
        Of(grid).Note("layout" + std::to_string(layout.GridID()), a + b + c);
        GridModelHelper::ApplyLayout(grid, layout, a, b, c);
    }
    void SortByHeader(Gridocx& grid, const Grid& layout, const std::string& header,
                      std::int32_t value) override
    {
        EXPECT_EQ(m_layouts[&grid], &layout);
        Of(grid).Note("sort by " + header, value);
        GridModelHelper::SortByHeader(grid, layout, header, value);
    }
    HighlightedRows GetHighlightedRows(const Gridocx& grid, std::int32_t value) const override
    {
        HighlightsAskedFor.push_back(value);
        return GridModelHelper::GetHighlightedRows(grid, value);
    }

    mutable std::vector<std::int32_t> HighlightsAskedFor;

private:
    static RecordedGrid& Of(Gridocx& grid) { return dynamic_cast<RecordedGrid&>(grid); }
    std::map<const Gridocx*, const Grid*> m_layouts;
};

struct Recorded : SelectorTest
{
    Recorded()
    {
        host.Helper = helper;
        host.MakeGrid = [this] {
            return std::make_shared<RecordedGrid>(log, m_grids++ == 0 ? "A." : "S.");
        };
    }
    Log Take() { return std::exchange(log, {}); }

    Log log;
    std::shared_ptr<RecordedHelper> helper = std::make_shared<RecordedHelper>();

private:
    int m_grids = 0;
};

TEST_F(Recorded, OpeningFillsBothGridsInItsOrder)
{
    STRLocusTagSelector recorded(host);
    EXPECT_EQ(Take(), "A.prepare -1; S.prepare -1; A.18/4 1; S.18/4 1; A.6/4 2; S.6/4 2; "
                      "A.27/4 1; S.27/4 1; A.29/2 1; S.29/2 1; ");
    recorded.Initialize(parameter);
    EXPECT_EQ(Take(),
              "A.layout21 0; S.layout21 0; A.lockReadOnly 0; A.lock 1; S.lockReadOnly 0; "
              "S.lock 1; A.clear 0; S.clear 0; A.write11 1; A.write12 1; A.write21 1; A.write22 1; "
              "A.write31 1; A.write32 1; S.write11 1; S.write12 1; S.write21 1; S.write22 1; "
              "A.sort by Locus Tag -1; S.sort by Locus Tag -1; A.lock 0; A.redraw 2; A.readOnly 1; "
              "A.lockReadOnly 1; S.lock 0; S.redraw 2; S.readOnly 1; S.lockReadOnly 1; ");
    EXPECT_THAT(host.Objects.Requests,
                ElementsAre("Create Grid", "Create Grid", "Query CurrentLoci Name \"\" 0 true"));
    recorded.mnuDescending.Click();
    recorded.mnuAscending.Click();
    EXPECT_EQ(
        Take(),
        "A.key1c3 1; A.key2c3 1; A.key3c3 1; A.key4c3 1; A.key5c3 1; A.key6c3 1; A.key 0; A.sort3 "
        "2; "
        "A.key13 0; A.key23 0; A.key33 0; A.key43 0; A.key53 0; A.key63 0; A.key 0; A.sort3 2; ");
    User::Click(recorded.gridSelected, 0, 2);
    User::Click(recorded.gridAvailable, 0, 2);
    host.Launcher.Run = [](ParameterCollection&) { return true; };
    User::Click(recorded.gridAvailable, 2);
    log.clear();
    User::Click(recorded.cmdEditSTRLocus);
    EXPECT_EQ(Take(),
              "A.lockReadOnly 0; A.lock 1; A.write22 1; A.lock 0; A.redraw 2; A.lockReadOnly 1; ");
    User::Click(recorded.mnuNewAvailable);
    User::Click(recorded.gridSelected, 1);
    User::Click(recorded.mnuNewSelected);
    EXPECT_THAT(helper->HighlightsAskedFor, ElementsAre(1, 1));
}

TEST_F(Recorded, TheSwitchWorksOnBothGridsInItsOrderAndRestoresThem)
{
    STRLocusTagSelector recorded(host);
    recorded.Initialize(parameter);
    recorded.gridSelected->LockUpdate(true);
    for (const bool enabled : {false, true})
    {
        log.clear();
        recorded.SetEnabled(enabled);
        const std::string background =
            enabled ? "background 16777215; " : "background -2147483633; ";
        const std::string state = enabled ? "state 0; " : "state 1; ";
        const std::string text = enabled ? "text/0 0; " : "text/0 -2147483631; ";
        EXPECT_EQ(Take(), "A.lock 0; S.lock 0; A.readOnly 0; S.readOnly 0; A." + background + "S." +
                              background + "A." + state + "S." + state + "A." + text + "S." + text +
                              "A.redraw 2; A.lock 0; A.readOnly 1; S.redraw 2; S.lock 1; "
                              "S.readOnly 1; ");
        EXPECT_EQ(recorded.strSelected.Enabled(), enabled);
        EXPECT_EQ(recorded.strAvailable.Enabled(), enabled);
    }
}

TEST_F(Recorded, EachGuardTellsItsNameAndForm)
{
    STRLocusTagSelector recorded(host);
    recorded.Initialize(parameter);
    Control* undrawn = &recorded.cmdAddAll;
    connections.On(recorded.ControlChanged, [&](Control& control) {
        if (&control == undrawn)
            throw Failure(1, "test", "no drawing");
    });
    EXPECT_EQ(host.Utility.GuardsOf([&] { recorded.cmdAddAll.Click(); }),
              "ShowButtons propagating");
    undrawn = nullptr;
    static_cast<RecordedGrid&>(recorded.gridAvailable.Object()).IsBroken = true;
    EXPECT_EQ(host.Utility.GuardsOf([&] { recorded.gridSelected->NoticeA(0, 0, nullptr); }),
              "UnHighlightRows propagating");
    EXPECT_EQ(host.Utility.GuardsOf([&] { recorded.mnuAscending.Click(); }),
              "GridSort propagating");
    EXPECT_THAT(host.Utility.Headings, ElementsAre("Tamrivo|STRLocusTagSelector|"));
}

} // namespace
} // namespace Tamrivo::Fakes
