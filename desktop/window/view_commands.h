#pragma once

#include "desktop/common/theme.h"

namespace Tamrivo
{

class Workbench;

/// How the windows look, and the picture of the lanes.
class ViewCommands
{
public:
    explicit ViewCommands(Workbench& workbench) : m_workbench(workbench) {}

    void LargerText();
    void SmallerText();
    void NormalText();
    void UseDesktopTheme() { UseTheme(Theme::Desktop); }
    void UseLightTheme() { UseTheme(Theme::Light); }
    void UseDarkTheme() { UseTheme(Theme::Dark); }
    void SavePicture();

private:
    Workbench& m_workbench;
};

} // namespace Tamrivo
