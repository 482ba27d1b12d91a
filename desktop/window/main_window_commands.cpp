#include "desktop/front_end/message_boxes.h"
#include "desktop/icons.h"
#include "desktop/settings.h"
#include "desktop/window/main_window.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

namespace Tamrivo
{

/// A command of the menus.
struct MainWindow::Command
{
    const char* Menu;
    const char* Name; ///< Empty: a separator.
    const char* Text;
    const char* Icon;
    const char* Shortcut;
    const char* Tip;
    const char* Needs; ///< What must be there: store, writing, parameter, changes.
    void (MainWindow::*Do)();
};

void MainWindow::MakeMenus()
{
    using W = MainWindow;
    static constexpr Command commands[] = {
        {"&File", "open", "&Open Store...", "document-open", "Ctrl+O",
         "Open a store file that exists", "", &W::ChooseStore},
        {"&File", "create", "&Create Store...", "document-new", "Ctrl+Shift+O",
         "Make a new, empty store file and open it", "", &W::CreateStore},
        {"&File", "server", "Open &Database Server...", "network-server", "Ctrl+Alt+O",
         "Open a store in a PostgreSQL database", "", &W::ChooseServer},
        {"&File", "recent", "Open &Recent", "", "", "Open a store that was open before", "",
         nullptr},
        {"&File", "", "", "", "", "", "", nullptr},
        {"&File", "save", "&Save Parameter", "document-save", "Ctrl+S",
         "Store the selection in the analysis parameter", "changes", &W::SaveParameter},
        {"&File", "revert", "Re&vert Parameter", "document-revert", "Ctrl+Shift+Z",
         "Go back to the selection that is stored", "changes", &W::RevertParameter},
        {"&File", "", "", "", "", "", "", nullptr},
        {"&File", "import", "&Import Panel Table...", "document-import", "Ctrl+I",
         "See what a panel table holds, and take its loci into the store", "store writing",
         &W::ImportTable},
        {"&File", "export", "&Export Loci...", "document-export", "Ctrl+E",
         "Write the current loci as a panel table", "store", &W::ExportTable},
        {"&File", "", "", "", "", "", "", nullptr},
        {"&File", "quit", "&Quit", "application-exit", "Ctrl+Q", "Close the program", "", &W::Quit},
        {"&Parameter", "newParameter", "&New Analysis Parameter...", "list-add", "Ctrl+Shift+N",
         "Make a new analysis parameter", "store writing", &W::NewParameter},
        {"&Parameter", "renameParameter", "&Rename...", "edit-rename", "F2",
         "Give the analysis parameter another name", "parameter writing", &W::RenameParameter},
        {"&Parameter", "duplicateParameter", "D&uplicate...", "edit-copy", "Ctrl+D",
         "Make a copy of the analysis parameter under another name", "parameter writing",
         &W::DuplicateParameter},
        {"&Parameter", "deleteParameter", "&Delete...", "edit-delete", "Ctrl+Shift+Del",
         "Remove the analysis parameter from the store", "parameter writing", &W::DeleteParameter},
        {"&Locus", "newLocus", "&New Locus...", "document-new", "Ctrl+N", "Define a new locus",
         "store writing", &W::NewLocus},
        {"&Locus", "editLocus", "&Edit Locus...", "document-edit", "Ctrl+L",
         "Edit the highlighted locus, or one picked from a list", "store", &W::EditLocus},
        {"&Locus", "editForBinning", "Edit for &Binning...", "document-properties", "Ctrl+B",
         "Edit the alleles of a locus for binning", "store", &W::EditLocusForBinning},
        {"&Locus", "", "", "", "", "", "", nullptr},
        {"&Locus", "deleteLocus", "&Delete Locus...", "edit-delete", "Ctrl+Del",
         "Remove a locus from the store", "store writing", &W::DeleteLocus},
        {"&Reports", "report", "&All Loci", "x-office-spreadsheet", "Ctrl+R",
         "Show all loci as a table to print or save", "store", &W::ShowReport},
        {"&Reports", "parameterReport", "&Loci of This Parameter", "x-office-spreadsheet",
         "Ctrl+Shift+R", "Show the selected loci as a table to print or save", "parameter",
         &W::ShowParameterReport},
        {"&View", "larger", "&Larger Text", "zoom-in", "Ctrl++", "Make all text larger", "",
         &W::LargerText},
        {"&View", "smaller", "&Smaller Text", "zoom-out", "Ctrl+-", "Make all text smaller", "",
         &W::SmallerText},
        {"&View", "normal", "&Normal Text", "zoom-original", "Ctrl+0",
         "Go back to the text size of the desktop", "", &W::NormalText},
        {"&View", "", "", "", "", "", "", nullptr},
        {"&View", "picture", "Save &Picture As...", "document-save-as", "Ctrl+Shift+S",
         "Save the picture of the selected loci as PNG or SVG", "parameter", &W::SavePicture},
        {"&Help", "log", "Open &Log", "text-x-generic", "Ctrl+Shift+L",
         "See what has failed so far", "", &W::ShowLog},
        {"&Help", "about", "&About Tamrivo", "help-about", "F1", "What this program is", "",
         &W::ShowAbout},
    };

    QMenu* menu = nullptr;
    for (const Command& command : commands)
    {
        if (menu == nullptr || menu->title() != command.Menu)
            menu = menuBar()->addMenu(command.Menu);
        if (*command.Name == '\0')
            menu->addSeparator();
        else if (command.Do == nullptr)
        {
            QMenu* stores = menu->addMenu(command.Text);
            stores->menuAction()->setStatusTip(command.Tip);
            connect(stores, &QMenu::aboutToShow, this,
                    [this, stores] { FillRecentStores(*stores); });
        }
        else
            menu->addAction(AddCommand(command));
    }

    QToolBar* tools = addToolBar("Commands");
    tools->setObjectName("commands");
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const char* name : {"save", "newLocus", "editLocus", "import", "report"})
        tools->addAction(CommandNamed(name));
}

