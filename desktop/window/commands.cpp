#include "desktop/common/icons.h"
#include "desktop/common/settings.h"
#include "desktop/window/command_list.h"
#include "desktop/window/main_window.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace Tamrivo
{

/// A command: a row of the menus, in the list of commands, and in further places.
struct MainWindow::Command
{
    const char* Menu;
    const char* Name; ///< Empty: a separator.
    const char* Text;
    const char* Icon;
    const char* Keys;
    const char* Tip;
    /// What must be there: store, writing, table; parameter, changes; locus (exactly one is
    /// chosen), loci (at least one), pair.
    const char* Needs;
    /// Where else it stands: tools (the toolbar), locus, parameter, search (their menus).
    const char* Places;
    void (MainWindow::*Do)();
};

void MainWindow::MakeCommands()
{
    using W = MainWindow;
    static constexpr Command separator{};
    static constexpr Command commands[] = {
        {"&File", "open", "&Open Store...", "document-open", "Ctrl+O",
         "Open a store file that exists", "", "", &W::ChooseStore},
        {"&File", "create", "&Create Store...", "document-new", "Ctrl+Shift+O",
         "Make a new, empty store file and open it", "", "", &W::CreateStore},
        {"&File", "server", "Open &Database Server...", "network-server", "Ctrl+Alt+O",
         "Open a store in a PostgreSQL database", "", "", &W::ChooseServer},
        {"&File", "recent", "Open &Recent", "", "", "Open a store that was open before", "", "",
         nullptr},
        separator,
        {"&File", "import", "&Import...", "document-import", "Ctrl+I",
         "See what panel files hold, and take their loci into the store", "store writing", "tools",
         &W::Import},
        {"&File", "export", "&Export...", "document-export", "Ctrl+E", "Write loci as a file",
         "store", "tools", &W::Export},
        {"&File", "properties", "Store Proper&ties...", "document-properties", "Ctrl+Alt+P",
         "Say which dyes the lab has", "store", "", &W::ShowStoreProperties},
        separator,
        {"&File", "quit", "&Quit", "application-exit", "Ctrl+Q", "Close the program", "", "",
         &W::Quit},

        {"E&dit", "copy", "&Copy as Table", "edit-copy", "Ctrl+C",
         "Copy the chosen loci as spreadsheets take them", "table loci", "locus", &W::CopyChosen},
        separator,
        {"E&dit", "find", "&Find Loci", "edit-find", "Ctrl+F", "Search the loci of the group",
         "store", "", &W::FindLoci},
        {"E&dit", "keepSearch", "&Keep This Search", "list-add", "Ctrl+Shift+K",
         "Keep the search as a group", "table", "", &W::KeepSearch},
        {"E&dit", "forgetSearch", "F&orget This Search", "list-remove", "",
         "Take the chosen search from the groups", "table", "search", &W::ForgetSearch},
        separator,
        {"E&dit", "commands", "Co&mmands...", "help-about", "Ctrl+Shift+P",
         "Find a command by its name", "", "", &W::ShowCommandList},

        {"&Locus", "newLocus", "&New Locus...", "list-add", "Ctrl+N", "Define a new locus",
         "store writing", "tools", &W::NewLocus},
        {"&Locus", "editLocus", "&Edit Locus...", "document-edit", "Ctrl+L",
         "Edit the chosen locus", "store locus", "tools locus", &W::EditLocus},
        {"&Locus", "editForBinning", "Edit for &Binning...", "document-properties", "Ctrl+B",
         "Edit the alleles of the chosen locus for binning", "store locus", "locus",
         &W::EditLocusForBinning},
        {"&Locus", "duplicateLocus", "D&uplicate Locus...", "edit-copy", "Ctrl+D",
         "Store a copy of the chosen locus under another tag", "writing locus", "tools locus",
         &W::DuplicateChosenLocus},
        {"&Locus", "renameLocus", "&Rename Locus...", "edit-rename", "F2",
         "Give the chosen locus another tag", "writing locus", "locus", &W::RenameChosenLocus},
        {"&Locus", "deleteLocus", "&Delete Loci...", "edit-delete", "Ctrl+Del",
         "Remove the chosen loci from the store", "writing loci", "tools locus",
         &W::DeleteChosenLoci},
        separator,
        {"&Locus", "setDye", "Set D&ye...", "", "", "Give the chosen loci another dye",
         "writing loci", "locus", &W::SetDyeOfChosen},
        {"&Locus", "setProject", "Set Pro&ject...", "", "", "Put the chosen loci into a project",
         "writing loci", "locus", &W::SetProjectOfChosen},
        separator,
        {"&Locus", "addToParameter", "&Add to Parameter", "", "Ctrl+Shift+A",
         "Add the chosen loci to the open analysis parameter", "parameter table loci", "locus",
         &W::AddToParameter},
        {"&Locus", "takeFromParameter", "&Take out of Parameter", "", "Ctrl+Shift+T",
         "Take the chosen loci out of the open analysis parameter", "parameter table loci", "locus",
         &W::TakeFromParameter},
        separator,
        {"&Locus", "compare", "&Compare", "view-dual", "Ctrl+Shift+C",
         "Show what differs between the two chosen loci", "pair", "tools locus", &W::CompareChosen},

        {"&Parameter", "newParameter", "&New Analysis Parameter...", "list-add", "Ctrl+Shift+N",
         "Make a new analysis parameter of the chosen loci", "store writing", "parameter",
         &W::NewParameter},
        {"&Parameter", "renameParameter", "&Rename...", "edit-rename", "Shift+F2",
         "Give the analysis parameter another name", "parameter writing", "parameter",
         &W::RenameParameter},
        {"&Parameter", "duplicateParameter", "D&uplicate...", "edit-copy", "Ctrl+Shift+D",
         "Make a copy of the analysis parameter under another name", "parameter writing",
         "parameter", &W::DuplicateParameter},
        {"&Parameter", "deleteParameter", "&Delete...", "edit-delete", "Ctrl+Shift+Del",
         "Remove the analysis parameter from the store", "parameter writing", "parameter",
         &W::DeleteParameter},
        separator,
        {"&Parameter", "selectLoci", "Select &Loci", "document-properties", "Ctrl+T",
         "Turn to the page with the lists of available and selected loci, and back", "parameter",
         "parameter", &W::ToggleSelector},
        {"&Parameter", "save", "&Save", "document-save", "Ctrl+S",
         "Store the selection in the analysis parameter", "changes", "", &W::SaveParameter},
        {"&Parameter", "revert", "Re&vert", "document-revert", "Ctrl+Shift+Z",
         "Go back to the selection that is stored", "changes", "", &W::RevertParameter},
        {"&Parameter", "closeParameter", "&Close", "", "Ctrl+W",
         "Leave the analysis parameter; its ticks go away", "parameter", "", &W::LeaveParameter},

        {"&Reports", "report", "&All Loci", "x-office-spreadsheet", "Ctrl+R",
         "Show all loci as a table to print or save", "store", "", &W::ShowReport},
        {"&Reports", "parameterReport", "&Loci of This Parameter", "x-office-spreadsheet",
         "Ctrl+Shift+R", "Show the selected loci as a table to print or save", "parameter", "",
         &W::ShowParameterReport},

        {"&View", "larger", "&Larger Text", "zoom-in", "Ctrl++", "Make all text larger", "", "",
         &W::LargerText},
        {"&View", "smaller", "&Smaller Text", "zoom-out", "Ctrl+-", "Make all text smaller", "", "",
         &W::SmallerText},
        {"&View", "normal", "&Normal Text", "zoom-original", "Ctrl+0",
         "Go back to the text size of the desktop", "", "", &W::NormalText},
        separator,
        {"&View", "desktopTheme", "Colours of the &Desktop", "", "",
         "Show the windows in the colours of the desktop", "", "", &W::UseDesktopTheme},
        {"&View", "lightTheme", "L&ight Colours", "", "", "Show the windows dark on light", "", "",
         &W::UseLightTheme},
        {"&View", "darkTheme", "Dar&k Colours", "", "", "Show the windows light on dark", "", "",
         &W::UseDarkTheme},
        separator,
        {"&View", "picture", "Save &Picture of the Lanes...", "document-save-as", "Ctrl+Shift+S",
         "Save the picture of the loci as PNG or SVG", "store", "", &W::SavePicture},

        {"&Help", "log", "Open &Log", "text-x-generic", "Ctrl+Shift+L",
         "See what has failed so far", "", "", &W::ShowLog},
        {"&Help", "about", "&About Tamrivo", "help-about", "F1", "What this program is", "", "",
         &W::ShowAbout},
    };

    QMenu* menu = nullptr;
    for (const Command& command : commands)
    {
        if (command.Name == nullptr)
        {
            menu->addSeparator();
            continue;
        }
        if (menu == nullptr || menu->title() != command.Menu)
            menu = menuBar()->addMenu(command.Menu);
        if (command.Do == nullptr)
        {
            QMenu* stores = menu->addMenu(command.Text);
            stores->menuAction()->setStatusTip(command.Tip);
            connect(stores, &QMenu::aboutToShow, this,
                    [this, stores] { FillRecentStores(*stores); });
        }
        else
            menu->addAction(AddCommand(command));
    }
    CommandNamed("selectLoci")->setCheckable(true);

    QToolBar* tools = addToolBar("Commands");
    tools->setObjectName("commands");
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const char* name :
         {"newLocus", "editLocus", "duplicateLocus", "deleteLocus", "import", "export", "compare"})
        tools->addAction(CommandNamed(name));
}

