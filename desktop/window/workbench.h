#pragma once

#include "core/event.h"
#include "desktop/window/command.h"
#include "desktop/window/editor_windows.h"
#include "desktop/window/open_parameter.h"

#include <QSplitter>

#include <memory>
#include <string>
#include <vector>

class QMainWindow;

namespace Tamrivo
{

struct Finding;
struct LocusGroup;
class DesktopFrontEnd;
class GroupTree;
class LibraryView;
class StoreSession;
class WorkbenchPages;

/// What the window works on: an open store with the groups of its loci at the left and the loci of
/// the chosen one at the right. While an analysis parameter is open, ticks before the loci and the
/// selector's page, which takes the place of the table, act on the same selection.
class Workbench : public QSplitter
{
    Q_OBJECT

public:
    /// Both must outlive the workbench.
    Workbench(DesktopFrontEnd& frontEnd, QMainWindow& window);
    ~Workbench() override;

    /// Puts commands into the menus and onto the pages that stand here. Called once, at first.
    void Offer(const Commands& commands);

    /// Opens a store in place of the present one, with the parameter that was shown last. A failure
    /// is shown and leaves the present store open. Gives whether the store was opened.
    bool OpenStore(const std::string& address);
    bool HasStore() const { return m_session != nullptr; }
    /// Of the open store.
    HostApplication& Host() const;
    const Actions& UserActions() const;
    /// Closes the editors and asks about what isn't saved. Gives whether everything may go.
    bool MayClose();

    /// The window that dialogs belong to.
    QWidget& Window() const;
    LibraryView& Loci() const { return *m_library; }
    GroupTree& Groups() const { return *m_groups; }
    EditorWindows& Editors() { return m_editors; }

    /// The loci that commands are about: those chosen in the table or, on the selector's page,
    /// highlighted in its grids. Raises `User::Refusal` when they are none.
    std::vector<std::string> ChosenLoci() const;
    /// Raises `User::Refusal` unless it is exactly one.
    std::string ChosenLocus() const;

    /// Reads the store anew after a change, chooses these loci if there are any, and tells what has
    /// happened.
    void Reload(const QString& news, const std::vector<std::string>& choose = {});
    /// Groups, counts and kept searches as they are now.
    void ShowGroups();
    void ShowAllLoci();
    void TurnToTable();
    void TurnToSelector();
    bool IsSelectorShown() const;

    OpenParameter& Parameter() { return m_parameter; }
    const OpenParameter& Parameter() const { return m_parameter; }
    /// Opens a parameter that was just made or renamed, and turns to its loci.
    void ShowNewParameter(const std::string& name);

    void Tell(const QString& news) { emit Told(news); }

signals:
    /// Something else is given, or on show.
    void Changed();
    /// Another parameter is open or none, or its selection has changed.
    void SelectionChanged();
    void StoreClosing();
    /// What the person is told in passing.
    void Told(const QString& news);

private:
    void ConnectParts();
    void ChooseGroup(const LocusGroup& group);
    /// Opens the editor at what a finding is about.
    void LeadTo(const Finding& finding);
    void ShowPage();

    DesktopFrontEnd& m_frontEnd;
    Connection m_openedAgain;
    std::unique_ptr<StoreSession> m_session;
    EditorWindows m_editors;
    GroupTree* m_groups;
    LibraryView* m_library;
    WorkbenchPages* m_pages;
    OpenParameter m_parameter;
};

} // namespace Tamrivo