QAction* MainWindow::AddCommand(const Command& command)
{
    auto* action = new QAction(ThemeIcon(command.Icon), command.Text, this);
    action->setObjectName(command.Name);
    action->setShortcut(QKeySequence(command.Shortcut));
    action->setStatusTip(command.Tip);
    action->setToolTip(command.Tip);
    action->setProperty("needs", command.Needs);
    connect(action, &QAction::triggered, this,
            [this, run = command.Do] { Run([&] { (this->*run)(); }); });
    return action;
}

QAction* MainWindow::CommandNamed(const char* name) const
{
    return findChild<QAction*>(name);
}

void MainWindow::FillRecentStores(QMenu& menu)
{
    menu.clear();
    for (const QString& address : RecentStores())
        menu.addAction(address, this, [this, address] {
            if (!OpenStore(address.toStdString()))
                ForgetStore(address);
        });
    menu.setEnabled(true);
    if (menu.isEmpty())
        menu.addAction("No store yet")->setEnabled(false);
}

void MainWindow::ChangeText(int steps)
{
    constexpr int most = 12;
    constexpr int least = -3;
    const int before = TextSteps();
    const int after = std::clamp(before + steps, least, most);
    RememberTextSteps(after);
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() + after - before);
    QApplication::setFont(font);
}

void MainWindow::NormalText()
{
    ChangeText(-TextSteps());
}

void MainWindow::ShowLog()
{
    OpenLog(this);
}

void MainWindow::ShowAbout()
{
    QMessageBox::about(this, "About Tamrivo",
                       "<h3>Tamrivo " TAMRIVO_VERSION "</h3>"
                       "<p>Defines STR loci and chooses those that an analysis uses.</p>");
}

} // namespace Tamrivo
