#pragma once

#include "desktop/window/command.h"

#include <QList>

#include <vector>

class QAction;
class QMainWindow;

namespace Tamrivo
{

class Actions;

/// The commands as actions of the window: in its menus, on its toolbar, and in the list in which
/// they are found by name.
class Commands
{
public:
    /// What is given must outlive the commands.
    Commands(QMainWindow& window, const CommandTargets& targets, const Actions& actions);

    /// The command with this procedure, `Do<&LocusCommands::Edit>` for one.
    QAction& operator[](CommandProcedure run) const;
    QList<QAction*> For(CommandPlace place) const;

    /// Enables the commands that need no more than this.
    void Enable(Needs given);

    void ShowList();

private:
    struct Entry
    {
        const Command* Row;
        QAction* Action;
    };

    void MakeMenus();
    QAction* NewAction(const Command& command);
    void MakeToolbar();

    QMainWindow& m_window;
    CommandTargets m_targets;
    const Actions& m_actions;
    std::vector<Entry> m_entries;
};

} // namespace Tamrivo
