#include "desktop/front_end/desktop_front_end.h"

#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "desktop/front_end/message_boxes.h"
#include "desktop/front_end/popup_menu.h"
#include "desktop/front_end/wizard_dialog.h"
#include "host/framework/host_application.h"
#include "host/framework/wizard_session.h"

#include <QApplication>

#include <optional>

namespace Tamrivo
{

namespace
{

QWidget* WindowOnTop()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

} // namespace

DesktopFrontEnd::DesktopFrontEnd()
    : m_actions([this](const ErrorRecord& error) {
          if (m_host != nullptr)
              m_host->ShowFailure(error);
          else
              ShowFailure(error);
      })
{
    m_openingAgain.setSingleShot(true);
    m_openingAgain.setInterval(0);
    QObject::connect(&m_openingAgain, &QTimer::timeout,
                     [this] { m_actions.Run([this] { OpenAgain(); }); });
}

void DesktopFrontEnd::SetHost(HostApplication* host)
{
    m_host = host;
    m_pointer.reset();
    if (host != nullptr)
    {
        Screen& screen = host->SharedScreen();
        m_pointer = screen.MousePointerChanged.Connect([this, &screen] { ShowPointer(screen); });
    }
}

void DesktopFrontEnd::ShowPointer(const Screen& screen)
{
    const bool isWaiting = screen.MousePointer() == Pointer::Hourglass;
    if (isWaiting == m_isHourglass)
        return;
    m_isHourglass = isWaiting;
    if (isWaiting)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void DesktopFrontEnd::RunOpening(const std::function<void()>& open)
{
    std::optional<LongWork> work;
    if (m_host != nullptr)
        work.emplace(m_host->Store(), "Opening the locus...", WindowOnTop());
    open();
}

void DesktopFrontEnd::RunWizard(WizardSession& wizard)
{
    QWidget* below = WindowOnTop();
    WizardDialog dialog(*m_host, wizard, m_actions, below);
    dialog.exec();
    if (auto* opener = dynamic_cast<WizardDialog*>(below))
        opener->NoteSavedAs();
    // However the dialog was closed: who waits for the wizard must find it ended.
    if (!wizard.HasEnded())
        wizard.Cancel();
}

void DesktopFrontEnd::ShowMenu(UserControl& /*form*/, Menu& menu)
{
    ShowPopupMenu(menu);
}

MessageAnswer DesktopFrontEnd::ShowMessage(const std::string& text, std::int32_t kind,
                                           const std::string& title)
{
    return ShowMessageBox(WindowOnTop(), text, kind, title);
}

void DesktopFrontEnd::ShowReport(const FailureReport& report)
{
    // What isn't final goes on up the calls and is shown where it ends.
    if (report.Final)
        ShowFailureAt(report.Error, ToQString(report.ClassName + "." + report.ProcedureName));
}

void DesktopFrontEnd::ShowFailure(const ErrorRecord& error)
{
    ShowFailureAt(error, {});
}

void DesktopFrontEnd::ShowFailureAt(const ErrorRecord& error, const QString& place)
{
    const bool isStoreLost = m_host != nullptr && m_host->Store().IsLost();
    // What has failed is to come to its end first.
    if (ShowFailureBox(WindowOnTop(), error, place, isStoreLost) == FailureAnswer::OpenAgain)
        m_openingAgain.start();
}

void DesktopFrontEnd::OpenAgain()
{
    if (m_host == nullptr)
        return;
    m_host->Store().OpenAgain();
    OpenedAgain();
}

} // namespace Tamrivo
