#include "desktop/window/commands.h"

#include "desktop/common/actions.h"
#include "desktop/common/icons.h"
#include "desktop/window/command_list.h"
#include "desktop/window/locus_commands.h"
#include "desktop/window/panel_file_commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// From left to right.
constexpr CommandProcedure toolbarCommands[] = {
    Do<&LocusCommands::New>,     Do<&LocusCommands::Edit>,       Do<&LocusCommands::Duplicate>,
    Do<&LocusCommands::Delete>,  Do<&PanelFileCommands::Import>, Do<&PanelFileCommands::Export>,
    Do<&LocusCommands::Compare>,
};

} // namespace

Commands::Commands(QMainWindow& window, const CommandTargets& targets, const Actions& actions)
    : m_window(window), m_targets(targets), m_actions(actions)
{
    MakeMenus();
    MakeToolbar();
}

void Commands::MakeMenus()
{
    QMenu* menu = nullptr;
    for (const Command& command : AllCommands())
    {
        if (command.Menu == nullptr)
        {
            menu->addSeparator();
            continue;
        }
        if (menu == nullptr || menu->title() != command.Menu)
            menu = m_window.menuBar()->addMenu(command.Menu);
        if (command.Submenu != nullptr)
        {
            QMenu& submenu = command.Submenu(m_targets);
            submenu.setTitle(command.Text);
            submenu.menuAction()->setStatusTip(command.Tip);
            menu->addMenu(&submenu);
        }
        else
        {
            m_entries.push_back({&command, NewAction(command)});
            menu->addAction(m_entries.back().Action);
        }
    }
}

QAction* Commands::NewAction(const Command& command)
{
    auto* action = new QAction(ThemeIcon(command.Icon), command.Text, &m_window);
    action->setShortcut(QKeySequence(command.Keys));
    action->setStatusTip(command.Tip);
    action->setToolTip(command.Tip);
    action->setIconText(QString(command.Text).remove('&').remove("..."));
    QObject::connect(action, &QAction::triggered, &m_window,
                     [this, run = command.Run] { m_actions.Run([&] { run(m_targets); }); });
    return action;
}

void Commands::MakeToolbar()
{
    QToolBar* tools = m_window.addToolBar("Commands");
    tools->setObjectName("commands");
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const CommandProcedure run : toolbarCommands)
    {
        QAction& action = (*this)[run];
        // The menu's word for what it acts on can be left out.
        action.setIconText(action.iconText().section(' ', 0, 0));
        tools->addAction(&action);
    }
}

QAction& Commands::operator[](CommandProcedure run) const
{
    return *std::ranges::find_if(m_entries, [&](const Entry& entry) {
                return entry.Row->Run == run;
            })->Action;
}

QList<QAction*> Commands::For(CommandPlace place) const
{
    QList<QAction*> actions;
    for (const Entry& entry : m_entries)
    {
        if (entry.Row->Places.testFlag(place))
            actions += entry.Action;
    }
    return actions;
}

void Commands::Enable(Needs given)
{
    for (const Entry& entry : m_entries)
        entry.Action->setEnabled((given & entry.Row->Needs) == entry.Row->Needs);
}

void Commands::ShowList()
{
    QList<QAction*> actions;
    for (const Entry& entry : m_entries)
    {
        if (entry.Row->Run != CommandProcedure{Do<&Commands::ShowList>})
            actions += entry.Action;
    }
    CommandList list(actions, &m_window);
    list.exec();
    if (QAction* picked = list.Picked())
        picked->trigger();
}

} // namespace Tamrivo
