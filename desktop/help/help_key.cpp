#include "desktop/help/help_key.h"

#include "desktop/help/guide_window.h"
#include "desktop/help/help_topics.h"

#include <QApplication>
#include <QKeyEvent>

namespace Tamrivo
{

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    if (key == nullptr || !watched->isWidgetType() || key->key() != Qt::Key_F1 ||
        key->modifiers() != Qt::NoModifier)
        return QObject::eventFilter(watched, event);
    ShowHelp();
    return true;
}

void ShowHelp()
{
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* window = modal != nullptr ? modal : QApplication::activeWindow();
    if (dynamic_cast<GuideWindow*>(window) != nullptr)
        return;
    const QWidget* focus = QApplication::focusWidget();
    GuideWindow::ShowAt(HelpTopicOf(focus != nullptr ? focus : window), window);
}

} // namespace Tamrivo
