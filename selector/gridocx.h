#pragma once

#include "controls/control.h"
#include "core/event.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>

namespace Tamrivo
{

/// Colours of a grid, as the system numbers them.
namespace GridColor
{
inline constexpr std::int32_t White = 0x00FFFFFF;
inline constexpr std::int32_t Black = 0;
inline constexpr std::int32_t ButtonFace = static_cast<std::int32_t>(0x8000000F);
inline constexpr std::int32_t GreyedText = static_cast<std::int32_t>(0x80000011);
} // namespace GridColor

/// Part of a grid; a new one covers nothing.
class GridRange
{
public:
    virtual ~GridRange() = default;
    /// The range stands for the whole table from now on.
    virtual void SetTable() = 0;
};

/// How cells look.
class GridStyle
{
public:
    virtual ~GridStyle() = default;
    /// Resets the style to one that sets nothing.
    virtual void Free() = 0;
    virtual void SetTextColor(std::int32_t color) = 0;
};

/// One key of a sort.
struct GridSortInfo
{
    /// Value of `SortType`: the order that is natural for what the column holds.
    static constexpr std::int32_t NaturalOrder = 3;
    /// Value of `SortOrder`.
    static constexpr std::int32_t Descending = 1;

    std::int16_t nRC = 0; ///< The column. Columns that the grid doesn't have decide nothing.
    std::int32_t SortType = 0;
    bool bCase = false; ///< Whether texts that differ in case alone differ.
    std::int32_t SortOrder = 0;
};

/// Values of `GridParam::EnableSelection`.
namespace GridSelection
{
inline constexpr std::int16_t Off = 0;
inline constexpr std::int16_t Full = 255;
} // namespace GridSelection

/// The parameter object of a grid.
class GridParam
{
public:
    virtual ~GridParam() = default;
    /// A `GridSelection`. Switching it off drops the highlight.
    virtual void EnableSelection(std::int16_t flags) = 0;
};

/// What a grid's events carry besides rows and columns. Nothing is ever read from it.
class GridEventObject;

/// With which a handler answers a double click: 1 keeps the grid from an action of its own.
struct GridEventResult
{
    std::int32_t Value = 0;
};

/// A table of text cells with a header row, in which a person highlights rows. The number behind
/// an operation is its dispatch identifier in the control that the system was built on.
///
/// Rows and columns are counted from 1; row 0 is the header. A row or column that doesn't exist
/// raises `ErrorNumber::InvalidArgument`. Neither a write nor a highlight set by the logic raises
/// an event: events tell what a person does.
class Gridocx
{
public:
    virtual ~Gridocx() = default;

    /// Number of data rows (1). A higher value adds empty rows at the end.
    virtual double RowCount() const = 0;
    virtual void SetRowCount(double rows) = 0;

    /// Content of a data cell (44).
    virtual std::string GetTextRowCol(double row, double column) const = 0;
    /// Content of a header cell, row 0 (33).
    virtual std::string GetValueRowCol(double row, double column) const = 0;
    /// Writes a cell (20045); the last argument is always 1. Raises `ErrorNumber::InvalidArgument`
    /// while `ReadOnly` and `LockReadOnly` are both true.
    virtual void SetValueRowCol(double row, double column, const std::string& text,
                                std::int32_t) = 0;
    /// Removes all data rows (48); the argument is always 0.
    virtual void ClearRows(std::int32_t) = 0;

    /// True stops painting, false allows it; gives the former state (116).
    virtual bool LockUpdate(bool lock) = 0;
    /// Shows what has changed meanwhile (117); the argument is always 2.
    virtual void Redraw(std::int32_t) = 0;

    /// With both true nobody can write a cell (9, 19).
    virtual bool ReadOnly() const = 0;
    virtual void SetReadOnly(bool readOnly) = 0;
    virtual void SetLockReadOnly(bool lock) = 0;

    /// Colour of the grid's surface (31).
    virtual void SetBackgroundColor(std::int32_t color) = 0;
    /// 0: in use. 1: greyed, a person can't change the highlight (14).
    virtual void SetDisabledState(std::int32_t state) = 0;

    virtual std::shared_ptr<GridRange> CreateRange() = 0;       ///< (20026)
    virtual std::shared_ptr<GridStyle> CreateStyle() = 0;       ///< (172)
    virtual std::shared_ptr<GridSortInfo> CreateSortInfo() = 0; ///< (20049)
    virtual std::shared_ptr<GridParam> Param() = 0;             ///< (175)

    /// Gives the range the style (32); the last argument is always 0.
    virtual void SetStyleRange(const std::shared_ptr<GridRange>& range,
                               const std::shared_ptr<GridStyle>& style, std::int16_t) = 0;
    /// False takes the range out of the highlight, true puts it in (134).
    virtual void SelectRange(const std::shared_ptr<GridRange>& range, bool select) = 0;
    /// Sorts the rows of the range by the keys in their order (20047); rows that no key tells
    /// apart keep their order. An empty place among the keys is passed over. The arguments without
    /// a name are always 3 and 2.
    virtual void SortRows(const std::shared_ptr<GridRange>& range, std::int32_t,
                          std::span<const std::shared_ptr<GridSortInfo>> keys, std::int32_t) = 0;

    /// A setting made once, when the grid is created, known by its dispatch identifier alone: 18, 6
    /// and 27 take a 32-bit number, 29 one of 16 bits.
    virtual void SetSetting(std::int32_t dispatchID,
                            std::variant<std::int32_t, std::int16_t> value) = 0;

    /// Every property that can be read, by name.
    virtual Tamrivo::Properties Properties() const
    {
        return {{"RowCount", static_cast<std::int32_t>(RowCount())}, {"ReadOnly", ReadOnly()}};
    }

    Event<> GotFocus;
    /// What a person does with the grid that is neither a click nor a change of focus, such as
    /// adding to the highlight.
    Event<std::int32_t, std::int32_t, GridEventObject*> NoticeA;
    Event<std::int32_t, std::int32_t, GridEventObject*> NoticeB;
    /// A person begins to highlight; row and column of the cell where.
    Event<double, double, std::int64_t, GridEventObject*, GridEventObject*> SelectionStarted;
    /// A person has changed the highlight.
    Event<GridEventObject*, std::int32_t, std::int32_t> SelectionChanged;
    /// Clicks: row and column of the cell; row 0 is the header.
    Event<double, double, std::int64_t, GridEventObject*, GridEventObject*> CellClicked;
    Event<double, double, std::int64_t, GridEventObject*, GridEventResult&> CellDoubleClicked;
    Event<double, double, std::int64_t, GridEventObject*, GridEventObject*> CellRightClicked;
};

} // namespace Tamrivo
