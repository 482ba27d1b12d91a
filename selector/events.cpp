#include "core/narrowing.h"
#include "selector/str_locus_tag_selector.h"

namespace Tamrivo
{

void STRLocusTagSelector::ConnectEvents()
{
    m_connections.On(cmdAddSingle.Click, [this] { cmdAddSingle_Click(); });
    m_connections.On(cmdRemoveSingle.Click, [this] { cmdRemoveSingle_Click(); });
    m_connections.On(cmdAddAll.Click, [this] { cmdAddAll_Click(); });
    m_connections.On(cmdRemoveAll.Click, [this] { cmdRemoveAll_Click(); });
    m_connections.On(cmdEditSTRLocus.Click, [this] { cmdEditSTRLocus_Click(); });
    m_connections.On(cmdNewSTRLocus.Click, [this] { cmdNewSTRLocus_Click(); });
    m_connections.On(mnuAdd.Click, [this] { mnuAdd_Click(); });
    m_connections.On(mnuRemove.Click, [this] { mnuRemove_Click(); });
    m_connections.On(mnuEditAvailable.Click, [this] { mnuEditAvailable_Click(); });
    m_connections.On(mnuEditSelected.Click, [this] { mnuEditSelected_Click(); });
    m_connections.On(mnuNewAvailable.Click, [this] { mnuNewAvailable_Click(); });
    m_connections.On(mnuNewSelected.Click, [this] { mnuNewSelected_Click(); });
    m_connections.On(mnuAscending.Click, [this] { mnuAscending_Click(); });
    m_connections.On(mnuDescending.Click, [this] { mnuDescending_Click(); });

    ConnectGrid(m_available);
    ConnectGrid(m_selected);
}

void STRLocusTagSelector::ConnectGrid(Side& side)
{
    Gridocx& oGrid = side.Rows;
    m_connections.On(oGrid.GotFocus, [this, &side] {
        if (m_bEnabled)
            TurnTo(side);
    });
    m_connections.On(oGrid.NoticeA, [this, &side](auto&&...) { TurnTo(side); });
    m_connections.On(oGrid.NoticeB, [this, &side](auto&&...) { TurnTo(side); });
    m_connections.On(oGrid.SelectionStarted,
                     [this, &side](double dRow, auto&&...) { SelectionStarted(side, dRow); });
    m_connections.On(oGrid.SelectionChanged, [this, &side](auto&&...) { SelectionChanged(side); });
    m_connections.On(oGrid.CellClicked, [this, &side](double dRow, double dColumn, auto&&...) {
        CellClicked(side, dRow, dColumn);
    });
    m_connections.On(
        oGrid.CellDoubleClicked,
        [this, &side](double dRow, double, std::int64_t, GridEventObject*,
                      GridEventResult& oResult) { CellDoubleClicked(side, dRow, oResult); });
    m_connections.On(oGrid.CellRightClicked,
                     [this, &side](double dRow, auto&&...) { CellRightClicked(side, dRow); });
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

void STRLocusTagSelector::CellDoubleClicked(Side& side, double dRow, GridEventResult& oResult)
{
    oResult.Value = 1;
    MoveRow(side, ToInteger(dRow));
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
        Helper().HighlightRow(side.Rows, ToInteger(dRow));
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
