#include "desktop/front_end/popup_menu.h"

#include "controls/menu.h"
#include "controls/user.h"
#include "desktop/common/text.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QWidget>

#include <map>

namespace Tamrivo
{

namespace
{

QPoint PlaceOfMenu()
{
    const QPoint pointer = QCursor::pos();
    const QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || focus->rect().contains(focus->mapFromGlobal(pointer)))
        return pointer;
    const QRect caret = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return focus->mapToGlobal(caret.bottomLeft());
}

} // namespace

void ShowPopupMenu(Menu& menu)
{
    QMenu shown(ToQString(menu.Caption()));
    std::map<const QAction*, MenuItem*> items;
    for (Control* child : menu.Children())
    {
        auto* item = dynamic_cast<MenuItem*>(child);
        if (item == nullptr || !item->Visible())
            continue;
        if (item->IsSeparator())
        {
            shown.addSeparator();
            continue;
        }
        QAction* action = shown.addAction(ToQString(item->Caption()));
        action->setEnabled(item->Enabled());
        items[action] = item;
    }
    if (const QAction* picked = shown.exec(PlaceOfMenu()))
        User::Click(*items.at(picked));
}

} // namespace Tamrivo