QAction* MainWindow::AddCommand(const Command& command)
{
    auto* action = new QAction(ThemeIcon(command.Icon), command.Text, this);
    action->setObjectName(command.Name);
    action->setShortcut(QKeySequence(command.Keys));
    action->setStatusTip(command.Tip);
    action->setToolTip(command.Tip);
    action->setProperty("needs", command.Needs);
    action->setProperty("places", command.Places);
    // On the toolbar the menu's word for what it acts on can be left out.
    const QString word = QString(command.Text).remove('&').remove("...");
    action->setIconText(QString(command.Places).contains("tools") ? word.section(' ', 0, 0) : word);
    connect(action, &QAction::triggered, this,
            [this, run = command.Do] { Run([&] { (this->*run)(); }); });
    return action;
}

QAction* MainWindow::CommandNamed(const char* name) const
{
    return findChild<QAction*>(name);
}

QList<QAction*> MainWindow::CommandsFor(const char* place) const
{
    QList<QAction*> commands;
    for (QAction* command : findChildren<QAction*>(Qt::FindDirectChildrenOnly))
    {
        if (command->property("places").toString().split(' ').contains(place))
            commands += command;
    }
    return commands;
}

void MainWindow::ShowCommandList()
{
    QList<QAction*> commands;
    for (QAction* command : findChildren<QAction*>(Qt::FindDirectChildrenOnly))
    {
        if (command->property("needs").isValid() && command->objectName() != "commands")
            commands += command;
    }
    CommandList list(commands, this);
    list.exec();
    if (QAction* picked = list.Picked())
        picked->trigger();
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

} // namespace Tamrivo
