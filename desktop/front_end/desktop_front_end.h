#pragma once

#include "core/event.h"
#include "desktop/common/actions.h"
#include "host/framework/front_end.h"

class QWidget;

namespace Tamrivo
{

class HostApplication;
class Screen;

/// Shows in windows what the host asks for. Each call that waits for the person runs an event loop
/// of its own.
class DesktopFrontEnd : public FrontEnd
{
public:
    DesktopFrontEnd();

    /// From now on failures of a person's actions go to this host, and its hourglass is shown. The
    /// host may be null, before it is destroyed.
    void SetHost(HostApplication* host);

    /// What runs the person's actions, for as long as the front end lives.
    const Actions& UserActions() const { return m_actions; }

    void RunOpening(const std::function<void()>& open) override;
    void RunWizard(WizardSession& wizard) override;
    void ShowMenu(UserControl& form, Menu& menu) override;
    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string& title) override;
    void ShowReport(const FailureReport& report) override;
    void ShowFailure(const ErrorRecord& error) override;

private:
    void ShowPointer(const Screen& screen);

    Actions m_actions;
    HostApplication* m_host = nullptr;
    bool m_isHourglass = false;
    Connection m_pointer;
};

} // namespace Tamrivo
