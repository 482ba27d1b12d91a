#include "editor/steps.h"

namespace Tamrivo
{

struct LocusEditorPage::BinningSteps : Steps
{
    static void HideGeneration(Page& page)
    {
        page.cmdGenAlleleList.SetEnabled(false);
        page.cmdGenAlleleList.SetVisible(false);
    }

    static void HideNaming(Page& page)
    {
        page.fraAlleleNamingConvention.SetVisible(false);
        page.fraAlleleNamingConvention.SetEnabled(false);
    }

    static void ShowAlleles(Page& page) { page.ctlPaneAlleleList->SetLocus(page.m_oLocus); }
    static void RequestValidation(Page& page) { page.m_oPageBase->PageChanged(); }

    static void StoreUsersConfInt(Page& page, Locus& oLocus)
    {
        StoreUserSpecifiedConfInt(page, oLocus);
        if (oLocus.UserSpecifiedConfInt == 1)
            StoreConfInt(page, oLocus);
    }

    static void StoreNumericStartAtNumeric(Page& page, Locus& oLocus)
    {
        if (IsNumeric(page.txtStartAtNumeric.Text()))
            oLocus.StartAtNumeric = IntegerIn(page.txtStartAtNumeric);
    }

    static constexpr Step ActivateSteps[] = {
        HideGeneration,
        HideNaming,
        ShowDye,
        Show<&Page::txtFragStart, &Locus::FragStart, IntegerText>,
        Show<&Page::txtFragEnd, &Locus::FragEnd, IntegerText>,
        BoundShortestAlleleSize,
        Call<&Page::RaiseShortestAlleleSize>,
        Call<&Page::LowerShortestAlleleSize>,
        Show<&Page::txtRepeatUnitSequence, &Locus::RepeatUnitSequence, Trim>,
        Show<&Page::txtRepeat, &Locus::RepeatLength, IntegerText>,
        ShowNaming,
        CompleteStartAtAlphanumeric,
        Show<&Page::txtStartAtAlphanumeric, &Locus::StartAtAlphanumeric, AsIs>,
        ShowStartAtNumeric,
        ShowAlleles,
        RequestValidation,
    };

