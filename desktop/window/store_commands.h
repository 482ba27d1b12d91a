#pragma once

#include <QObject>

#include <memory>

class QMenu;

namespace Tamrivo
{

class Workbench;

/// Opens and makes stores, and says what they hold.
class StoreCommands : public QObject
{
public:
    explicit StoreCommands(Workbench& workbench);
    ~StoreCommands() override;

    void Open();
    void Create();
    void OpenServer();
    /// The stores that were open before.
    QMenu& RecentMenu();
    void ShowProperties();
    void Quit();

private:
    void FillRecentMenu();

    Workbench& m_workbench;
    std::unique_ptr<QMenu> m_recent;
};

} // namespace Tamrivo
