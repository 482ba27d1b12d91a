#include "editor/steps.h"

namespace Tamrivo
{

/// The groups of controls that a check box switches on and off. Switching leaves texts and ticks as
/// they are.
struct LocusEditorPage::Groups : Steps
{
    using Dependent = Control& (*)(Page&);

    template <auto Member>
    static Control& The(Page& page)
    {
        return page.*Member;
    }

    static constexpr Dependent SearchForStutter[] = {
        The<&Page::lblStutterDetecWindow>,
        The<&Page::lblRepeats>,
        The<&Page::txtStutterWidth>,
        The<&Page::lblMaxRelativeStutter>,
        The<&Page::txtRelStutter>,
        The<&Page::lblPercentage1>,
        The<&Page::UpDown1>,
        The<&Page::UpDown2>,
        The<&Page::chkDetShortStutter>,
        The<&Page::chkDetLongStutter>,
    };

    static constexpr Dependent DetectSpuriousPeaks[] = {
        The<&Page::lblMaxHeightSpurPeaks>,
        The<&Page::txtMaxSpurHeight>,
        The<&Page::UpDown3>,
        The<&Page::lblPercentage2>,
    };

    static constexpr Dependent UserSpecified[] = {
        The<&Page::txtConfInt>,
        The<&Page::Label11>,
    };

    template <std::size_t Count>
    static void SetEnabled(Guard& run, Page& page, const Dependent (&group)[Count], bool bEnabled)
    {
        for (const auto dependent : group)
            run([&] { dependent(page).SetEnabled(bEnabled); });
    }
};

void LocusEditorPage::DisplaySearchForStutter(bool bEnabled)
{
    Propagating("DisplaySearchForStutter", [&](Guard& run) {
        Groups::SetEnabled(run, *this, Groups::SearchForStutter, bEnabled);
    });
}

void LocusEditorPage::DisplayDetectSpuriousPeaks(bool bEnabled)
{
    Propagating("DisplayDetectSpuriousPeaks", [&](Guard& run) {
        Groups::SetEnabled(run, *this, Groups::DetectSpuriousPeaks, bEnabled);
    });
}

void LocusEditorPage::DisplayUserSpecified(bool bEnabled)
{
    Propagating("DisplayUserSpecified", [&](Guard& run) {
        Groups::SetEnabled(run, *this, Groups::UserSpecified, bEnabled);
    });
}

void LocusEditorPage::chkSearchForStutter_Click()
{
    Terminal("chkSearchForStutter_Click", [&](Guard& run) {
        run([&] { DisplaySearchForStutter(chkSearchForStutter.Value() != 0); });
    });
}

void LocusEditorPage::chkDetectSpuriousPeaks_Click()
{
    Terminal("chkDetectSpuriousPeaks_Click", [&](Guard& run) {
        run([&] { DisplayDetectSpuriousPeaks(chkDetectSpuriousPeaks.Value() != 0); });
    });
}

void LocusEditorPage::chkUserSpecified_Click()
{
    Terminal("chkUserSpecified_Click", [&](Guard& run) {
        run([&] { DisplayUserSpecified(chkUserSpecified.Value() != 0); });
    });
}

} // namespace Tamrivo
