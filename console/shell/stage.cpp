#include "console/shell/stage.h"

namespace Tamrivo
{

WizardSession* Stage::Wizard() const
{
    for (auto layer = m_layers.rbegin(); layer != m_layers.rend(); ++layer)
    {
        if (auto* const* wizard = std::get_if<WizardSession*>(&*layer))
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
