#pragma once

#include <QWidget>

class QAction;

namespace Tamrivo
{

/// What stands in the window's middle while no analysis parameter is open: what to do first.
class StartPage : public QWidget
{
public:
    StartPage(const QString& text, const QList<QAction*>& commands, QWidget* parent);
};

} // namespace Tamrivo
