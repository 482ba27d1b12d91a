#pragma once

class QWidget;

namespace Tamrivo
{

/// Lets screen readers call the widget a picture, under its accessible name and description.
void MarkAsPicture(QWidget& widget);

} // namespace Tamrivo
