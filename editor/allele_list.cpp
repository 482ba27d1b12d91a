#include "editor/steps.h"

namespace Tamrivo
{

struct LocusEditorPage::Generation : Steps
{
    static constexpr StoreStep DefinitionSteps[] = {
        Store<&Locus::FragStart, &Page::txtFragStart, ToInteger>,
        Store<&Locus::FragEnd, &Page::txtFragEnd, ToInteger>,
        Store<&Locus::ShortestAlleleSize, &Page::txtShortestAlleleSize, ToInteger>,
        Store<&Locus::RepeatLength, &Page::txtRepeat, ToInteger>,
        Store<&Locus::RepeatsInShortestAllele, &Page::txtRepeatsInShortestAllele, AsIs>,
        StoreNaming,
    };
};

void LocusEditorPage::cmdGenAlleleList_Click()
{
    Terminal("cmdGenAlleleList_Click", [&](Guard& run) {
        Locus& oLocus = run([&]() -> Locus& { return *WorkingLocus(); });
        for (const auto step : Generation::DefinitionSteps)
            run([&] { step(*this, oLocus); });
        run([&] { oLocus.GenerateAlleles(); });
        run([&] { ctlPaneAlleleList->RefreshAlleles(); });
        run([&] { NoteChangedAlleles(); });
    });
}

void LocusEditorPage::ctlPaneAlleleList_AlleleEdited(Allele&)
{
    NoteChangedAlleles();
}

void LocusEditorPage::ctlPaneAlleleList_ListChanged()
{
    NoteChangedAlleles();
}

void LocusEditorPage::ctlPaneAlleleList_ValidityChanged(bool& bIsValid)
{
    m_bAlleleListValid = bIsValid;
    if (!m_bDeactivated)
        m_oPageBase->PageChanged();
}

void LocusEditorPage::NoteChangedAlleles()
{
    if (m_oBinning)
        m_oBinning->SetChangedFlag(true);
}

} // namespace Tamrivo
