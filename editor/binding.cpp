#include "editor/steps.h"

namespace Tamrivo
{

struct LocusEditorPage::FieldSteps : Steps
{
    /// What `optPrimerLabel` stands for, by index.
    static constexpr std::int32_t PrimerLabels[] = {PrimerLabel::Forward, PrimerLabel::Reverse,
                                                    PrimerLabel::None};

    static void KeepLoadedLocusTag(Page& page)
    {
        page.m_sLoadedLocusTag = page.m_oLocus->LocusTag();
    }

    static void ShowPrimerLabel(Page& page)
    {
        for (OptionButton& option : page.optPrimerLabel)
        {
            if (PrimerLabels[*option.Index()] == page.m_oLocus->PrimerLabelTypeID)
                option.SetValue(true);
        }
    }

    static void StorePrimerLabel(Page& page, Locus& oLocus)
    {
        for (const OptionButton& option : page.optPrimerLabel)
        {
            if (option.Value())
                oLocus.PrimerLabelTypeID = PrimerLabels[*option.Index()];
        }
    }

    /// Ticks the box; its `Click` shows the group. A box that was off already raises none, so the
    /// group is switched off here.
    template <auto Box, auto Property, auto Display>
    static void TickGroup(Page& page)
    {
        Tick<Box, Property>(page);
        if (!((*page.m_oLocus).*Property))
            (page.*Display)(false);
    }

    static void StoreProjectID(Page& page, Locus& oLocus)
    {
        oLocus.ProjectID = page.cmbProjects.ItemData(page.cmbProjects.ListIndex());
    }

    static void StoreSystemConfInt(Page& page, Locus& oLocus)
    {
        oLocus.SystemConfInt = page.m_sngSystemConfInt;
    }

    static void MakeCurrent(Page&, Locus& oLocus) { oLocus.SetIsCurrent(true); }

    static constexpr Step LoadSteps[] = {
        KeepLoadedLocusTag,
        Show<&Page::txtLocusTag, &Locus::LocusTag, TrimRight>,
        Copy<&Page::lblLocusTag, &Page::txtLocusTag>,
        Show<&Page::txtLocusName, &Locus::LocusName, TrimRight>,
        Show<&Page::lblDateLastModified, &Locus::DateLastModified, DateText>,
        ShowDye,
        Show<&Page::lblConfInt, &Locus::SystemConfInt, TwoDecimals>,
        Show<&Page::txtConfInt, &Locus::ConfInt, DoubleText>,
        Show<&Page::txtFragStart, &Locus::FragStart, IntegerText>,
        Show<&Page::txtFragEnd, &Locus::FragEnd, IntegerText>,
        Show<&Page::txtRepeatUnitSequence, &Locus::RepeatUnitSequence, Trim>,
        Show<&Page::txtRepeat, &Locus::RepeatLength, IntegerText>,
        Show<&Page::txtRepeatsInShortestAllele, &Locus::RepeatsInShortestAllele, Trim>,
        ShowNaming,
        CompleteStartAtAlphanumeric,
        Show<&Page::txtStartAtAlphanumeric, &Locus::StartAtAlphanumeric, AsIs>,
        ShowStartAtNumeric,
        Show<&Page::txtPrimerSet, &Locus::PrimerSet, Trim>,
        Show<&Page::txtGenBank, &Locus::GenBank, Trim>,
        ShowPrimerLabel,
        Show<&Page::txtFwd, &Locus::FwdPrimer, Trim>,
        Show<&Page::txtRev, &Locus::RevPrimer, Trim>,
        TickGroup<&Page::chkSearchForStutter, &Locus::SearchForStutter,
                  &Page::DisplaySearchForStutter>,
        Show<&Page::txtStutterWidth, &Locus::StutterWidth, IntegerText>,
        Show<&Page::txtRelStutter, &Locus::RelStutter, IntegerText>,
        Tick<&Page::chkDetShortStutter, &Locus::DetShortStutter>,
        Tick<&Page::chkDetLongStutter, &Locus::DetLongStutter>,
        Tick<&Page::chkApparentSizeIncludesA, &Locus::ApparentSizeIncludesA>,
        Tick<&Page::chkDetectA, &Locus::DetectA>,
        Tick<&Page::chkUseA, &Locus::UseA>,
        TickGroup<&Page::chkDetectSpuriousPeaks, &Locus::DetectSpuriousPeaks,
                  &Page::DisplayDetectSpuriousPeaks>,
        Show<&Page::txtMaxSpurHeight, &Locus::MaxSpurHeight, IntegerText>,
        Show<&Page::txtPloidy, &Locus::Ploidy, IntegerText>,
    };

    static constexpr StoreStep UpdateSteps[] = {
        Store<&Locus::SetLocusTag, &Page::txtLocusTag, AsIs>,
        Store<&Locus::LocusName, &Page::txtLocusName, AsIs>,
        StoreProjectID,
        Store<&Locus::ProjectName, &Page::cmbProjects, AsIs>,
        StoreDye,
        StoreConfInt,
        StoreSystemConfInt,
        StoreUserSpecifiedConfInt,
        StoreInteger<&Locus::FragStart, &Page::txtFragStart>,
        StoreInteger<&Locus::FragEnd, &Page::txtFragEnd>,
        StoreInteger<&Locus::RepeatLength, &Page::txtRepeat>,
        StoreInteger<&Locus::ShortestAlleleSize, &Page::txtShortestAlleleSize>,
        Store<&Locus::RepeatsInShortestAllele, &Page::txtRepeatsInShortestAllele, AsIs>,
        StoreNaming,
        Store<&Locus::PrimerSet, &Page::txtPrimerSet, AsIs>,
        Store<&Locus::GenBank, &Page::txtGenBank, AsIs>,
        Store<&Locus::RepeatUnitSequence, &Page::txtRepeatUnitSequence, AsIs>,
        StoreInteger<&Locus::Ploidy, &Page::txtPloidy>,
        StorePrimerLabel,
        Store<&Locus::FwdPrimer, &Page::txtFwd, AsIs>,
        Store<&Locus::RevPrimer, &Page::txtRev, AsIs>,
        StoreTick<&Locus::SearchForStutter, &Page::chkSearchForStutter>,
        StoreInteger<&Locus::StutterWidth, &Page::txtStutterWidth>,
        StoreInteger<&Locus::RelStutter, &Page::txtRelStutter>,
        StoreTick<&Locus::DetShortStutter, &Page::chkDetShortStutter>,
        StoreTick<&Locus::DetLongStutter, &Page::chkDetLongStutter>,
        StoreTick<&Locus::ApparentSizeIncludesA, &Page::chkApparentSizeIncludesA>,
        StoreTick<&Locus::DetectA, &Page::chkDetectA>,
        StoreTick<&Locus::UseA, &Page::chkUseA>,
        StoreTick<&Locus::DetectSpuriousPeaks, &Page::chkDetectSpuriousPeaks>,
        StoreInteger<&Locus::MaxSpurHeight, &Page::txtMaxSpurHeight>,
        MakeCurrent,
    };
};

void LocusEditorPage::LoadLocusData()
{
    Propagating("LoadLocusData", [&](Guard& run) {
        for (const auto step : FieldSteps::LoadSteps)
            run([&] { step(*this); });
    });
}

void LocusEditorPage::UpdateLocus(const Reference<Locus>& oLocus)
{
    Propagating("UpdateLocus", [&](Guard& run) {
        for (const auto step : FieldSteps::UpdateSteps)
            run([&] { step(*this, *oLocus); });
    });
}

} // namespace Tamrivo
