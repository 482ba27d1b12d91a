#include "core/dates.h"
#include "host/grid/grid_model.h"
#include "host/grid/grid_model_helper.h"
#include "tests/fakes/fake_objects.h"

#include <gmock/gmock.h>

#include <random>

namespace Tamrivo
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

struct Layout : Fakes::FakeLayout
{
    explicit Layout(std::int32_t gridID = 21) { SetGridID(gridID); }
};

std::unique_ptr<GridModel> MakeGrid(const Texts& tags)
{
    auto grid = std::make_unique<GridModel>();
    GridModelHelper().ApplyLayout(*grid, Layout(), 0, 0, 0);
    for (const std::string& tag : tags)
    {
        grid->SetRowCount(grid->RowCount() + 1);
        grid->SetValueRowCol(grid->RowCount(), 1, tag, 1);
    }
    return grid;
}

Texts Column(const GridModel& grid, std::int32_t column = 1)
{
    Texts texts;
    for (std::int32_t row = 1; row <= grid.Rows(); ++row)
        texts.push_back(grid.Cell(row, column));
    return texts;
}

void Sort(GridModel& grid, std::initializer_list<std::int16_t> columns, bool descending = false,
          bool caseCounts = false)
{
    std::vector<std::shared_ptr<GridSortInfo>> keys(1);
    for (const std::int16_t column : columns)
        keys.push_back(std::make_shared<GridSortInfo>(
            GridSortInfo{column, GridSortInfo::NaturalOrder, caseCounts, descending ? 1 : 0}));
    const auto range = grid.CreateRange();
    range->SetTable();
    grid.SortRows(range, 3, keys, 2);
}

std::int32_t ErrorOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const Failure& failure)
    {
        return failure.Record().Number;
    }
    return 0;
}

TEST(GridSort, OrdersTagsAsPeopleDo)
{
    struct
    {
        Texts Given, Ascending, Descending;
        bool CaseCounts;
    } const cases[] = {
        {{"D12S391", "D2S441", "D2S1338"},
         {"D2S441", "D2S1338", "D12S391"},
         {"D12S391", "D2S1338", "D2S441"},
         false},
        {{"th01", "TPOX", "vWA", "FGA", ""},
         {"", "FGA", "th01", "TPOX", "vWA"},
         {"vWA", "TPOX", "th01", "FGA", ""},
         false},
        {{"a", "A", "b", "B"}, {"a", "A", "b", "B"}, {"b", "B", "a", "A"}, false},
        {{"b", "a", "A", "B"}, {"A", "a", "B", "b"}, {"b", "B", "a", "A"}, true},
        {{"D007", "D7", "D07", "D10", "D"},
         {"D", "D7", "D07", "D007", "D10"},
         {"D10", "D007", "D07", "D7", "D"},
         false},
        {{"D99999999999999999999999", "D100000000000000000000000", "D9", "D-1", "Dx"},
         {"D-1", "D9", "D99999999999999999999999", "D100000000000000000000000", "Dx"},
         {"Dx", "D100000000000000000000000", "D99999999999999999999999", "D9", "D-1"},
         false},
        {{"É2", "é1", "z"}, {"z", "é1", "É2"}, {"É2", "é1", "z"}, false},
    };
    for (const auto& [given, ascending, descending, caseCounts] : cases)
    {
        const auto grid = MakeGrid(given);
        Sort(*grid, {1}, false, caseCounts);
        EXPECT_EQ(Column(*grid), ascending);
        const auto other = MakeGrid(given);
        Sort(*other, {1}, true, caseCounts);
        EXPECT_EQ(Column(*other), descending);
    }
}

TEST(GridSort, OrdersDatesByTimeAndLaterKeysDecideTies)
{
    using namespace std::chrono;
    const auto text = [](year_month_day day) { return DateText(sys_days(day) + hours(12)); };
    const std::string early = text(2023y / December / 31);
    const std::string late = text(2024y / February / 1);

    const auto grid = MakeGrid({"c", "b", "a", "d", "e"});
    const Texts dates = {late, early, late, "", "unknown"};
    for (int row = 1; row <= 5; ++row)
        grid->SetValueRowCol(row, 2, dates[static_cast<std::size_t>(row) - 1], 1);

    Sort(*grid, {2, 1, 6});
    EXPECT_THAT(Column(*grid), ElementsAre("d", "b", "a", "c", "e"));
    EXPECT_THAT(Column(*grid, 2), ElementsAre("", early, late, late, "unknown"));
    Sort(*grid, {2}, true);
    EXPECT_THAT(Column(*grid), ElementsAre("e", "a", "c", "b", "d")) << "ties keep their order";
}

