#include "editor/steps.h"

namespace Tamrivo
{

struct LocusEditorPage::GenerationSteps : Steps
{
    static constexpr StoreStep DefinitionSteps[] = {
        StoreInteger<&Locus::FragStart, &Page::txtFragStart>,
        StoreInteger<&Locus::FragEnd, &Page::txtFragEnd>,
        StoreInteger<&Locus::ShortestAlleleSize, &Page::txtShortestAlleleSize>,
        StoreInteger<&Locus::RepeatLength, &Page::txtRepeat>,
        Store<&Locus::RepeatsInShortestAllele, &Page::txtRepeatsInShortestAllele, AsIs>,
        StoreNaming,
    };
};

void LocusEditorPage::cmdGenAlleleList_Click()
{
    Terminal("cmdGenAlleleList_Click", [&](Guard& run) {
        Locus& oLocus = run([&]() -> Locus& { return *WorkingLocus(); });
        for (const auto step : GenerationSteps::DefinitionSteps)
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
