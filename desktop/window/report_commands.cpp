#include "desktop/window/report_commands.h"

#include "desktop/reports/reports_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"

namespace Tamrivo
{

ReportCommands::ReportCommands(Workbench& workbench) : m_workbench(workbench) {}

ReportCommands::~ReportCommands() = default;

ReportsWindow& ReportCommands::Window()
{
    if (!m_window)
        m_window = std::make_unique<ReportsWindow>(m_workbench.Host(), m_workbench.UserActions());
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    return *m_window;
}

void ReportCommands::ShowAll()
{
    Window().ShowAll();
}

void ReportCommands::ShowParameter()
{
    const ParameterView& parameter = *m_workbench.Parameter().View();
    Window().ShowParameter(parameter.Name(), parameter.SelectedTags());
}

void ReportCommands::CloseWindow()
{
    m_window.reset();
}

} // namespace Tamrivo
