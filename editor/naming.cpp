#include "editor/steps.h"

namespace Tamrivo
{

void LocusEditorPage::optAlleleNaming_Click(int Index)
{
    Terminal("optAlleleNaming_Click", [&](Guard& run) {
        const Steps::NamingOption& option = Steps::NamingOptions[Index];
        run([&] { StartAtAlphanumeric(option.StartsAtAlphanumeric); });
        run([&] { StartAtNumeric(option.StartsAtNumeric); });
    });
}

void LocusEditorPage::StartAtAlphanumeric(bool bEnabled)
{
    EnableGroup("StartAtAlphanumeric (Let)", bEnabled,
                {&txtStartAtAlphanumeric, &udStartAtAlphanumeric, &lblStartAtAlphanumeric});
}

void LocusEditorPage::StartAtNumeric(bool bEnabled)
{
    EnableGroup("StartAtNumeric (Let)", bEnabled,
                {&txtStartAtNumeric, &udStartAtNumeric, &lblStartAtNumeric});
}

void LocusEditorPage::udStartAtAlphanumeric_UpClick()
{
    StepStartAtAlphanumeric("udStartAtAlphanumeric_UpClick", &Locus::NextStartAt);
}

void LocusEditorPage::udStartAtAlphanumeric_DownClick()
{
    StepStartAtAlphanumeric("udStartAtAlphanumeric_DownClick", &Locus::PreviousStartAt);
}

void LocusEditorPage::StepStartAtAlphanumeric(const char* sProcedure, StartAtStep step)
{
    Terminal(sProcedure, [&](Guard& run) {
        TextField& field = txtStartAtAlphanumeric;
        if (field.Text().empty())
            run([&] { field.SetText("A"); });
        run([&] { field.SetText(((*m_oLocus).*step)(field.Text())); });
    });
}

void LocusEditorPage::txtLocusTag_Change()
{
    Terminal("txtLocusTag_Change", [&](Guard& run) {
        run([&] { m_oPageBase->PageChanged(); });
        if (Trim(txtLocusTag.Text()).empty())
            run([&] { m_oLocus->SetIsCurrent(false); });
    });
}

} // namespace Tamrivo
