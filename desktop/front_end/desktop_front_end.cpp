#include "desktop/front_end/desktop_front_end.h"

#include "desktop/front_end/message_boxes.h"
#include "desktop/front_end/popup_menu.h"
#include "desktop/front_end/wizard_dialog.h"
#include "desktop/text.h"
#include "platform/framework/host_application.h"
#include "platform/framework/wizard_session.h"

#include <QApplication>

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
{}

void DesktopFrontEnd::SetHost(HostApplication* host)
{
    m_host = host;
    if (host != nullptr)
    {
        Screen& screen = host->SharedScreen();
        screen.MousePointerChanged = [this, &screen] { ShowPointer(screen); };
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

void DesktopFrontEnd::RunWizard(WizardSession& wizard)
{
    WizardDialog dialog(wizard, m_actions, WindowOnTop());
    dialog.exec();
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
        ShowFailureBox(WindowOnTop(), report.Error,
                       ToQString(report.ClassName + "." + report.ProcedureName));
}

void DesktopFrontEnd::ShowFailure(const ErrorRecord& error)
{
    ShowFailureBox(WindowOnTop(), error, {});
}

} // namespace Tamrivo
