#pragma once

#include "host/grid/grid_layouts.h"
#include "host/grid/grid_updates.h"
#include "host/grid/row_sort.h"
#include "selector/gridocx.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// The host's grid: the cells, the header and the highlight of a grid, without any drawing.
///
/// Besides the operations that the selector uses it offers what the host's grid helper, a person's
/// actions (host/grid/grid_user.h) and a front end need. Row numbers there are integers counted
/// from 1; a row or column that doesn't exist raises `ErrorNumber::InvalidArgument`.
class GridModel : public Gridocx
{
public:
    /// The column by which the rows were sorted last. Rows that came later stand at the end.
    struct SortedBy
    {
        std::int32_t Column;
        bool Descending;
    };

    GridModel() = default;
    GridModel(const GridModel&) = delete;
    GridModel& operator=(const GridModel&) = delete;

    double RowCount() const override { return Rows(); }
    /// A lower value removes rows at the end.
    void SetRowCount(double rows) override;
    std::string GetTextRowCol(double row, double column) const override;
    std::string GetValueRowCol(double row, double column) const override;
    void SetValueRowCol(double row, double column, const std::string& text, std::int32_t) override;
    void ClearRows(std::int32_t) override;
    bool LockUpdate(bool lock) override { return m_updates.Lock(lock); }
    void Redraw(std::int32_t) override { m_updates.Redraw(); }
    bool ReadOnly() const override { return m_readOnly; }
    void SetReadOnly(bool readOnly) override { m_readOnly = readOnly; }
    void SetLockReadOnly(bool lock) override { m_lockReadOnly = lock; }
    void SetBackgroundColor(std::int32_t color) override;
    void SetDisabledState(std::int32_t state) override;
    std::shared_ptr<GridRange> CreateRange() override;
    std::shared_ptr<GridStyle> CreateStyle() override;
    std::shared_ptr<GridSortInfo> CreateSortInfo() override;
    /// Keeps the grid; the caller drops it before the grid goes.
    std::shared_ptr<GridParam> Param() override;
    void SetStyleRange(const std::shared_ptr<GridRange>& range,
                       const std::shared_ptr<GridStyle>& style, std::int16_t) override;
    void SelectRange(const std::shared_ptr<GridRange>& range, bool select) override;
    void SortRows(const std::shared_ptr<GridRange>& range, std::int32_t,
                  std::span<const std::shared_ptr<GridSortInfo>> keys, std::int32_t) override;
    /// Raises `ErrorNumber::InvalidArgument` for an identifier that isn't one of the four, or a
    /// value of the wrong size.
    void SetSetting(std::int32_t dispatchID,
                    std::variant<std::int32_t, std::int16_t> value) override;
    Tamrivo::Properties Properties() const override;

    // Cells and columns.

    std::int32_t Rows() const { return static_cast<std::int32_t>(m_rows.size()); }
    std::int32_t Columns() const { return static_cast<std::int32_t>(m_columns.size()); }
    const std::string& Cell(std::int32_t row, std::int32_t column) const;
    const std::string& Header(std::int32_t column) const;
    /// Gives the grid its columns. Other columns than before leave it without rows.
    void SetColumns(const std::vector<GridColumn>& columns);

    /// Sorts by one column without minding case and drops the highlight: ascending first, the other
    /// way round when the last sort was by the same column.
    void SortByColumn(std::int32_t column);
    const std::optional<SortedBy>& Sorted() const { return m_sortedBy; }

    // The highlight.

    bool IsHighlighted(std::int32_t row) const { return m_rows[RowPosition(row)].IsHighlighted; }
    std::int32_t HighlightedCount() const { return m_highlighted; }
    std::vector<std::int32_t> HighlightedRows() const;
    /// The row that a further extension of the highlight starts from; 0: none.
    std::int32_t Anchor() const { return m_anchor; }
    void ClearHighlight();
    /// Switches selection; off, the highlight is dropped and none can be made.
    void EnableSelection(bool enable);
    /// Highlights these rows, each given once, and no others. Does nothing while selection is
    /// switched off. Gives whether the highlight has changed.
    bool SetHighlight(std::span<const std::int32_t> rows, std::int32_t anchor);
    /// Whether a person can change the highlight at present.
    bool AllowsSelection() const { return m_selectionEnabled && m_disabledState == 0; }

    // Moving rows to another grid with as many columns, where they land at the end, in their order
    // and not highlighted.

    void MoveRow(std::int32_t row, GridModel& target);
    /// Gives the row to highlight next: the one that followed the last moved row, else the last of
    /// all; 0 when none is left or none was moved.
    std::int32_t MoveHighlightedRows(GridModel& target);
    void MoveAllRows(GridModel& target);

    // For a front end.

    void Observe(GridObserver& observer) { m_updates.Observe(observer); }
    /// Number of rows that the observer has been told of: with painting locked, fewer than `Rows`.
    std::int32_t ShownRows() const { return m_updates.ShownRows(); }
    std::int32_t BackgroundColor() const { return m_backgroundColor; }
    std::int32_t TextColor() const { return m_textColor; }
    std::int32_t DisabledState() const { return m_disabledState; }
    /// Whether the grid has the focus among the grids of its form.
    bool HasFocus() const { return m_hasFocus; }
    void SetHasFocus(bool hasFocus) { m_hasFocus = hasFocus; }

private:
    std::size_t RowPosition(double row) const;
    std::size_t ColumnPosition(double column) const;
    void RequireSameColumns(const GridModel& target) const;
    /// Appends rows of another grid.
    void TakeOver(std::span<GridRow> rows);
    void Sort(std::span<const RowSortKey> keys);

    std::vector<GridColumn> m_columns;
    std::vector<GridRow> m_rows;
    GridUpdates m_updates{m_rows};
    std::int32_t m_highlighted = 0;
    std::int32_t m_anchor = 0;
    std::optional<SortedBy> m_sortedBy;
    bool m_selectionEnabled = true;
    bool m_readOnly = false;
    bool m_lockReadOnly = false;
    bool m_hasFocus = false;
    std::int32_t m_disabledState = 0;
    std::int32_t m_backgroundColor = GridColor::White;
    std::int32_t m_textColor = GridColor::Black;
};

/// The host's grid behind the interface. Raises `ErrorNumber::NoObject` for another kind of grid.
GridModel& ModelOf(Gridocx& grid);
const GridModel& ModelOf(const Gridocx& grid);

} // namespace Tamrivo