TEST(GridSort, AHeaderReversesWhenItIsUsedAgainAndDropsTheHighlight)
{
    const auto grid = MakeGrid({"B", "C", "A"});
    GridModelHelper helper;
    const auto sort = [&](const char* header) { helper.SortByHeader(*grid, Layout(), header, -1); };
    sort("Locus Tag");
    EXPECT_THAT(Column(*grid), ElementsAre("A", "B", "C"));
    helper.HighlightRow(*grid, 1);
    sort("Locus Tag");
    EXPECT_THAT(Column(*grid), ElementsAre("C", "B", "A"));
    EXPECT_EQ(helper.HighlightedRowCount(*grid), 0);
    sort("Date Last Modified");
    sort("Locus Tag");
    EXPECT_THAT(Column(*grid), ElementsAre("A", "B", "C"));
    EXPECT_EQ(ErrorOf([&] { sort("Tag"); }), ErrorNumber::InvalidArgument);
}

TEST(GridMove, RowsLandAtTheEndUnhighlightedAndTheNextRowIsGiven)
{
    struct
    {
        std::vector<std::int32_t> Highlighted;
        Texts Left, Moved;
        std::int32_t Next;
    } const cases[] = {
        {{}, {"A", "B", "C", "D"}, {}, 0},   {{2}, {"A", "C", "D"}, {"B"}, 2},
        {{4}, {"A", "B", "C"}, {"D"}, 3},    {{1, 3}, {"B", "D"}, {"A", "C"}, 2},
        {{3, 4}, {"A", "B"}, {"C", "D"}, 2}, {{1, 2, 3, 4}, {}, {"A", "B", "C", "D"}, 0},
    };
    for (const auto& [highlighted, left, moved, next] : cases)
    {
        const auto source = MakeGrid({"A", "B", "C", "D"});
        const auto target = MakeGrid({"X"});
        source->SetHighlight(highlighted, 0);
        EXPECT_EQ(GridModelHelper().MoveHighlightedRows(*source, *target), next);
        EXPECT_EQ(Column(*source), left);
        Texts expected = {"X"};
        expected.insert(expected.end(), moved.begin(), moved.end());
        EXPECT_EQ(Column(*target), expected);
        EXPECT_THAT(source->HighlightedRows(), IsEmpty());
        EXPECT_THAT(target->HighlightedRows(), IsEmpty());
    }
}

TEST(GridMove, ASingleRowLeavesTheRestOfTheHighlight)
{
    const auto source = MakeGrid({"A", "B", "C"});
    const auto target = MakeGrid({});
    source->SetHighlight(std::vector<std::int32_t>{1, 3}, 1);
    source->MoveRow(1, *target);
    EXPECT_THAT(source->HighlightedRows(), ElementsAre(2));
    EXPECT_EQ(ErrorOf([&] { source->MoveRow(3, *target); }), ErrorNumber::InvalidArgument);
    source->MoveAllRows(*target);
    EXPECT_EQ(source->HighlightedCount(), 0);
    EXPECT_THAT(Column(*target), ElementsAre("A", "B", "C"));
}

TEST(Grid, RefusesWhatIsReadOnlyOrNotThere)
{
    const auto grid = MakeGrid({"A"});
    GridModel other;
    GridModelHelper helper;
    const auto write = [&] { grid->SetValueRowCol(1, 1, "B", 1); };
    grid->SetReadOnly(true);
    write();
    grid->SetLockReadOnly(true);
    grid->SetReadOnly(false);
    write();
    grid->SetReadOnly(true);

    const std::function<void()> refused[] = {
        write,
        [&] { grid->GetTextRowCol(0, 1); },
        [&] { grid->GetTextRowCol(2, 1); },
        [&] { grid->GetTextRowCol(1, 3); },
        [&] { grid->GetValueRowCol(0, 0); },
        [&] { grid->SetRowCount(-1); },
        [&] { grid->SetRowCount(0.5); },
        [&] { grid->SetSetting(7, 1); },
        [&] { grid->SetSetting(29, std::int32_t{1}); },
        [&] { helper.HighlightRow(*grid, 2); },
        [&] { helper.ApplyLayout(*grid, Layout(22), 0, 0, 0); },
        [&] { helper.MoveAllRows(*grid, other); },
        [&] { helper.MoveAllRows(*grid, *grid); },
    };
    for (const auto& action : refused)
        EXPECT_EQ(ErrorOf(action), ErrorNumber::InvalidArgument);
    EXPECT_THAT(Column(*grid), ElementsAre("B"));
    EXPECT_FALSE(helper.IsRowHighlighted(*grid, 2));
    EXPECT_EQ(ErrorOf([&] { grid->SelectRange(nullptr, false); }), ErrorNumber::NoObject);
}

