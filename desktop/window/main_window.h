#pragma once

#include <QMainWindow>

#include <memory>
#include <optional>
#include <string>

class QSplitter;
class QStackedWidget;

namespace Tamrivo
{

class DesktopFrontEnd;
class HostApplication;
class ParameterList;
class ParameterView;
class ReportsWindow;
class StoreSession;

/// The program's window: a store's analysis parameters at the left, the page of the chosen one at
/// the right, and the menus.
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

private:
    struct Command;

    // Building the window.
    void MakeMenus();
    QAction* AddCommand(const Command& command);
    QAction* CommandNamed(const char* name) const;
    void MakeParameterList();
    void FillRecentStores(QMenu& menu);

    // Stores.
    void ChooseStore();
    void CreateStore();
    void ChooseServer();
    void ImportTable();
    void ExportTable();

    // Analysis parameters.
    void NewParameter();
    void RenameParameter();
    void DuplicateParameter();
    void DeleteParameter();
    void SaveParameter();
    void RevertParameter();
    void SavePicture();
    /// Opens a parameter after asking about unsaved changes; the list goes back if the person
    /// doesn't want to leave.
    void ChooseParameter(const std::string& name);
    void ShowParameter(const std::string& name);
    void CloseParameter();
    /// Asks for a name and lets `use` take it, again until it does or the person gives up.
    void AskName(const QString& title, const std::string& proposed,
                 const std::function<void(const std::string&)>& use);
    /// Whether the open parameter may be left: nothing unsaved, or the person has decided.
    bool MayLeave();

    // Loci.
    void NewLocus();
    void EditLocus() { EditLocus(false); }
    void EditLocusForBinning() { EditLocus(true); }
    void EditLocus(bool binning);
    void DeleteLocus();
    std::optional<std::string> ChosenLocus(const QString& title);
    void ShowStoredLoci(const QString& news);

    // Reports, view, help.
    void ShowReport();
    void ShowParameterReport();
    ReportsWindow& Reports();
    void LargerText() { ChangeText(1); }
    void SmallerText() { ChangeText(-1); }
    void NormalText();
    void ChangeText(int steps);
    void ShowLog();
    void ShowAbout();
    void Quit() { close(); }

    HostApplication& Host() const;
    bool Run(const std::function<void()>& action) const;
    void ShowNames();
    void ShowState();

    DesktopFrontEnd& m_frontEnd;
    std::unique_ptr<StoreSession> m_session;
    QSplitter* m_splitter;
    ParameterList* m_list = nullptr;
    QStackedWidget* m_pages;
    ParameterView* m_view = nullptr;
    std::unique_ptr<ReportsWindow> m_reports;
};

} // namespace Tamrivo
