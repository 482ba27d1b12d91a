#include "desktop/alleles/bin_draft.h"

#include "desktop/common/length_axis.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// At the upper edge, where no names are.
void DrawValues(QPainter& painter, const QString& text, double middle, const QRectF& band,
                const QPalette& palette)
{
    constexpr double edge = 3;
    const QFontMetrics font = painter.fontMetrics();
    const double width = font.horizontalAdvance(text) + 2 * edge;
    const double height = font.height() + 2 * edge;
    const double left = std::max(band.left(), std::min(middle - width / 2, band.right() - width));
    const QRectF box(left, edge, width, height);
    painter.setPen(palette.color(QPalette::ToolTipText));
    painter.setBrush(palette.color(QPalette::ToolTipBase));
    painter.drawRect(box);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

void DrawDraft(QPainter& painter, const LengthAxis& axis, const QRectF& band, const BinDraft& draft,
               const QColor& shade, const QPalette& palette)
{
    QColor ground = shade;
    ground.setAlphaF(0.4F);
    const double left = axis.X(draft.From);
    const QRectF bin(left, band.top(), axis.X(draft.To) - left, band.height());
    painter.save();
    painter.fillRect(bin, ground);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Text), 1.5, Qt::DashLine));
    painter.drawRect(bin);
    const double size = axis.X(draft.Size);
    painter.drawLine(QPointF(size, band.top() - 3), QPointF(size, band.top() + 3));
    DrawValues(painter, draft.Text, bin.center().x(), band, palette);
    painter.restore();
}

} // namespace Tamrivo
