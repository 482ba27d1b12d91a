#pragma once

#include "controls/user_control.h"
#include "core/error.h"
#include "host/framework/host_page_base.h"

#include <memory>
#include <string>

namespace Tamrivo
{

/// One run of a wizard with its one page. The front end drives it. A failure that leaves an event
/// of the page goes to the caller of the operation that raised it, and the wizard stays open. So
/// does `Cancelled`, which is no failure and is told to nobody.
class WizardSession
{
public:
    /// @param page a new page, which gives `pageBase` as its own
    WizardSession(std::string name, std::shared_ptr<UserControl> page,
                  std::shared_ptr<HostPageBase> pageBase);
    WizardSession(const WizardSession&) = delete;
    WizardSession& operator=(const WizardSession&) = delete;

    /// Raises Initialize on the page. The host calls it once, before the front end sees the
    /// session. A page that failed to initialize must not be shown.
    void Initialize();

    const std::string& Name() const { return m_name; }
    UserControl& Page() { return *m_page; }
    PageBase& Base() { return *m_pageBase; }

    /// What a person should know of the page before they enter anything; mostly nothing.
    std::string Notice;

    void Activate();
    void Deactivate();

    /// Raises Validate on the page and gives its answer.
    bool Validate();
    /// The page's last answer; true before the first.
    bool IsValid() const { return m_isValid; }
    /// For the front end: the page has answered a Validate, also one that it asked for itself.
    Event<> Validated;
    /// For the host: a Validate that the page asked for has failed. No caller will see that
    /// failure, since the page was in the middle of something else.
    Event<const ErrorRecord&> ValidateFailed;

    /// Validates and, if the page is valid, raises Save and ends the wizard as completed. Gives
    /// whether it has ended. A failing Save leaves the wizard open.
    bool Finish();
    /// Ends the wizard as cancelled.
    void Cancel();

    bool HasEnded() const { return m_hasEnded; }
    /// Whether the wizard wasn't completed; true as long as it is open.
    bool IsCancelled() const { return m_isCancelled; }

private:
    void ValidateOnChange();

    std::string m_name;
    std::shared_ptr<UserControl> m_page;
    std::shared_ptr<HostPageBase> m_pageBase;
    bool m_isInitialized = false;
    bool m_hasPendingChange = false; ///< The page has changed while it was initialized.
    bool m_isValid = true;
    bool m_hasEnded = false;
    bool m_isCancelled = true;
    Connection m_changes;
};

} // namespace Tamrivo
