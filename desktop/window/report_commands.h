#pragma once

#include <memory>

namespace Tamrivo
{

class ReportsWindow;
class Workbench;

/// Shows loci in the reports' window.
class ReportCommands
{
public:
    explicit ReportCommands(Workbench& workbench);
    ~ReportCommands();

    void ShowAll();
    void ShowParameter();
    /// The window is of one store.
    void CloseWindow();

private:
    ReportsWindow& Window();

    Workbench& m_workbench;
    std::unique_ptr<ReportsWindow> m_window;
};

} // namespace Tamrivo
