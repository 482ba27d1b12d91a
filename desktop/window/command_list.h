#pragma once

#include <QDialog>

class QAction;
class QLineEdit;
class QListWidget;

namespace Tamrivo
{

/// All commands that can be done now, in a list that typing narrows down.
class CommandList : public QDialog
{
public:
    CommandList(const QList<QAction*>& commands, QWidget* parent);

    /// The command that was picked; null when none was.
    QAction* Picked() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Narrow();

    QLineEdit* m_filter;
    QListWidget* m_list;
    QList<QAction*> m_commands;
};

} // namespace Tamrivo
