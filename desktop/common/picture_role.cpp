#include "desktop/common/picture_role.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace Tamrivo
{

namespace
{

constexpr const char* mark = "isPicture";

QAccessibleInterface* NewPictureInterface(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    return widget != nullptr && widget->property(mark).toBool()
               ? new QAccessibleWidget(widget, QAccessible::Graphic)
               : nullptr;
}

} // namespace

void MarkAsPicture(QWidget& widget)
{
    // Installing it again changes nothing.
    QAccessible::installFactory(NewPictureInterface);
    widget.setProperty(mark, true);
}

} // namespace Tamrivo
