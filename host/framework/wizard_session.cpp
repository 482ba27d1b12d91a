#include "host/framework/wizard_session.h"

#include <utility>

namespace Tamrivo
{

WizardSession::WizardSession(std::string name, std::shared_ptr<UserControl> page,
                             std::shared_ptr<HostPageBase> pageBase)
    : m_name(std::move(name)), m_page(std::move(page)), m_pageBase(std::move(pageBase))
{
    m_changes = m_pageBase->Changed.Connect([this] { ValidateOnChange(); });
}

void WizardSession::Initialize()
{
    m_pageBase->Initialize(nullptr);
    m_isInitialized = true;
    if (m_hasPendingChange)
        ValidateOnChange();
}

void WizardSession::Activate()
{
    m_pageBase->Activate();
}

void WizardSession::Deactivate()
{
    m_pageBase->Deactivate();
}

bool WizardSession::Validate()
{
    bool isValid = true;
    m_pageBase->Validate(isValid);
    m_isValid = isValid;
    Validated();
    return isValid;
}

bool WizardSession::Finish()
{
    if (!Validate())
        return false;
    m_pageBase->Save();
    m_hasEnded = true;
    m_isCancelled = false;
    return true;
}

void WizardSession::Cancel()
{
    m_hasEnded = true;
}

void WizardSession::ValidateOnChange()
{
    // A page that is still being filled can't answer; it is asked as soon as it stands.
    if (!m_isInitialized)
    {
        m_hasPendingChange = true;
        return;
    }
    try
    {
        Validate();
    }
    catch (const std::exception&)
    {
        ValidateFailed(CurrentError());
    }
}

} // namespace Tamrivo
