#include "desktop/window/help_commands.h"

#include "desktop/front_end/message_boxes.h"
#include "desktop/help/help_key.h"
#include "desktop/window/workbench.h"

#include <QMessageBox>

namespace Tamrivo
{

void HelpCommands::ShowGuide()
{
    ShowHelp();
}

void HelpCommands::OpenLog()
{
    Tamrivo::OpenLog(&m_workbench.Window());
}

void HelpCommands::ShowAbout()
{
    QMessageBox::about(&m_workbench.Window(), "About Tamrivo",
                       "<h3>Tamrivo " TAMRIVO_VERSION "</h3>"
                       "<p>Defines STR loci and chooses those that an analysis uses.</p>");
}

} // namespace Tamrivo
