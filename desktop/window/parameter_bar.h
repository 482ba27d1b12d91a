#pragma once

#include <QWidget>

class QAction;
class QLabel;

namespace Tamrivo
{

/// Tells which analysis parameter is open, and offers what can be done with its selection.
class ParameterBar : public QWidget
{
public:
    ParameterBar(const QList<QAction*>& commands, QWidget* parent);

    void Show(const QString& parameter, bool isChanged, bool isReadOnly);

private:
    QLabel* m_name;
    QLabel* m_hint;
};

} // namespace Tamrivo
