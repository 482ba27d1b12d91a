#include "desktop/front_end/wizard_text.h"

#include "contracts/launcher.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr WizardText wizardTexts[] = {
    {LocusEditorWizard.Name, "Locus", "The locus can't be stored as it is.", true},
    {SaveAsWizard.Name, "Save Locus Tag As", "Enter a tag that no other locus has."},
};

} // namespace

WizardText TextOf(const std::string& wizard)
{
    const auto* found = std::ranges::find(wizardTexts, wizard, &WizardText::Wizard);
    return found != std::end(wizardTexts)
               ? *found
               : WizardText{wizard, wizard.c_str(), "The page is not valid yet."};
}

} // namespace Tamrivo
