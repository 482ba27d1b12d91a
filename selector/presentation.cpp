#include "controls/screen.h"
#include "selector/str_locus_tag_selector.h"

#include <array>

namespace Tamrivo
{

void STRLocusTagSelector::ShowButtons()
{
    Propagating("ShowButtons", [&](Guard& run) {
        ShowMoveButtons(run, m_available);
        ShowMoveButtons(run, m_selected);
        if (m_available.CurrentRow == 0 && m_selected.CurrentRow == 0)
            run([&] { cmdEditSTRLocus.SetEnabled(false); });
    });
}

void STRLocusTagSelector::ShowMoveButtons(Guard& run, Side& side)
{
    const bool bHasRows = run([&] { return side.Rows.RowCount() != 0; });
    run([&] { side.MoveAll.SetEnabled(bHasRows); });
    run([&] { side.MoveSingle.SetEnabled(bHasRows && side.CurrentRow > 0); });
}

void STRLocusTagSelector::UnHighlightRows(Gridocx& oGrid)
{
    Propagating("UnHighlightRows", [&](Guard& run) {
        const Reference<GridRange> oRange = run([&] { return oGrid.CreateRange(); });
        run([&] { oRange->SetTable(); });
        run([&] { oGrid.SelectRange(oRange, false); });
        for (const std::int16_t lSelection : {GridSelection::Off, GridSelection::Full})
            run([&] { Reference<GridParam>(oGrid.Param())->EnableSelection(lSelection); });
    });
}

void STRLocusTagSelector::GridSort(Gridocx* oGrid, bool bDescending, bool bCaseFlag)
{
    Propagating("GridSort", [&](Guard& run) {
        Screen& oScreen = run([&]() -> Screen& { return m_host.SharedScreen(); });
        const std::int32_t lPointer = oScreen.MousePointer();
        run([&] { oScreen.SetMousePointer(Pointer::Hourglass); });

        const Reference<GridRange> oRange = run([&] {
            if (oGrid == nullptr)
                throw Failure(ErrorNumber::NoObject, "STRLocusTagSelector",
                              "The selector has not been initialized");
            return oGrid->CreateRange();
        });
        run([&] { oRange->SetTable(); });

        // The array keeps one more place than there are keys.
        constexpr std::int16_t nColumns = 6;
        std::array<std::shared_ptr<GridSortInfo>, nColumns + 1> keys;
        for (std::int16_t nColumn = 1; nColumn <= nColumns; ++nColumn)
        {
            const Reference<GridSortInfo> oKey = run([&] { return oGrid->CreateSortInfo(); });
            run([&] { oKey->nRC = nColumn; });
            oKey->SortType = GridSortInfo::NaturalOrder;
            oKey->bCase = bCaseFlag;
            if (bDescending)
                oKey->SortOrder = GridSortInfo::Descending;
            keys[static_cast<std::size_t>(nColumn - 1)] = oKey;
        }
        run([&] { oGrid->SortRows(oRange, 3, keys, 2); });
        run([&] { oScreen.SetMousePointer(lPointer); });
    });
}

void STRLocusTagSelector::SetEnabled(bool bValue)
{
    Gridocx& oAvailable = gridAvailable.Object();
    Gridocx& oSelected = gridSelected.Object();

    const bool bAvailableLock = oAvailable.LockUpdate(false);
    const bool bSelectedLock = oSelected.LockUpdate(false);
    const bool bAvailableReadOnly = oAvailable.ReadOnly();
    oAvailable.SetReadOnly(false);
    const bool bSelectedReadOnly = oSelected.ReadOnly();
    oSelected.SetReadOnly(false);

    if (bValue)
    {
        SetLook(true, GridColor::White, GridColor::Black);
        ShowButtons();
        cmdNewSTRLocus.SetEnabled(true);
    }
    else
    {
        SetLook(false, GridColor::ButtonFace, GridColor::GreyedText);
        for (CommandButton* button : {&cmdAddAll, &cmdAddSingle, &cmdRemoveAll, &cmdRemoveSingle,
                                      &cmdEditSTRLocus, &cmdNewSTRLocus})
            button->SetEnabled(false);
    }

    oAvailable.Redraw(2);
    oAvailable.LockUpdate(bAvailableLock);
    oAvailable.SetReadOnly(bAvailableReadOnly);
    oSelected.Redraw(2);
    oSelected.LockUpdate(bSelectedLock);
    oSelected.SetReadOnly(bSelectedReadOnly);
    m_bEnabled = bValue;
    EnabledChanged();
}

void STRLocusTagSelector::SetLook(bool bEnabled, std::int32_t lBackgroundColor,
                                  std::int32_t lTextColor)
{
    const Side* const sides[] = {&m_available, &m_selected};
    for (const Side* side : sides)
        side->Caption.SetEnabled(bEnabled);
    for (const Side* side : sides)
        side->Rows.SetBackgroundColor(lBackgroundColor);
    for (const Side* side : sides)
        side->Rows.SetDisabledState(bEnabled ? 0 : 1);
    for (const Side* side : sides)
    {
        const Reference<GridRange> oRange = side->Rows.CreateRange();
        const Reference<GridStyle> oStyle = side->Rows.CreateStyle();
        oRange->SetTable();
        oStyle->Free();
        oStyle->SetTextColor(lTextColor);
        side->Rows.SetStyleRange(oRange, oStyle, 0);
    }
}

} // namespace Tamrivo
