#pragma once

namespace Tamrivo
{

class Menu;

/// Shows the menu at the pointer, or at the focus when the menu was asked for by a key, and clicks
/// the item that the person picks. Failures of the item's handler pass through.
void ShowPopupMenu(Menu& menu);

} // namespace Tamrivo
