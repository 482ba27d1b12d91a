#include "console/shell/stage.h"

#include <ranges>

namespace Tamrivo
{

WizardSession* Stage::Wizard() const
{
    for (const Layer& layer : m_layers | std::views::reverse)
    {
        if (auto* const* wizard = std::get_if<WizardSession*>(&layer))
            return *wizard;
    }
    return nullptr;
}

UserControl* Stage::Page() const
{
    if (WizardSession* wizard = Wizard())
        return &wizard->Page();
    return Parameter ? &Parameter->Selector() : nullptr;
}

} // namespace Tamrivo
