#pragma once

#include "contracts/parameters.h"
#include "core/event.h"
#include "host/framework/wizard_session.h"

#include <memory>

namespace Tamrivo
{

/// A wizard whose page stands open. Whoever holds it drives the session until that has ended.
struct OpenWizard
{
    std::unique_ptr<WizardSession> Session;
    std::shared_ptr<ParameterCollection> Parameters; ///< Pages leave in them what they have stored.
    Connection Failures;                             ///< Tell of those that no caller sees.
    Connection Menus;                                ///< Show the page's popup menus.
};

} // namespace Tamrivo
