#pragma once

namespace Tamrivo
{

/// The colours of the program's windows.
enum class Theme
{
    Desktop, ///< As the desktop has them.
    Light,
    Dark,
};

/// The theme that the person has chosen.
Theme ChosenTheme();
/// Shows all windows in the theme, and remembers it.
void UseTheme(Theme theme);

} // namespace Tamrivo
