#include "desktop/window/command_list.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

CommandList::CommandList(const QList<QAction*>& commands, QWidget* parent)
    : QDialog(parent), m_filter(new QLineEdit(this)), m_list(new QListWidget(this))
{
    setObjectName("commandList");
    setWindowTitle("Commands");
    m_filter->setObjectName("filter");
    m_filter->setAccessibleName("Part of a command's name");
    m_filter->setPlaceholderText("Type what you want to do");
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_list->setObjectName("commands");
    m_list->setAccessibleName("Commands");
    for (QAction* command : commands)
    {
        if (!command->isEnabled() || command->text().isEmpty())
            continue;
        const QString keys = command->shortcut().toString(QKeySequence::NativeText);
        auto* item = new QListWidgetItem(command->icon(),
                                         command->text().remove('&').remove("...") +
                                             (keys.isEmpty() ? "" : "    " + keys),
                                         m_list);
        item->setToolTip(command->toolTip());
        m_commands += command;
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    resize(60 * fontMetrics().averageCharWidth(), 22 * fontMetrics().lineSpacing());
    connect(m_filter, &QLineEdit::textChanged, this, [this] { Narrow(); });
    connect(m_filter, &QLineEdit::returnPressed, this, &QDialog::accept);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    Narrow();
}

void CommandList::Narrow()
{
    const QStringList words = m_filter->text().split(' ', Qt::SkipEmptyParts);
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < m_list->count(); ++row)
    {
        QListWidgetItem* item = m_list->item(row);
        const QString text = item->text() + ' ' + item->toolTip();
        const bool isMeant = std::ranges::all_of(
            words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
        item->setHidden(!isMeant);
        if (isMeant && first == nullptr)
            first = item;
    }
    m_list->setCurrentItem(first);
}

bool CommandList::eventFilter(QObject* watched, QEvent* event)
{
    // Up and Down walk the list while the text is typed.
    if (event->type() == QEvent::KeyPress)
    {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down)
        {
            QApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

QAction* CommandList::Picked() const
{
    const int row = m_list->currentRow();
    return result() == QDialog::Accepted && row >= 0 ? m_commands[row] : nullptr;
}

} // namespace Tamrivo
