#include "desktop/common/length_axis.h"

#include <QPainter>
#include <QPalette>

#include <cmath>

namespace Tamrivo
{

namespace
{

/// The smallest round step at which no more than `most` marks stand.
double RoundStep(double span, double most)
{
    const double least = span / std::max(most, 1.0);
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
    {
        if (factor * power >= least)
            return factor * power;
    }
    return 10 * power;
}

} // namespace

void LengthAxis::Draw(QPainter& painter, const QPalette& palette, double y, double top) const
{
    const QFontMetrics font = painter.fontMetrics();
    const double markWidth = font.horizontalAdvance("0000") * 2;
    const double step = RoundStep(m_high - m_low, (m_right - m_left) / markWidth);
    const QColor text = palette.color(QPalette::Text);
    QColor faint = text;
    faint.setAlphaF(0.12F);

    const QString unit = " nt";
    const double unitLeft = m_right - font.horizontalAdvance(unit);
    for (double length = std::ceil(m_low / step) * step; length <= m_high; length += step)
    {
        const double x = X(length);
        painter.setPen(faint);
        painter.drawLine(QPointF(x, top), QPointF(x, y));
        painter.setPen(text);
        painter.drawLine(QPointF(x, y), QPointF(x, y + 3));
        const QString number = QString::number(length);
        const double left = x - font.horizontalAdvance(number) / 2.0;
        if (left + font.horizontalAdvance(number) < unitLeft && left >= 0)
            painter.drawText(QPointF(left, y + 4 + font.ascent()), number);
    }
    painter.setPen(text);
    painter.drawLine(QPointF(m_left, y), QPointF(m_right, y));
    painter.drawText(QPointF(unitLeft, y + 4 + font.ascent()), unit);
}

} // namespace Tamrivo
