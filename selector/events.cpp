#include "selector/row_number.h"
#include "selector/str_locus_tag_selector.h"

namespace Tamrivo
{

void STRLocusTagSelector::ConnectEvents()
{
    cmdAddSingle.Click = [this] { cmdAddSingle_Click(); };
    cmdRemoveSingle.Click = [this] { cmdRemoveSingle_Click(); };
    cmdAddAll.Click = [this] { cmdAddAll_Click(); };
    cmdRemoveAll.Click = [this] { cmdRemoveAll_Click(); };
    cmdEditSTRLocus.Click = [this] { cmdEditSTRLocus_Click(); };
    cmdNewSTRLocus.Click = [this] { cmdNewSTRLocus_Click(); };
    mnuAdd.Click = [this] { mnuAdd_Click(); };
    mnuRemove.Click = [this] { mnuRemove_Click(); };
    mnuEditAvailable.Click = [this] { mnuEditAvailable_Click(); };
    mnuEditSelected.Click = [this] { mnuEditSelected_Click(); };
    mnuNewAvailable.Click = [this] { mnuNewAvailable_Click(); };
    mnuNewSelected.Click = [this] { mnuNewSelected_Click(); };
    mnuAscending.Click = [this] { mnuAscending_Click(); };
    mnuDescending.Click = [this] { mnuDescending_Click(); };

    gridAvailable->GotFocus = [this] { gridAvailable_GotFocus(); };
    gridAvailable->NoticeA = [this](auto&&...) { gridAvailable_NoticeA(); };
    gridAvailable->NoticeB = [this](auto&&...) { gridAvailable_NoticeB(); };
    gridAvailable->SelectionStarted = [this](double dRow, auto&&...) {
        gridAvailable_SelectionStarted(dRow);
    };
    gridAvailable->SelectionChanged = [this](auto&&...) { gridAvailable_SelectionChanged(); };
    gridAvailable->CellClicked = [this](double dRow, double dColumn, auto&&...) {
        gridAvailable_CellClicked(dRow, dColumn);
    };
    gridAvailable->CellDoubleClicked = [this](double dRow, double, std::int64_t, GridEventObject*,
                                              GridEventResult& oResult) {
        gridAvailable_CellDoubleClicked(dRow, oResult);
    };
    gridAvailable->CellRightClicked = [this](double dRow, auto&&...) {
        gridAvailable_CellRightClicked(dRow);
    };

    gridSelected->GotFocus = [this] { gridSelected_GotFocus(); };
    gridSelected->NoticeA = [this](auto&&...) { gridSelected_NoticeA(); };
    gridSelected->NoticeB = [this](auto&&...) { gridSelected_NoticeB(); };
    gridSelected->SelectionStarted = [this](double dRow, auto&&...) {
        gridSelected_SelectionStarted(dRow);
    };
    gridSelected->SelectionChanged = [this](auto&&...) { gridSelected_SelectionChanged(); };
    gridSelected->CellClicked = [this](double dRow, double dColumn, auto&&...) {
        gridSelected_CellClicked(dRow, dColumn);
    };
    gridSelected->CellDoubleClicked = [this](double dRow, double, std::int64_t, GridEventObject*,
                                             GridEventResult& oResult) {
        gridSelected_CellDoubleClicked(dRow, oResult);
    };
    gridSelected->CellRightClicked = [this](double dRow, auto&&...) {
        gridSelected_CellRightClicked(dRow);
    };
}

void STRLocusTagSelector::TurnTo(Side& side)
{
    DropHighlight(side.Other);
    ShowButtons();
}

void STRLocusTagSelector::DropHighlight(Side& side)
{
    UnHighlightRows(side.Rows);
    side.CurrentRow = 0;
}

void STRLocusTagSelector::GotFocus(Side& side)
{
    if (m_bEnabled)
        TurnTo(side);
}

void STRLocusTagSelector::SelectionStarted(Side& side, double dRow)
{
    if (!m_bEnabled)
        return;
    m_oMenuGrid = &side.Rows;
    side.CurrentRow = dRow;
    ShowButtons();
}

void STRLocusTagSelector::SelectionChanged(Side& side)
{
    const std::int32_t lHighlighted = Helper().HighlightedRowCount(side.Rows);
    if (lHighlighted == 0)
        return;
    cmdEditSTRLocus.SetEnabled(lHighlighted == 1);
    side.EditItem.SetEnabled(lHighlighted == 1);
}

void STRLocusTagSelector::CellClicked(Side& side, double dRow, double dColumn)
{
    if (!m_bEnabled)
        return;
    DropHighlight(side.Other);
    if (dRow <= 0)
    {
        const std::string sHeader = side.Rows.GetValueRowCol(0, dColumn);
        Helper().SortByHeader(side.Rows, *side.Layout, sHeader, -1);
        side.CurrentRow = 0;
    }
    else
    {
        side.CurrentRow = dRow;
    }
    ShowButtons();
}

void STRLocusTagSelector::gridAvailable_CellDoubleClicked(double dRow, GridEventResult& oResult)
{
    oResult.Value = 1;
    AddRow(RowNumber(dRow));
}

void STRLocusTagSelector::gridSelected_CellDoubleClicked(double dRow, GridEventResult& oResult)
{
    oResult.Value = 1;
    RemoveRow(RowNumber(dRow));
}

void STRLocusTagSelector::CellRightClicked(Side& side, double dRow)
{
    if (!m_bEnabled)
        return;
    m_oMenuGrid = &side.Rows;
    DropHighlight(side.Other);
    const bool bHighlighted = Helper().IsRowHighlighted(side.Rows, dRow);
    if (dRow > 0 && !bHighlighted)
    {
        Helper().HighlightRow(side.Rows, RowNumber(dRow));
        side.CurrentRow = dRow;
        side.EditItem.SetEnabled(true);
        cmdEditSTRLocus.SetEnabled(true);
    }
    if (dRow == 0)
        DropHighlight(side);
    ShowButtons();
    PopupMenu(dRow <= 0 ? mnuSTRLocusColumn : side.RowMenu, 2);
}

} // namespace Tamrivo
