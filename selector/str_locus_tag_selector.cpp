#include "selector/str_locus_tag_selector.h"

#include "core/narrowing.h"
#include "core/numbers.h"
#include "core/text.h"

namespace Tamrivo
{

namespace
{

/// Number of the layout with a column for the tag and one for the date.
constexpr std::int32_t LocusTagLayout = 21;

std::shared_ptr<Grid> ApplyLayout(GridHelper& oHelper, Gridocx& oGrid, ObjectManager& oManager)
{
    auto oLayout = CreateObject<Grid>(oManager, "Grid");
    oLayout->SetGridID(LocusTagLayout);
    oHelper.ApplyLayout(oGrid, *oLayout, 0, 0, 0);
    return oLayout;
}

} // namespace

STRLocusTagSelector::STRLocusTagSelector(Host& host)
    : STRLocusTagSelectorForm(host), Guarded(host.SharedUtility(), Name())
{
    ConnectEvents();
    UserControl_Initialize();
}

void STRLocusTagSelector::UserControl_Initialize()
{
    Helper().PrepareGrid(gridAvailable.Object(), -1);
    Helper().PrepareGrid(gridSelected.Object(), -1);

    using Value = std::variant<std::int32_t, std::int16_t>;
    constexpr std::pair<std::int32_t, Value> settings[] = {
        {18, std::int32_t{1}}, {6, std::int32_t{2}}, {27, std::int32_t{1}}, {29, std::int16_t{1}}};
    for (const auto& [dispatchID, value] : settings)
    {
        gridAvailable->SetSetting(dispatchID, value);
        gridSelected->SetSetting(dispatchID, value);
    }
    m_bEnabled = true;
}

void STRLocusTagSelector::Initialize(const std::shared_ptr<AnalysisParameter>& oAnalysisParameter)
{
    m_oAnalysisParameter = oAnalysisParameter;
    const Reference<ObjectManager> oManager = m_host.NewObjectManager();
    for (Side* side : {&m_available, &m_selected})
        side->Layout = ApplyLayout(Helper(), side->Rows, *oManager);
    m_oAllLocusTags = CurrentLoci(*oManager, "Name");

    Collection<std::shared_ptr<LocusTagEntry>> colStored;
    FragAnalysisParam& oFragAnalysisParam = m_oAnalysisParameter->FragAnalysisParam();
    if (oFragAnalysisParam.LocusTagListCount() >= 1)
    {
        for (const auto& oEntry : oFragAnalysisParam.LocusTagList(0).Entries())
            colStored.Add(oEntry, IntegerText(Reference<LocusTagEntry>(oEntry)->TagID(0)));
    }

    Gridocx* const grids[] = {&gridAvailable.Object(), &gridSelected.Object()};
    for (Gridocx* oGrid : grids)
    {
        oGrid->SetLockReadOnly(false);
        oGrid->LockUpdate(true);
    }
    for (Gridocx* oGrid : grids)
        oGrid->ClearRows(0);

    for (const auto& oMember : m_oAllLocusTags->Members())
    {
        const auto oLocus = As<Locus>(oMember);
        AppendRow(IsInTagList(colStored, *oLocus) ? m_selected.Rows : m_available.Rows, oLocus);
    }

    for (const Side* side : {&m_available, &m_selected})
        Helper().SortByHeader(side->Rows, *side->Layout, side->Rows.GetValueRowCol(0, 1), -1);
    for (Gridocx* oGrid : grids)
    {
        oGrid->LockUpdate(false);
        oGrid->Redraw(2);
        oGrid->SetReadOnly(true);
        oGrid->SetLockReadOnly(true);
    }
    ShowButtons();
    m_oMenuGrid = &gridAvailable.Object();
}

std::int32_t STRLocusTagSelector::NumberOfSelectedLocusTags() const
{
    return ToInteger(gridSelected->RowCount());
}

Collection<std::shared_ptr<Locus>> STRLocusTagSelector::SelectedLocusTags() const
{
    Collection<std::shared_ptr<Locus>> colLoci;
    const double dRows = gridSelected->RowCount();
    for (double dRow = 1; dRow <= dRows; ++dRow)
        colLoci.Add(FindLocusOfRow(gridSelected.Object(), dRow));
    return colLoci;
}

void STRLocusTagSelector::Save(FragAnalysisParam& oFragAnalysisParam)
{
    if (oFragAnalysisParam.LocusTagListCount() <= 0)
        return;
    LocusTagEntries& oEntries = oFragAnalysisParam.LocusTagList(0);
    oEntries.Clear();
    for (const auto& oLocus : SelectedLocusTags())
    {
        const Reference<LocusTagEntry> oEntry = m_host.NewLocusTagEntry();
        oEntry->SetTagName(oLocus->LocusTag());
        const std::int32_t lResult = oEntry->Load();
        switch (lResult)
        {
        case LoadResult::Loaded: oEntries.Add(oEntry); break;
        case LoadResult::NoConnection:
            m_host.ShowMessage("Failed to get DB connection!", MessageKind::Critical,
                               "Internal DB Error");
            return;
        case LoadResult::NoSuchTag:
            m_host.ShowMessage("Locus Tag \"" + TrimRight(oLocus->LocusTag()) +
                                   "\" does not exist in the Database.\r\n"
                                   "Proceeding without it in the selection.\r\n"
                                   "(Was it deleted while this selector was open?)",
                               MessageKind::Exclamation, "Locus Tag Does Not Exist");
            break;
        default:
            m_host.ShowMessage("Locus Tag Load returned unexpected condition: " +
                                   IntegerText(lResult),
                               MessageKind::Critical, "Internal DB Error");
        }
    }
}

std::shared_ptr<Locus> STRLocusTagSelector::FindLocusOfRow(const Gridocx& oGrid, double dRow) const
{
    return As<Locus>(m_oAllLocusTags->Item(oGrid.GetTextRowCol(dRow, 1)));
}

bool STRLocusTagSelector::IsInTagList(const Keyed& colTagIDs, const Locus& oLocus) const
{
    return m_host.SharedUtility().KeyExists(colTagIDs, IntegerText(oLocus.LocusTagID()));
}

void STRLocusTagSelector::AppendRow(Gridocx& oGrid, const Reference<Locus>& oLocus)
{
    const double dRow = oGrid.RowCount() + 1;
    oGrid.SetRowCount(dRow);
    oGrid.SetValueRowCol(dRow, 1, oLocus->LocusTag(), 1);
    oGrid.SetValueRowCol(dRow, 2, DateText(oLocus->DateLastModified()), 1);
}

} // namespace Tamrivo
