#pragma once

#include <QObject>

namespace Tamrivo
{

/// Opens the guide when F1 is pressed anywhere, at what has the focus.
class HelpKey : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Opens the guide at what has the focus.
void ShowHelp();

} // namespace Tamrivo
