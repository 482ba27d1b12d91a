#pragma once

#include "desktop/window/commands.h"
#include "desktop/window/help_commands.h"
#include "desktop/window/history_commands.h"
#include "desktop/window/locus_commands.h"
#include "desktop/window/panel_file_commands.h"
#include "desktop/window/parameter_commands.h"
#include "desktop/window/report_commands.h"
#include "desktop/window/search_commands.h"
#include "desktop/window/store_commands.h"
#include "desktop/window/view_commands.h"

#include <QMainWindow>

namespace Tamrivo
{

class DesktopFrontEnd;
class Workbench;

/// The program's window: the commands in its menus and on its toolbar, the workbench, and a line
/// that tells what is chosen. Files dropped on it are imported.
class MainWindow : public QMainWindow
{
public:
    /// The front end must outlive the window.
    explicit MainWindow(DesktopFrontEnd& frontEnd);
    ~MainWindow() override;

    Workbench& Bench() const { return *m_bench; }
    const Tamrivo::Commands& Commands() const { return m_commands; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void ShowTitle();

    Workbench* m_bench;
    StoreCommands m_store;
    PanelFileCommands m_panelFiles;
    SearchCommands m_search;
    LocusCommands m_loci;
    ParameterCommands m_parameters;
    ReportCommands m_reports;
    ViewCommands m_view;
    HelpCommands m_help;
    HistoryCommands m_history;
    Tamrivo::Commands m_commands;
};

} // namespace Tamrivo
