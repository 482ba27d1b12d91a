#include "contracts/project.h"
#include "core/narrowing.h"
#include "editor/steps.h"

namespace Tamrivo
{

namespace
{

/// The project that a new locus belongs to, if there is one of this name.
constexpr std::string_view DefaultProject = "Default";

} // namespace

struct LocusEditorPage::DefaultSteps : Steps
{
    static void ChooseFirstDye(Page& page) { page.cmbDye.SetText(page.cmbDye.List(0)); }
    static void HoldPlaceOfConfInt(Page& page) { page.lblConfInt.SetCaption("0.50"); }
    static void ChooseNominalSize(Page& page) { page.optAlleleNaming.Item(0).SetValue(true); }
    static void ChooseNoPrimerLabel(Page& page) { page.optPrimerLabel.Item(2).SetValue(true); }

    template <auto Display>
    static void DisableGroup(Page& page)
    {
        (page.*Display)(false);
    }

    static void KeepSystemConfInt(Page& page)
    {
        page.m_sngSystemConfInt = ToSingle(page.m_oLocus->SystemConfInt);
    }

    static void ShowSystemConfInt(Page& page)
    {
        page.lblConfInt.SetCaption(TwoDecimals(page.m_sngSystemConfInt));
    }

    static void DisableConfInt(Page& page) { page.txtConfInt.SetEnabled(false); }

    /// Leaves `Label11` greyed beside the enabled field, until the person's first click on the box.
    static void ShowUserSpecified(Page& page)
    {
        if (page.m_oLocus->UserSpecifiedConfInt != 1)
            return;
        page.chkUserSpecified.SetValue(1);
        page.txtConfInt.SetEnabled(true);
        page.Label11.SetEnabled(false);
    }

    static constexpr Step ClearSteps[] = {
        Blank<&Page::txtLocusTag>,
        Blank<&Page::lblLocusTag>,
        Blank<&Page::txtLocusName>,
        Blank<&Page::lblDateLastModified>,
        ChooseFirstDye,
        HoldPlaceOfConfInt,
        Blank<&Page::txtConfInt>,
        Blank<&Page::txtFragStart>,
        Blank<&Page::txtFragEnd>,
        Blank<&Page::txtRepeatUnitSequence>,
        Blank<&Page::txtRepeat>,
        Blank<&Page::txtRepeatsInShortestAllele>,
        ChooseNominalSize,
        Blank<&Page::txtPrimerSet>,
        Blank<&Page::txtGenBank>,
        ChooseNoPrimerLabel,
        Blank<&Page::txtFwd>,
        Blank<&Page::txtRev>,
        Blank<&Page::chkSearchForStutter>,
        DisableGroup<&Page::DisplaySearchForStutter>,
        Blank<&Page::txtStutterWidth>,
        Blank<&Page::txtRelStutter>,
        Blank<&Page::chkDetShortStutter>,
        Blank<&Page::chkDetLongStutter>,
        Blank<&Page::chkApparentSizeIncludesA>,
        Blank<&Page::chkDetectA>,
        Blank<&Page::chkUseA>,
        Blank<&Page::chkDetectSpuriousPeaks>,
        DisableGroup<&Page::DisplayDetectSpuriousPeaks>,
        Blank<&Page::txtMaxSpurHeight>,
    };

    static constexpr Step LoadSteps[] = {
        Show<&Page::txtLocusTag, &Locus::LocusTag, AsIs>,
        Copy<&Page::lblLocusTag, &Page::txtLocusTag>,
        Show<&Page::txtLocusName, &Locus::LocusName, AsIs>,
        ShowDye,
        KeepSystemConfInt,
        ShowSystemConfInt,
        Show<&Page::txtConfInt, &Locus::ConfInt, DoubleText>,
        Show<&Page::txtFragStart, &Locus::FragStart, IntegerText>,
        Show<&Page::txtFragEnd, &Locus::FragEnd, IntegerText>,
        BoundShortestAlleleSize,
        Show<&Page::txtShortestAlleleSize, &Locus::ShortestAlleleSize, IntegerText>,
        Show<&Page::txtRepeatUnitSequence, &Locus::RepeatUnitSequence, AsIs>,
        Show<&Page::txtRepeat, &Locus::RepeatLength, IntegerText>,
        Show<&Page::txtRepeatsInShortestAllele, &Locus::RepeatsInShortestAllele, AsIs>,
        Show<&Page::txtPrimerSet, &Locus::PrimerSet, AsIs>,
        Show<&Page::txtGenBank, &Locus::GenBank, AsIs>,
        Show<&Page::txtFwd, &Locus::FwdPrimer, AsIs>,
        Show<&Page::txtRev, &Locus::RevPrimer, AsIs>,
        Tick<&Page::chkSearchForStutter, &Locus::SearchForStutter>,
        Show<&Page::txtStutterWidth, &Locus::StutterWidth, IntegerText>,
        Show<&Page::txtRelStutter, &Locus::RelStutter, IntegerText>,
        Tick<&Page::chkDetShortStutter, &Locus::DetShortStutter>,
        Tick<&Page::chkDetLongStutter, &Locus::DetLongStutter>,
        Tick<&Page::chkApparentSizeIncludesA, &Locus::ApparentSizeIncludesA>,
        Tick<&Page::chkDetectA, &Locus::DetectA>,
        Tick<&Page::chkUseA, &Locus::UseA>,
        Tick<&Page::chkDetectSpuriousPeaks, &Locus::DetectSpuriousPeaks>,
        Show<&Page::txtMaxSpurHeight, &Locus::MaxSpurHeight, IntegerText>,
        Show<&Page::txtPloidy, &Locus::Ploidy, IntegerText>,
        DisableConfInt,
        ShowUserSpecified,
    };
};

void LocusEditorPage::ClearInformation()
{
    Propagating("ClearInformation", [&](Guard& run) {
        for (const auto step : DefaultSteps::ClearSteps)
            run([&] { step(*this); });
    });
}

void LocusEditorPage::LoadDefaults()
{
    Propagating("LoadDefaults", [&](Guard& run) {
        for (const auto step : DefaultSteps::LoadSteps)
            run([&] { step(*this); });
    });
}

void LocusEditorPage::LoadProjects()
{
    Propagating("LoadProjects", [&](Guard& run) {
        const Reference<ObjectList> oProjects = run([&] { return Projects(Objects()); });
        run([&] { cmbProjects.Clear(); });
        std::int32_t lDefault = 0;
        const std::int32_t lCount = run([&] { return oProjects->Count(); });
        if (lCount <= 0)
            return;
        for (std::int32_t lIndex = 1; lIndex <= lCount; ++lIndex)
        {
            const auto oProject = run([&] { return As<Project>(oProjects->Item(lIndex)); });
            const std::string sName = run([&] { return TrimRight(oProject->Name()); });
            run([&] { cmbProjects.AddItem(sName); });
            run([&] { cmbProjects.SetItemData(cmbProjects.NewIndex(), oProject->ProjectID()); });
            if (EqualNoCase(sName, DefaultProject))
                lDefault = lIndex - 1;
        }
        run([&] { cmbProjects.SetListIndex(lDefault); });
        run([&] { lblProject.SetCaption(cmbProjects.Text()); });
    });
}

} // namespace Tamrivo
