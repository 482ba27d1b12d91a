#pragma once

#include "contracts/page.h"
#include "controls/user_control.h"
#include "core/event.h"

#include <memory>
#include <string>

namespace Tamrivo
{

/// One run of a wizard with its one page. The front end drives it; events of the page whose
/// failures leave it pass them on to the caller of the operation, and the wizard stays open.
class WizardSession
{
public:
    /// @param page the wizard's page, created and initialized already
    WizardSession(std::string name, std::shared_ptr<UserControl> page,
                  std::shared_ptr<PageBase> pageBase);

    const std::string& Name() const { return m_name; }
    UserControl& Page() { return *m_page; }
    PageBase& Base() { return *m_pageBase; }

    void Activate();
    void Deactivate();

    /// Raises Validate on the page and gives its answer.
    bool Validate();
    /// The page's last answer; true before the first. The front end hears of each Validate through
    /// `Validated`, also of those that the page itself asked for.
    bool IsValid() const { return m_isValid; }
    Event<> Validated;

    /// Validates and, if the page is valid, raises Save and ends the wizard as completed. Gives
    /// whether it has ended. A failing Save leaves the wizard open.
    bool Finish();
    /// Ends the wizard as cancelled.
    void Cancel();

    bool HasEnded() const { return m_hasEnded; }
    bool IsCancelled() const { return m_isCancelled; }

private:
    std::string m_name;
    std::shared_ptr<UserControl> m_page;
    std::shared_ptr<PageBase> m_pageBase;
    bool m_isValid = true;
    bool m_hasEnded = false;
    bool m_isCancelled = true;
};

} // namespace Tamrivo