    static constexpr StoreStep DeactivateSteps[] = {
        StoreUsersConfInt,
        StoreDye,
        StoreInteger<&Locus::FragStart, &Page::txtFragStart>,
        StoreInteger<&Locus::FragEnd, &Page::txtFragEnd>,
        Store<&Locus::RepeatUnitSequence, &Page::txtRepeatUnitSequence, Trim>,
        StoreInteger<&Locus::RepeatLength, &Page::txtRepeat>,
        StoreNamingConvention,
        Store<&Locus::StartAtAlphanumeric, &Page::txtStartAtAlphanumeric, AsIs>,
        StoreNumericStartAtNumeric,
    };
};

std::shared_ptr<PageBase> LocusEditorPage::Page()
{
    return Propagating("IPageAccess_Page (Get)",
                       [&](Guard&) -> std::shared_ptr<PageBase> { return m_oPageBase; });
}

void LocusEditorPage::UserControl_Initialize()
{
    Terminal("UserControl_Initialize", [&](Guard& run) {
        run([&] { m_oPageBase = m_host.NewPageBase(); });
        run([&] { ConnectPageBase(); });
        m_bAlleleListValid = true;
        run([&] { ConnectPane(); });
    });
}

void LocusEditorPage::m_oPageBase_Initialize(const std::shared_ptr<PanePositions>&)
{
    Propagating("m_oPageBase_Initialize", [&](Guard& run) {
        if (!run([&] { return HasParameter(ParameterKey::Locus); }))
            return;
        TakeParameters(run);

        run([&] { ClearInformation(); });
        run([&] { LoadProjects(); });
        run([&] { LoadDefaults(); });

        m_bNewLocus = run([&] { return m_oLocus->LocusID() <= 0; });
        run([&] { ShowMode(); });
        if (m_bNewLocus)
            m_oLocus->SystemConfInt = 0;
        else
            run([&] { LoadLocusData(); });
        ChooseProject(run);

        run([&] { m_oCopyOfLocus = m_oLocus->Clone(); });
        run([&] { ctlPaneAlleleList->SetLocus(WorkingLocus()); });
    });
}

void LocusEditorPage::TakeParameters(Guard& run)
{
    m_bBinning = run([&] { return HasParameter(ParameterKey::Binning); });
    if (m_bBinning)
        run([&] {
            m_oBinning =
                ParameterItem<std::shared_ptr<BinningContext>>(Parameters(), ParameterKey::Binning);
        });
    run([&] { m_oCurrentLoci = CurrentLoci(Objects(), "Name"); });
    if (m_oBinning)
        run([&] { m_oBinning->SetInitialized(false); });
    run([&] {
        HoldLocus(ParameterItem<std::shared_ptr<Locus>>(Parameters(), ParameterKey::Locus));
    });
    run([&] { Parameters().Remove(ParameterKey::Locus); });
}

void LocusEditorPage::ChooseProject(Guard& run)
{
    run([&] { m_oLocus->ProjectName = cmbProjects.Text(); });
    for (std::int32_t lIndex = 0; lIndex < cmbProjects.ListCount(); ++lIndex)
    {
        if (cmbProjects.ItemData(lIndex) != m_oLocus->ProjectID)
            continue;
        run([&] { cmbProjects.SetListIndex(lIndex); });
        run([&] { lblProject.SetCaption(cmbProjects.Text()); });
    }
}

void LocusEditorPage::ShowMode()
{
    struct Mode
    {
        bool NamesLocus; ///< Tag and project can be edited.
        bool SavesAs;
        bool Generates;
    };
    static constexpr Mode New{true, false, true};
    static constexpr Mode Edit{false, true, true};
    static constexpr Mode BinningTagged{false, false, false};
    static constexpr Mode BinningUntagged{true, false, false};

    const Mode& mode = m_bNewLocus                    ? New
                       : !m_bBinning                  ? Edit
                       : m_oLocus->LocusTag().empty() ? BinningUntagged
                                                      : BinningTagged;
    txtLocusTag.SetVisible(mode.NamesLocus);
    cmbProjects.SetVisible(mode.NamesLocus);
    lblLocusTag.SetVisible(!mode.NamesLocus);
    lblProject.SetVisible(!mode.NamesLocus);
    cmdSaveAs.SetVisible(mode.SavesAs);
    if (mode.SavesAs)
        cmdSaveAs.SetEnabled(true);
    if (!mode.Generates)
        BinningSteps::HideGeneration(*this);
}

void LocusEditorPage::m_oPageBase_Activate()
{
    Propagating("m_oPageBase_Activate", [&](Guard& run) {
        m_bDeactivated = false;
        if (!m_bBinning)
            return;
        for (const auto step : BinningSteps::ActivateSteps)
            run([&] { step(*this); });
    });
}

void LocusEditorPage::m_oPageBase_Deactivate()
{
    m_bDeactivated = true;
    if (!m_bBinning)
        return;
    for (const auto step : BinningSteps::DeactivateSteps)
        step(*this, *m_oLocus);
}

void LocusEditorPage::m_oPageBase_Save()
{
    Propagating("m_oPageBase_Save", [&](Guard& run) {
        run([&] { UpdateLocus(m_oLocus); });
        if (!m_bBinning)
            TakeAllelesOfCopy(run);
        if (run([&] { return m_oLocus->LocusTagID() < 1; }))
        {
            run([&] { RemoveParameter(ParameterKey::NewLocus); });
            run([&] { Parameters().Add(m_oLocus, ParameterKey::NewLocus); });
        }
        run([&] { Objects().Save(*m_oLocus, true); });
        if (m_bSavedAs)
        {
            run([&] { RemoveParameter(ParameterKey::NewSaveAs); });
            if (!run([&] { return TagIsCurrent(m_oLocus->LocusTag()); }))
                run([&] { Parameters().Add(m_oLocus, ParameterKey::NewSaveAs); });
        }
    });
}

void LocusEditorPage::TakeAllelesOfCopy(Guard& run)
{
    ObjectList& oAlleles = run([&]() -> ObjectList& { return m_oLocus->Alleles(); });
    while (run([&] { return oAlleles.Count() > 0; }))
        run([&] { oAlleles.Remove(1); });
    for (const auto& oAllele : run([&] { return m_oCopyOfLocus->Alleles().Members(); }))
        run([&] { oAlleles.Add(oAllele); });
}

void LocusEditorPage::HoldLocus(const std::shared_ptr<Locus>& oLocus)
{
    m_oLocus = oLocus;
    m_locusConnection = m_oLocus->IsCurrentChanged.Connect(m_oLocus_IsCurrentChanged);
}

// The page has a handler for these two events, and nothing to do at them.
void LocusEditorPage::m_oLocus_IsCurrentChanged() {}
void LocusEditorPage::chkMakeCurrent_Click() {}

ParameterCollection& LocusEditorPage::Parameters() const
{
    return *Reference<ParameterCollection>(m_oPageBase->Parameters());
}

bool LocusEditorPage::HasParameter(const char* key) const
{
    return SharedUtility().KeyExists(Parameters(), key);
}

void LocusEditorPage::RemoveParameter(const char* key)
{
    if (HasParameter(key))
        Parameters().Remove(key);
}

bool LocusEditorPage::TagIsCurrent(const std::string& sTag) const
{
    return SharedUtility().KeyExists(*m_oCurrentLoci, TrimRight(sTag));
}

} // namespace Tamrivo
