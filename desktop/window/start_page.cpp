#include "desktop/window/start_page.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Tamrivo
{

StartPage::StartPage(const QString& text, const QList<QAction*>& commands, QWidget* parent)
    : QWidget(parent)
{
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(label);
    layout->addSpacing(fontMetrics().lineSpacing());
    for (QAction* command : commands)
    {
        auto* button = new QPushButton(command->icon(), command->text(), this);
        connect(button, &QPushButton::clicked, command, &QAction::trigger);
        layout->addWidget(button, 0, Qt::AlignHCenter);
    }
    layout->addStretch();
}

} // namespace Tamrivo
