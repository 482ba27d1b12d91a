#pragma once

#include "desktop/common/theme.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QLabel;
class QSplitter;
class QStackedWidget;

namespace Tamrivo
{

struct LocusGroup;
struct WizardOutcome;
class DesktopFrontEnd;
class GroupTree;
class HostApplication;
class LibraryView;
class ParameterBar;
class ParameterView;
class ReportsWindow;
class StoreSession;

/// The program's window: the groups of a store's loci at the left, the loci of the chosen one at
/// the right, and the commands. While an analysis parameter is open, ticks before the loci and the
/// selector's page act on the same selection.
class MainWindow : public QMainWindow
{
public:
    /// The front end must outlive the window.
    explicit MainWindow(DesktopFrontEnd& frontEnd);
    ~MainWindow() override;

    /// Opens a store in place of the present one, with the parameter that was shown last. A failure
    /// is shown and leaves the present store open. Gives whether the store was opened.
    bool OpenStore(const std::string& address);

    /// The open parameter's view; null when none is open.
    ParameterView* OpenParameter() const { return m_view; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Command;

    // Building the window.
    void MakeCommands();
    QAction* AddCommand(const Command& command);
    QAction* CommandNamed(const char* name) const;
    QList<QAction*> CommandsFor(const char* place) const;
    void MakePages();
    void ShowCommandList();
    void FillRecentStores(QMenu& menu);

    // Stores.
    void ChooseStore();
    void CreateStore();
    void ChooseServer();
    void Import();
    /// Shows files for import; asks for them when none are given.
    void ImportFiles(const QStringList& paths);
    void Export();
    void ShowStoreProperties();
    /// Reads the loci anew and chooses those that weren't there before.
    void ShowImported(const QString& news);

    // Analysis parameters.
    void NewParameter();
    void RenameParameter();
    void DuplicateParameter();
    void DeleteParameter();
    void SaveParameter();
    void RevertParameter();
    void ToggleSelector();
    void LeaveParameter();
    void AddToParameter() { SelectChosen(true); }
    void TakeFromParameter() { SelectChosen(false); }
    void SelectChosen(bool isSelected);
    void DropOn(const std::string& parameter, const std::vector<std::string>& tags);
    /// Opens a parameter after asking about unsaved changes. Gives whether it is open.
    bool ChooseParameter(const std::string& name);
    void ShowParameter(const std::string& name);
    void CloseParameter();
    /// Turns to a parameter that was just made or renamed.
    void ShowNewParameter(const std::string& name);
    /// Shows the open parameter's present selection everywhere.
    void ShowSelection();
    /// Asks for a text and lets `use` take it, again until it does or the person gives up.
    void AskName(const QString& title, const QString& label, const std::string& proposed,
                 const std::function<void(const std::string&)>& use);
    /// Whether the open parameter may be left: nothing unsaved, or the person has decided.
    bool MayLeave();

    // Loci.
    void NewLocus();
    void EditLocus() { EditLocus(false); }
    void EditLocusForBinning() { EditLocus(true); }
    void EditLocus(bool binning);
    void RenameChosenLocus();
    void DuplicateChosenLocus();
    void SetDyeOfChosen();
    void SetProjectOfChosen();
    void DeleteChosenLoci();
    void CompareChosen();
    void CopyChosen();
    /// The loci that commands are about: those chosen in the table or, on the selector's page,
    /// highlighted in its grids. Raises `User::Refusal` when they are none.
    std::vector<std::string> ChosenLoci() const;
    /// Raises `User::Refusal` unless it is exactly one.
    std::string ChosenLocus() const;
    void ShowStored(const WizardOutcome& outcome, const std::string& edited);

    // Groups and searches.
    void ChooseGroup(const LocusGroup& group);
    void ShowGroups();
    void FindLoci();
    void KeepSearch();
    void ForgetSearch();

    // Reports, view, help.
    void ShowReport();
    void ShowParameterReport();
    ReportsWindow& Reports();
    void LargerText() { ChangeText(1); }
    void SmallerText() { ChangeText(-1); }
    void NormalText();
    void ChangeText(int steps);
    void UseDesktopTheme() { UseTheme(Theme::Desktop); }
    void UseLightTheme() { UseTheme(Theme::Light); }
    void UseDarkTheme() { UseTheme(Theme::Dark); }
    void SavePicture();
    void ShowLog();
    void ShowAbout();
    void Quit() { close(); }

    HostApplication& Host() const;
    bool Run(const std::function<void()>& action) const;
    /// Reads the store anew after a change, chooses these loci if there are any, and tells what has
    /// happened.
    void Reload(const QString& news, const std::vector<std::string>& choose = {});
    void Tell(const QString& news);
    bool IsSelectorShown() const;
    void ShowState();
    void ShowStatus();

    DesktopFrontEnd& m_frontEnd;
    std::unique_ptr<StoreSession> m_session;
    QSplitter* m_splitter;
    GroupTree* m_groups;
    ParameterBar* m_bar = nullptr;
    QStackedWidget* m_pages;
    LibraryView* m_library;
    ParameterView* m_view = nullptr;
    QLabel* m_status;
    std::unique_ptr<ReportsWindow> m_reports;
};

} // namespace Tamrivo