TEST(Grid, TheSelectionSwitchDropsTheHighlightAndBlocksIt)
{
    const auto grid = MakeGrid({"A", "B"});
    GridModelHelper helper;
    helper.HighlightRow(*grid, 1);
    const HighlightedRows kept = helper.GetHighlightedRows(*grid, 1);
    grid->Param()->EnableSelection(GridSelection::Off);
    helper.HighlightRow(*grid, 2);
    EXPECT_EQ(helper.HighlightedRowCount(*grid), 0);
    grid->Param()->EnableSelection(GridSelection::Full);
    helper.SetHighlightedRows(*grid, kept);
    EXPECT_TRUE(helper.IsRowHighlighted(*grid, 1));
}

/// Shows a grid from what it is told alone.
class Mirror : public GridObserver
{
public:
    explicit Mirror(GridModel& grid) : m_grid(grid) { grid.Observe(*this); }

    void BeginInsertRows(std::int32_t first, std::int32_t count) override
    {
        EXPECT_EQ(first, static_cast<std::int32_t>(Rows.size()) + 1);
        EXPECT_EQ(m_grid.ShownRows(), first - 1);
        m_count = count;
    }
    void EndInsertRows() override { Read(m_count); }
    void BeginRemoveRows(std::int32_t first, std::int32_t count) override
    {
        EXPECT_EQ(m_grid.Cell(first, 1), Rows[static_cast<std::size_t>(first) - 1]);
        Rows.erase(Rows.begin() + first - 1, Rows.begin() + first - 1 + count);
    }
    void EndRemoveRows() override
    {
        EXPECT_EQ(m_grid.ShownRows(), static_cast<std::int32_t>(Rows.size()));
        Highlighted = m_grid.HighlightedRows();
    }
    void BeginReset() override { Rows.clear(); }
    void EndReset() override { Read(m_grid.ShownRows()); }
    void RowsChanged(std::int32_t first, std::int32_t last) override
    {
        for (std::int32_t row = first; row <= last; ++row)
            Rows.at(static_cast<std::size_t>(row) - 1) = m_grid.Cell(row, 1);
    }
    void HighlightChanged() override { Highlighted = m_grid.HighlightedRows(); }

    Texts Rows;
    std::vector<std::int32_t> Highlighted;

private:
    void Read(std::int32_t count)
    {
        for (; count > 0; --count)
            Rows.push_back(m_grid.Cell(static_cast<std::int32_t>(Rows.size()) + 1, 1));
        Highlighted = m_grid.HighlightedRows();
    }

    GridModel& m_grid;
    std::int32_t m_count = 0;
};

TEST(GridUpdates, AnObserverShowsTheGridAfterEveryRedraw)
{
    const auto grid = MakeGrid({});
    const auto other = MakeGrid({});
    Mirror mirror(*grid);
    Mirror otherMirror(*other);
    std::mt19937 random(7);
    const auto below = [&random](std::int32_t bound) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(bound));
    };
    for (int step = 0; step < 3000; ++step)
    {
        const std::int32_t rows = grid->Rows();
        switch (below(9))
        {
        case 0: grid->LockUpdate(true); break;
        case 1: grid->LockUpdate(false); break;
        case 2:
        case 3:
            grid->SetRowCount(rows + 1);
            grid->SetValueRowCol(rows + 1, 1, std::to_string(below(99)), 1);
            break;
        case 4: Sort(*grid, {1}, below(2) == 0); break;
        case 5:
            if (rows > 0)
                grid->MoveRow(1 + below(rows), *other);
            break;
        case 6:
            if (rows > 1)
                grid->SetHighlight(std::vector<std::int32_t>{1, 2 + below(rows - 1)}, 1);
            break;
        case 7: other->MoveAllRows(*grid); break;
        case 8:
            if (below(2) == 0)
                grid->SetRowCount(below(rows + 1));
            else
                grid->MoveHighlightedRows(*other);
            break;
        }
        if (below(3) != 0)
            continue;
        const bool wasLocked = grid->LockUpdate(false);
        grid->Redraw(2);
        ASSERT_EQ(mirror.Rows, Column(*grid)) << step;
        ASSERT_EQ(mirror.Highlighted, grid->HighlightedRows()) << step;
        ASSERT_EQ(otherMirror.Rows, Column(*other)) << step;
        grid->LockUpdate(wasLocked);
    }
}

} // namespace
} // namespace Tamrivo
