#pragma once

class QIcon;

namespace Tamrivo
{

/// The icon of the desktop's theme with the freedesktop name; where the theme has none, one that
/// the program brings along.
QIcon ThemeIcon(const char* name);

} // namespace Tamrivo
