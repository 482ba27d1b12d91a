#pragma once

#include <memory>

namespace Tamrivo
{

class HistoryWindow;
class Workbench;

/// Shows what was changed and brings it back, and keeps copies of the store.
class HistoryCommands
{
public:
    explicit HistoryCommands(Workbench& workbench);
    ~HistoryCommands();

    void ShowAll();
    void ShowLocus();
    void ShowDeleted();
    void BackUp();
    void Copy();
    void EditProjects();
    /// The window is of one store.
    void CloseWindow();

private:
    HistoryWindow& Window();

    Workbench& m_workbench;
    std::unique_ptr<HistoryWindow> m_window;
};

} // namespace Tamrivo
