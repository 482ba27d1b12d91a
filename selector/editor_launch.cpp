#include "core/narrowing.h"
#include "core/numbers.h"
#include "core/text.h"
#include "selector/str_locus_tag_selector.h"

namespace Tamrivo
{

namespace
{

/// Writes to a grid that is read-only for the person, painting once.
template <class Write>
void Rewrite(Gridocx& oGrid, Write&& write)
{
    oGrid.SetLockReadOnly(false);
    oGrid.LockUpdate(true);
    write();
    oGrid.LockUpdate(false);
    oGrid.Redraw(2);
    oGrid.SetLockReadOnly(true);
}

} // namespace

void STRLocusTagSelector::RunLocusEditor(Reference<Locus>& oLocus, bool& bCompleted)
{
    m_bRefreshNeeded = false;
    const Reference<ParameterCollection> colParameters = m_host.NewParameterCollection();
    colParameters->Add(oLocus, ParameterKey::Locus);
    const Reference<LauncherResult> oResult =
        StartWizard(m_host.SharedLauncher(), LocusEditorWizard, colParameters);

    const Utility& oUtility = m_host.SharedUtility();
    if (oUtility.KeyExists(*colParameters, ParameterKey::NewSaveAs))
        oLocus = ParameterItem<std::shared_ptr<Locus>>(*colParameters, ParameterKey::NewSaveAs);
    if (oUtility.KeyExists(*colParameters, ParameterKey::SaveTimes))
    {
        // A completed wizard hands over one new locus; any other stored tag has to be looked for.
        const auto nSaveTimes =
            ParameterItem<std::int16_t>(*colParameters, ParameterKey::SaveTimes);
        if (nSaveTimes > 1 || (nSaveTimes == 1 && oResult->Cancelled()))
            m_bRefreshNeeded = true;
    }
    bCompleted = !oResult->Cancelled();
}

void STRLocusTagSelector::EditLocus(Gridocx& oGrid, std::int32_t nRow)
{
    Reference<Locus> oLocus = FindLocusOfRow(oGrid, nRow);
    const std::string sOldTag = TrimRight(oLocus->LocusTag());
    bool bCompleted = false;
    RunLocusEditor(oLocus, bCompleted);
    if (bCompleted)
    {
        if (!EqualNoCase(sOldTag, TrimRight(oLocus->LocusTag())))
            AddLocusRow(oLocus);
        else
            Rewrite(oGrid, [&] {
                oGrid.SetValueRowCol(nRow, 2, DateText(oLocus->DateLastModified()), 1);
            });
    }
    if (m_bRefreshNeeded)
        RefreshLocusTags();
}

void STRLocusTagSelector::NewLocus()
{
    const Reference<ObjectManager> oManager = m_host.NewObjectManager();
    Reference<Locus> oLocus = CreateObject<Locus>(*oManager, "Locus");
    bool bCompleted = false;
    RunLocusEditor(oLocus, bCompleted);
    if (bCompleted)
        AddLocusRow(oLocus);
}

void STRLocusTagSelector::AddLocusRow(const std::shared_ptr<Locus>& oLocus)
{
    Gridocx& oGrid = gridAvailable.Object();
    Rewrite(oGrid, [&] { AppendRow(oGrid, oLocus); });
    m_oAllLocusTags->Add(oLocus);
}

void STRLocusTagSelector::RefreshLocusTags()
{
    const Reference<ObjectManager> oManager = m_host.NewObjectManager();
    const Reference<ObjectList> oStored = CurrentLoci(*oManager, "Name");
    ObjectList& oKnown = *m_oAllLocusTags;
    if (oStored->Count() == oKnown.Count())
        return;

    Collection<std::shared_ptr<BusinessObject>> colKnown;
    for (const auto& oMember : oKnown.Members())
        colKnown.Add(oMember, IntegerText(As<Locus>(oMember)->LocusTagID()));
    for (const auto& oMember : oStored->Members())
    {
        const auto oLocus = As<Locus>(oMember);
        if (IsInTagList(colKnown, *oLocus))
            continue;
        AddLocusRow(oLocus);
        if (oStored->Count() == oKnown.Count())
            break;
    }
}

void STRLocusTagSelector::EditCurrentLocus()
{
    for (const Side* side : {&m_available, &m_selected})
    {
        if (side->CurrentRow > 0)
            return EditLocus(side->Rows, ToInteger(side->CurrentRow));
    }
}

void STRLocusTagSelector::EditFromMenu(Side& side)
{
    if (side.CurrentRow <= 0)
        return;
    const bool bWasHighlighted = Helper().HighlightedRowCount(side.Rows) >= 1;
    EditLocus(side.Rows, ToInteger(side.CurrentRow));
    if (bWasHighlighted)
        Helper().HighlightRow(side.Rows, ToInteger(side.CurrentRow));
}

void STRLocusTagSelector::NewFromMenu(Side& side)
{
    if (Helper().HighlightedRowCount(side.Rows) < 1)
        return NewLocus();
    const HighlightedRows colHighlighted = Helper().GetHighlightedRows(side.Rows, 1);
    NewLocus();
    Helper().SetHighlightedRows(side.Rows, colHighlighted);
}

} // namespace Tamrivo
