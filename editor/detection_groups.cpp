#include "editor/locus_editor_page.h"

namespace Tamrivo
{

void LocusEditorPage::EnableGroup(const char* sProcedure, bool bEnabled,
                                  std::initializer_list<Control*> controls)
{
    Propagating(sProcedure, [&](Guard& run) {
        for (Control* control : controls)
            run([&] { control->SetEnabled(bEnabled); });
    });
}

void LocusEditorPage::DisplaySearchForStutter(bool bEnabled)
{
    EnableGroup("DisplaySearchForStutter", bEnabled,
                {&lblStutterDetecWindow, &lblRepeats, &txtStutterWidth, &lblMaxRelativeStutter,
                 &txtRelStutter, &lblPercentage1, &UpDown1, &UpDown2, &chkDetShortStutter,
                 &chkDetLongStutter});
}

void LocusEditorPage::DisplayDetectSpuriousPeaks(bool bEnabled)
{
    EnableGroup("DisplayDetectSpuriousPeaks", bEnabled,
                {&lblMaxHeightSpurPeaks, &txtMaxSpurHeight, &UpDown3, &lblPercentage2});
}

void LocusEditorPage::DisplayUserSpecified(bool bEnabled)
{
    EnableGroup("DisplayUserSpecified", bEnabled, {&txtConfInt, &Label11});
}

void LocusEditorPage::ConnectGroup(CheckBox& box, const char* sProcedure, Display display)
{
    m_connections.On(box.Click, [this, &box, sProcedure, display] {
        Terminal(sProcedure, [&](Guard& run) { run([&] { (this->*display)(box.Value() != 0); }); });
    });
}

} // namespace Tamrivo
