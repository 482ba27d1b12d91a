#include "desktop/window/parameter_list.h"

#include "desktop/text.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace Tamrivo
{

ParameterList::ParameterList(const QList<QAction*>& commands, QWidget* parent)
    : QWidget(parent), m_names(new QListWidget(this))
{
    m_names->setObjectName("parameters");
    m_names->setAccessibleName("Analysis parameters");
    m_names->addActions(commands);
    m_names->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* label = new QLabel("Analysis &parameters:", this);
    label->setBuddy(m_names);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    for (QAction* command : commands)
    {
        auto* button = new QToolButton(this);
        button->setDefaultAction(command);
        button->setAutoRaise(true);
        button->setAccessibleName(command->text().remove('&'));
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_names, 1);
    layout->addLayout(buttons);

    // The focus alone makes a row the current one, and chooses nothing.
    connect(m_names, &QListWidget::itemSelectionChanged, this, [this] {
        const auto chosen = m_names->selectedItems();
        if (m_isShowing || chosen.isEmpty() || !onChosen)
            return;
        // A question may follow, which must not come in the middle of a press of the mouse.
        const std::string name = FromQString(chosen.front()->text());
        QTimer::singleShot(0, this, [this, name] { onChosen(name); });
    });
}

void ParameterList::SetNames(const std::vector<std::string>& names)
{
    const QScopedValueRollback showing(m_isShowing, true);
    m_names->clear();
    for (const std::string& name : names)
        m_names->addItem(ToQString(name));
}

QSize ParameterList::sizeHint() const
{
    return {30 * fontMetrics().averageCharWidth(), QWidget::sizeHint().height()};
}

void ParameterList::ShowChosen(const std::string& name)
{
    const QScopedValueRollback showing(m_isShowing, true);
    const auto found = m_names->findItems(ToQString(name), Qt::MatchFixedString);
    m_names->setCurrentItem(found.isEmpty() ? nullptr : found.front());
    if (found.isEmpty())
        m_names->clearSelection();
}

} // namespace Tamrivo
