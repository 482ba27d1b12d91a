#include "desktop/forms/appearance.h"

#include "controls/text_field.h"
#include "controls/user.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QWidget>

namespace Tamrivo
{

namespace
{

constexpr double declaredPoints = 8.25;

QColor ColorOf(std::int32_t color)
{
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

} // namespace

void ApplyReach(QWidget& widget, const Control& control)
{
    widget.setEnabled(!User::Obstacle(control));
    widget.setVisible(control.Visible());
}

void ApplyFont(QWidget& widget, const std::optional<Font>& font)
{
    if (!font)
        return;
    QFont changed;
    changed.setBold(font->Bold);
    if (font->Points != declaredPoints)
        changed.setPointSizeF(QApplication::font().pointSizeF() * font->Points / declaredPoints);
    widget.setFont(changed);
}

QPalette FieldPalette(std::int32_t backColor)
{
    QPalette palette;
    if (backColor == Color::WindowBackground)
        return palette;
    const QColor background = ColorOf(backColor);
    const QColor text = qGray(background.rgb()) > 127 ? Qt::black : Qt::white;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
    {
        palette.setColor(group, QPalette::Base, background);
        palette.setColor(group, QPalette::Text, text);
    }
    return palette;
}

} // namespace Tamrivo
