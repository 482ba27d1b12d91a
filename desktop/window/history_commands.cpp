#include "desktop/window/history_commands.h"

#include "desktop/history/history_window.h"
#include "desktop/history/projects_dialog.h"
#include "desktop/history/store_keeping.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"
#include "host/loci/counts.h"

namespace Tamrivo
{

HistoryCommands::HistoryCommands(Workbench& workbench) : m_workbench(workbench) {}

HistoryCommands::~HistoryCommands() = default;

HistoryWindow& HistoryCommands::Window()
{
    if (!m_window)
        m_window = std::make_unique<HistoryWindow>(
            m_workbench.Host().Store(), m_workbench.UserActions(),
            [this](const std::vector<std::string>& tags) {
                m_workbench.Reload(
                    "Restored " + QString::fromStdString(CountOfLoci(tags.size())) + ".", tags);
            });
    return *m_window;
}

void HistoryCommands::ShowAll()
{
    Window().ShowAll();
}

void HistoryCommands::ShowLocus()
{
    Window().ShowLocus(m_workbench.ChosenLocus());
}

void HistoryCommands::ShowDeleted()
{
    Window().ShowDeleted();
}

void HistoryCommands::BackUp()
{
    m_workbench.Tell(BackUpToFile(m_workbench.Host().Store(), &m_workbench.Window()));
}

void HistoryCommands::Copy()
{
    m_workbench.Tell(CopyToStore(m_workbench.Host().Store(), &m_workbench.Window()));
}

void HistoryCommands::EditProjects()
{
    ProjectsDialog dialog(m_workbench.Host().Store(), m_workbench.UserActions(),
                          &m_workbench.Window());
    dialog.exec();
    if (dialog.HasChanged())
        m_workbench.Reload("The store has the projects that you said.");
}

void HistoryCommands::CloseWindow()
{
    m_window.reset();
}

} // namespace Tamrivo
