#pragma once

#include <string>
#include <string_view>

namespace Tamrivo
{

/// What a person is told of a wizard.
struct WizardText
{
    std::string_view Wizard;
    const char* Title;         ///< What the page is about.
    const char* Invalid;       ///< When the page marks no field.
    bool AsksToCancel = false; ///< When something was changed, which the title marks.
};

/// That of the wizard of this name; one that is not known is called by it.
WizardText TextOf(const std::string& wizard);

} // namespace Tamrivo
