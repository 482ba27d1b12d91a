#include "contracts/launcher.h"
#include "core/narrowing.h"
#include "core/text.h"
#include "editor/locus_editor_page.h"

namespace Tamrivo
{

namespace
{

template <auto Value>
void Copy(const Allele& oSource, Allele& oNew)
{
    oNew.*Value = oSource.*Value;
}

/// What a copy of an allele takes over.
constexpr void (*CopySteps[])(const Allele& oSource, Allele& oNew) = {
    Copy<&Allele::AlleleReal1>, Copy<&Allele::AlleleText1>, Copy<&Allele::AlleleInt1>,
    Copy<&Allele::AlleleReal2>, Copy<&Allele::AlleleReal3>, Copy<&Allele::AlleleReal4>,
    Copy<&Allele::AlleleReal5>, Copy<&Allele::AlleleText2>, Copy<&Allele::AlleleText3>,
    Copy<&Allele::AlleleInt2>,  Copy<&Allele::AlleleInt3>,
};

} // namespace

void LocusEditorPage::cmdSaveAs_Click()
{
    Terminal("cmdSaveAs_Click", [&](Guard& run) {
        const auto oParameters = run([&] { return m_oPageBase->Parameters(); });
        const auto oNewLocus = run([&] { return CreateObject<Locus>(Objects(), "Locus"); });
        run([&] { RemoveParameter(ParameterKey::SaveLocusAs); });
        run([&] { UpdateLocus(oNewLocus); });
        if (!m_bBinning)
            run([&] { UpdateLocus(m_oCopyOfLocus); });

        for (const auto& oMember : run([&] { return WorkingLocus()->Alleles().Members(); }))
        {
            const auto oSource = run([&] { return As<Allele>(oMember); });
            const auto oAllele = run([&] { return CreateObject<Allele>(Objects(), "Allele"); });
            run([&] { oAllele->SetAlleleOwner(oNewLocus); });
            for (const auto copy : CopySteps)
                run([&] { copy(*oSource, *oAllele); });
            run([&] { oNewLocus->Alleles().Add(oAllele); });
        }
        run([&] { Parameters().Add(oNewLocus, ParameterKey::SaveLocusAs); });

        const Reference<LauncherResult> oResult =
            run([&] { return StartWizard(m_host.SharedLauncher(), SaveAsWizard, oParameters); });
        if (run([&] { return oResult->Cancelled(); }))
            return;

        if (run([&] { return EqualNoCase(m_oLocus->LocusTag(), oNewLocus->LocusTag()); }))
        {
            m_bSavedAs = false;
            run([&] { m_oPageBase_Save(); });
        }
        else
        {
            run([&] { HoldLocus(oNewLocus); });
            m_bSavedAs = true;
            run([&] { txtLocusTag.SetText(m_oLocus->LocusTag()); });
            CountNewTag(run);
        }
        run([&] { txtLocusTag.SetVisible(false); });
        run([&] { lblLocusTag.SetCaption(txtLocusTag.Text()); });
    });
}

void LocusEditorPage::CountNewTag(Guard& run)
{
    std::int16_t nSaveTimes = 1;
    if (run([&] { return HasParameter(ParameterKey::SaveTimes); }))
    {
        nSaveTimes = run([&] {
            return ToShortInteger(
                ParameterItem<std::int16_t>(Parameters(), ParameterKey::SaveTimes) + 1);
        });
        run([&] { Parameters().Remove(ParameterKey::SaveTimes); });
    }
    run([&] { Parameters().Add(nSaveTimes, ParameterKey::SaveTimes); });
}

} // namespace Tamrivo
