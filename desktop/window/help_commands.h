#pragma once

namespace Tamrivo
{

class Workbench;

/// What tells about the program.
class HelpCommands
{
public:
    explicit HelpCommands(Workbench& workbench) : m_workbench(workbench) {}

    void ShowGuide();
    void OpenLog();
    void ShowAbout();

private:
    Workbench& m_workbench;
};

} // namespace Tamrivo
