#pragma once

#include "host/grid/row_sort.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace Tamrivo
{

class GridUpdates;

/// Whoever shows a grid, for as long as both are there. Rows are counted from 1. The rows change
/// between a Begin and its End; rows are inserted at the end only, and may stand there already when
/// Begin is called.
class GridObserver
{
public:
    GridObserver() = default;
    GridObserver(const GridObserver&) = delete;
    GridObserver& operator=(const GridObserver&) = delete;
    virtual ~GridObserver();

    virtual void BeginInsertRows(std::int32_t /*first*/, std::int32_t /*count*/) {}
    virtual void EndInsertRows() {}
    virtual void BeginRemoveRows(std::int32_t /*first*/, std::int32_t /*count*/) {}
    virtual void EndRemoveRows() {}
    /// Everything may have changed: rows, their order, columns, highlight.
    virtual void BeginReset() {}
    virtual void EndReset() {}

    virtual void RowsChanged(std::int32_t /*first*/, std::int32_t /*last*/) {}
    virtual void HighlightChanged() {}
    /// Colours, or whether the grid is disabled.
    virtual void LookChanged() {}

private:
    friend class GridUpdates;

    GridUpdates* m_observed = nullptr;
};

/// Tells the observer of a grid's rows what happens to them. While painting is locked, rows added
/// at the end and changed cells are told once at the next `Redraw`; any other change of rows
/// becomes a reset that ends there.
class GridUpdates
{
public:
    explicit GridUpdates(const std::vector<GridRow>& rows);
    GridUpdates(const GridUpdates&) = delete;
    GridUpdates& operator=(const GridUpdates&) = delete;
    ~GridUpdates();

    /// Tells this observer, in place of another.
    void Observe(GridObserver& observer);

    /// Number of rows that the observer knows of; none while it is being reset.
    std::int32_t ShownRows() const { return m_isResetting ? 0 : m_shownRows; }

    /// Locks or unlocks painting; gives the former state.
    bool Lock(bool lock) { return std::exchange(m_isLocked, lock); }
    /// Tells all that hasn't been told yet, unless painting is locked.
    void Redraw();

    // `change` makes the change of the rows that the operation's name tells.

    template <class Change>
    void Append(Change&& change)
    {
        Redraw();
        change();
        Redraw();
    }

    template <class Change>
    void Remove(std::int32_t first, std::int32_t count, Change&& change)
    {
        Redraw();
        if (m_isLocked)
            return Rebuild(change);
        m_observer->BeginRemoveRows(first, count);
        change();
        m_shownRows -= count;
        m_observer->EndRemoveRows();
    }

    template <class Change>
    void Rebuild(Change&& change)
    {
        Redraw();
        BeginReset();
        change();
        Redraw();
    }

    void RowChanged(std::int32_t row);
    void HighlightChanged();
    void LookChanged();

private:
    friend class GridObserver;

    void Forget();
    void BeginReset();

    const std::vector<GridRow>& m_rows;
    GridObserver* m_observer;
    std::int32_t m_shownRows = 0;
    bool m_isLocked = false;

    // What hasn't been told.
    bool m_isResetting = false;
    std::optional<std::pair<std::int32_t, std::int32_t>> m_changedRows; ///< First and last.
    bool m_highlightChanged = false;
    bool m_lookChanged = false;
};

} // namespace Tamrivo
