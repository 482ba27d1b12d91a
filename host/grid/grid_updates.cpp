#include "host/grid/grid_updates.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

GridObserver nobody;

} // namespace

GridUpdates::GridUpdates(const std::vector<GridRow>& rows) : m_rows(rows), m_observer(&nobody) {}

GridUpdates::~GridUpdates()
{
    Forget();
}

GridObserver::~GridObserver()
{
    if (m_observed != nullptr)
        m_observed->Forget();
}

void GridUpdates::Observe(GridObserver& observer)
{
    Forget();
    m_observer = &observer;
    observer.m_observed = this;
}

void GridUpdates::Forget()
{
    m_observer->m_observed = nullptr;
    m_observer = &nobody;
}

void GridUpdates::Redraw()
{
    if (m_isLocked)
        return;
    const auto changed = std::exchange(m_changedRows, std::nullopt);
    const auto rows = static_cast<std::int32_t>(m_rows.size());
    if (m_isResetting)
    {
        m_isResetting = false;
        m_shownRows = rows;
        m_observer->EndReset();
    }
    else
    {
        if (changed && changed->first <= m_shownRows)
            m_observer->RowsChanged(changed->first, std::min(changed->second, m_shownRows));
        if (const std::int32_t added = rows - m_shownRows; added > 0)
        {
            m_observer->BeginInsertRows(m_shownRows + 1, added);
            m_shownRows = rows;
            m_observer->EndInsertRows();
        }
    }
    if (std::exchange(m_highlightChanged, false))
        m_observer->HighlightChanged();
    if (std::exchange(m_lookChanged, false))
        m_observer->LookChanged();
}

void GridUpdates::BeginReset()
{
    if (m_isResetting)
        return;
    m_observer->BeginReset();
    m_isResetting = true;
}

void GridUpdates::RowChanged(std::int32_t row)
{
    const auto [first, last] = m_changedRows.value_or(std::pair(row, row));
    m_changedRows = {std::min(first, row), std::max(last, row)};
    Redraw();
}

void GridUpdates::HighlightChanged()
{
    m_highlightChanged = true;
    Redraw();
}

void GridUpdates::LookChanged()
{
    m_lookChanged = true;
    Redraw();
}

} // namespace Tamrivo
