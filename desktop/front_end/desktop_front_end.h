#pragma once

#include "core/event.h"
#include "desktop/common/actions.h"
#include "host/framework/front_end.h"

#include <QTimer>

class QString;

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

    /// Raised when the person has had a store opened again that had gone away: what was read of it
    /// may be other by now.
    Event<> OpenedAgain;

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
    void ShowFailureAt(const ErrorRecord& error, const QString& place);
    void OpenAgain();

    Actions m_actions;
    HostApplication* m_host = nullptr;
    bool m_isHourglass = false;
    Connection m_pointer;
    QTimer m_openingAgain;
};

} // namespace Tamrivo
