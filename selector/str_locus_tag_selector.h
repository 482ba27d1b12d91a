#pragma once

#include "contracts/locus.h"
#include "core/collection.h"
#include "core/event.h"
#include "core/guard.h"
#include "core/reference.h"
#include "selector/grid_helper.h"
#include "selector/str_locus_tag_selector_form.h"

#include <cstdint>
#include <memory>

namespace Tamrivo
{

/// Lets a person choose the locus tags of an analysis parameter, from a grid of available tags and
/// one of selected tags, and create or edit a locus on the spot.
///
/// The rows of the right grid are the selection; it has no list of its own. The analysis parameter
/// is read by `Initialize` and written by `Save`, nothing links it with the grids in between. The
/// host calls `Initialize` before every other member except `Enabled`.
///
/// Failures leave the members unreported, and what was done before them stays done.
class STRLocusTagSelector final : public STRLocusTagSelectorForm, private Guarded
{
public:
    explicit STRLocusTagSelector(Host& host);

    /// All current loci, those included that were added since `Initialize`; null before it. It is
    /// the selector's own list, not a copy.
    const std::shared_ptr<ObjectList>& AllLocusTags() const { return m_oAllLocusTags; }

    /// Number of rows of the selection, highlighted or not.
    std::int32_t NumberOfSelectedLocusTags() const;

    /// The loci of the selection in the present order of its rows, a new collection on each call.
    /// Raises `ErrorNumber::InvalidArgument` when a row's tag is no longer that of a locus.
    Collection<std::shared_ptr<Locus>> SelectedLocusTags() const;

    /// Fills both grids: each current locus stands in one of them, in the right one if the
    /// parameter's first tag list holds its `LocusTagID`. Raises `ErrorNumber::NoObject` without a
    /// parameter, `ErrorNumber::KeyTaken` when the list holds a tag twice, and passes on what the
    /// store raises.
    void Initialize(const std::shared_ptr<AnalysisParameter>& oAnalysisParameter);

    /// Replaces the first tag list of a parameter, which need not be the one given to `Initialize`,
    /// by the selection. Tells the person of each tag that can't be loaded and leaves it out; stops
    /// at the first when the store can't be reached. Does nothing if the parameter has no list.
    void Save(FragAnalysisParam& oFragAnalysisParam);

    /// False greys everything and lets a person change nothing; rows and highlight stay.
    void SetEnabled(bool bValue);
    bool Enabled() const override { return m_bEnabled; }

private:
    /// One of the two lists: its grid, what belongs to it, and the list opposite. All that a person
    /// does on one side is the mirror image of the same on the other.
    struct Side
    {
        Gridocx& Rows;
        Label& Caption;
        CommandButton& MoveAll;
        CommandButton& MoveSingle;
        Menu& RowMenu;
        MenuItem& EditItem;
        Side& Other;
        double CurrentRow = 0;
        Reference<Grid> Layout = {};
    };

    void UserControl_Initialize();
    void ConnectEvents();
    void ConnectGrid(Side& side);

    GridHelper& Helper() const { return m_host.SharedGridHelper(); }
    std::shared_ptr<Locus> FindLocusOfRow(const Gridocx& oGrid, double dRow) const;
    bool IsInTagList(const Keyed& colTagIDs, const Locus& oLocus) const;
    static void AppendRow(Gridocx& oGrid, const Reference<Locus>& oLocus);

    // Moving tags between the lists.
    void AddHighlightedRows() { MoveHighlightedRows(m_available); }
    void RemoveHighlightedRows() { MoveHighlightedRows(m_selected); }
    void AddAllRows() { MoveAllRows(m_available); }
    void RemoveAllRows() { MoveAllRows(m_selected); }
    void MoveHighlightedRows(Side& from);
    void MoveRow(Side& from, std::int32_t nRow);
    void MoveAllRows(Side& from);
    void MoveFromMenu(Side& from);

    // Presentation.
    void ShowButtons();
    void UnHighlightRows(Gridocx& oGrid);
    void GridSort(Gridocx* oGrid, bool bDescending, bool bCaseFlag);
    void ShowMoveButtons(Guard& run, Side& side);
    void SetLook(bool bEnabled, std::int32_t lBackgroundColor, std::int32_t lTextColor);

    // What a person does on one side; `m_bEnabled` shuts all but the notices and the change.
    void TurnTo(Side& side);
    void SelectionStarted(Side& side, double dRow);
    void SelectionChanged(Side& side);
    void CellClicked(Side& side, double dRow, double dColumn);
    void CellDoubleClicked(Side& side, double dRow, GridEventResult& oResult);
    void CellRightClicked(Side& side, double dRow);
    void DropHighlight(Side& side);

    // Creating and editing loci.
    void RunLocusEditor(Reference<Locus>& oLocus, bool& bCompleted);
    void EditLocus(Gridocx& oGrid, std::int32_t nRow);
    void NewLocus();
    void AddLocusRow(const std::shared_ptr<Locus>& oLocus);
    void RefreshLocusTags();
    void EditCurrentLocus();
    void EditFromMenu(Side& side);
    void NewFromMenu(Side& side);

    // Event handlers.
    void cmdAddSingle_Click() { AddHighlightedRows(); }
    void cmdRemoveSingle_Click() { RemoveHighlightedRows(); }
    void cmdAddAll_Click() { AddAllRows(); }
    void cmdRemoveAll_Click() { RemoveAllRows(); }
    void cmdEditSTRLocus_Click() { EditCurrentLocus(); }
    void cmdNewSTRLocus_Click() { NewLocus(); }
    void mnuAdd_Click() { MoveFromMenu(m_available); }
    void mnuRemove_Click() { MoveFromMenu(m_selected); }
    void mnuEditAvailable_Click() { EditFromMenu(m_available); }
    void mnuEditSelected_Click() { EditFromMenu(m_selected); }
    void mnuNewAvailable_Click() { NewFromMenu(m_available); }
    void mnuNewSelected_Click() { NewFromMenu(m_selected); }
    void mnuAscending_Click() { GridSort(m_oMenuGrid, false, false); }
    void mnuDescending_Click() { GridSort(m_oMenuGrid, true, true); }

    Reference<ObjectList> m_oAllLocusTags;
    Reference<AnalysisParameter> m_oAnalysisParameter;
    Gridocx* m_oMenuGrid = nullptr;
    bool m_bEnabled = false;
    bool m_bRefreshNeeded = false;

    Side m_available{.Rows = gridAvailable.Object(),
                     .Caption = strAvailable,
                     .MoveAll = cmdAddAll,
                     .MoveSingle = cmdAddSingle,
                     .RowMenu = mnuSTRLocusAvailable,
                     .EditItem = mnuEditAvailable,
                     .Other = m_selected};
    Side m_selected{.Rows = gridSelected.Object(),
                    .Caption = strSelected,
                    .MoveAll = cmdRemoveAll,
                    .MoveSingle = cmdRemoveSingle,
                    .RowMenu = mnuSTRLocusSelected,
                    .EditItem = mnuEditSelected,
                    .Other = m_available};

    Connections m_connections;
};

} // namespace Tamrivo
