#pragma once

#include <QFrame>

namespace Tamrivo
{

/// What a person is told at a place that they see for the first time: a line that goes for good
/// once they have pressed its button.
class FirstUseTip : public QFrame
{
public:
    /// @param name under which the program remembers that the tip was read
    FirstUseTip(const QString& name, const QString& text, QWidget* parent);
};

} // namespace Tamrivo
