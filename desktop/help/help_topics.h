#pragma once

#include <QString>

class QWidget;

namespace Tamrivo
{

/// The heading of the guide that tells about what has the focus: of the nearest widget around it
/// that the guide knows. Empty, the guide's beginning, when it knows none.
QString HelpTopicOf(const QWidget* focus);

} // namespace Tamrivo
