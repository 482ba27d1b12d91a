#pragma once

#include "controls/hosted_control.h"
#include "controls/user.h"
#include "selector/gridocx.h"

#include <cstdint>

/// What a person can do with a grid (see controls/user.h). Rows are counted from 1, row 0 is the
/// header.
///
/// Each operation raises `Refusal` when the grid can't be reached or has no such row or column. The
/// first one on a grid after one on another grid of the form begins with GotFocus. While the grid
/// is disabled or its selection is switched off, the highlight stays and no event tells of it;
/// clicks are still told.
namespace Tamrivo::User
{

using GridControl = HostedControl<Gridocx>;

/// The focus comes to the grid other than by a click.
void GotFocus(GridControl& grid);

/// A left click. On a row it starts the highlight anew with this row alone: SelectionStarted,
/// SelectionChanged (even when the row was the one highlighted before), CellClicked. On the header:
/// CellClicked.
void Click(GridControl& grid, std::int32_t row, std::int32_t column = 1);

/// A click with the control key takes the row into the highlight or out of it: NoticeA;
/// SelectionStarted with the row or, when it was taken out, with the nearest one left, 0 for none,
/// so that it always names a highlighted row; SelectionChanged.
void Toggle(GridControl& grid, std::int32_t row);

/// A click with the shift key highlights the rows from the last one clicked to this one: NoticeB;
/// SelectionChanged if that changes anything. With no row highlighted it is a click.
void ExtendTo(GridControl& grid, std::int32_t row);

/// A click, then CellDoubleClicked.
void DoubleClick(GridControl& grid, std::int32_t row, std::int32_t column = 1);

/// CellRightClicked; the highlight is left to its handler.
void RightClick(GridControl& grid, std::int32_t row, std::int32_t column = 1);

} // namespace Tamrivo::User
