#include "desktop/lanes/lane_bar.h"

#include "desktop/common/dye_shade.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// Strokes that rise to the right. SVG files know no brush patterns, so they are lines.
void Hatch(QPainter& painter, const QRectF& rect, const QColor& color)
{
    constexpr double distance = 7;
    std::vector<QLineF> strokes;
    const double height = rect.height();
    for (double foot = -height; foot < rect.width(); foot += distance)
    {
        const double from = std::max(0.0, -foot);
        const double to = std::min(height, rect.width() - foot);
        if (from < to)
            strokes.emplace_back(rect.left() + foot + from, rect.bottom() - from,
                                 rect.left() + foot + to, rect.bottom() - to);
    }
    painter.setPen(QPen(color, 1.5));
    painter.drawLines(strokes.data(), static_cast<int>(strokes.size()));
}

/// In the bar or beside it, cut short when there is no room for all of it.
void DrawName(QPainter& painter, const QString& name, const QRectF& bar, double freeTo,
              const QColor& text, const QColor& halo)
{
    constexpr double edge = 4;
    const QFontMetrics font = painter.fontMetrics();
    const double inside = bar.width() - 2 * edge;
    const double beside = freeTo - bar.right() - 2 * edge;
    const double length = font.horizontalAdvance(name);
    const bool isInside = length <= inside || (length > beside && inside >= beside);
    const QString shown =
        font.elidedText(name, Qt::ElideRight, static_cast<int>(isInside ? inside : beside));
    if (shown != name && shown.size() < 2)
        return;
    const double left =
        isInside ? bar.center().x() - font.horizontalAdvance(shown) / 2.0 : bar.right() + edge;
    const QPointF place(left, bar.center().y() + (font.ascent() - font.descent()) / 2.0);
    if (isInside)
    {
        QPainterPath outline;
        outline.addText(place, painter.font(), shown);
        painter.strokePath(outline, QPen(halo, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.setPen(text);
    painter.drawText(place, shown);
}

/// Alleles rise from the foot of the bar, observed sizes hang from its top; what is outside the
/// range would seem to be a neighbour's.
void DrawTicks(QPainter& painter, const LaneBar& bar, const LaneDetails& details,
               const LengthAxis& axis, const QColor& color, const QColor& text)
{
    const double length = bar.Rect.height() / 3;
    const auto draw = [&](double size, double from, double to) {
        const double x = axis.X(size);
        if (x >= bar.Rect.left() && x <= bar.Rect.right())
            painter.drawLine(QPointF(x, from), QPointF(x, to));
    };
    painter.setPen(QPen(color, 1.5));
    for (const LaneAllele& allele : details.Alleles)
        draw(allele.Size, bar.Rect.bottom(), bar.Rect.bottom() - length);
    painter.setPen(QPen(text, 1));
    for (const double size : details.Observed)
        draw(size, bar.Rect.top(), bar.Rect.top() + length);
}

void DrawOutlines(QPainter& painter, const QRectF& rect, const BarLook& look, const QColor& text)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.Color, look.IsOverlapped ? 3 : 1));
    painter.drawRect(rect);
    if (look.IsChosen)
    {
        painter.setPen(QPen(text, 2));
        painter.drawRect(rect.adjusted(-2, -2, 2, 2));
    }
    if (look.HasFocus)
    {
        painter.setPen(QPen(text, 1, Qt::DotLine));
        painter.drawRect(rect.adjusted(2, 2, -2, -2));
    }
}

} // namespace

QColor Mixed(const QColor& ground, const QColor& color, double share)
{
    const auto mix = [share](int one, int other) {
        return static_cast<int>(one + (other - one) * share);
    };
    return {mix(ground.red(), color.red()), mix(ground.green(), color.green()),
            mix(ground.blue(), color.blue())};
}

bool HasRoomForTicks(const LaneBar& bar, std::size_t alleles)
{
    constexpr double leastDistance = 3;
    return bar.Rect.width() >= leastDistance * static_cast<double>(alleles);
}

void DrawLaneBar(QPainter& painter, const LaneBar& bar, const BarLook& look, const LengthAxis& axis,
                 const QRectF& room, const QPalette& palette)
{
    const QColor text = palette.color(QPalette::Text);
    const QColor ground =
        Mixed(palette.color(QPalette::Base), look.Color, IsDarkTheme(palette) ? 0.35 : 0.2);
    painter.fillRect(bar.Rect, ground);
    for (const SharedStretch& stretch : look.Shared)
    {
        const double left = std::max(bar.Rect.left(), axis.X(stretch.From));
        const double right = std::min(bar.Rect.right(), axis.X(stretch.To));
        const QRectF shared(left, bar.Rect.top(), std::max(2.0, right - left), bar.Rect.height());
        Hatch(painter, shared.intersected(room), look.Color);
    }
    if (look.Details != nullptr && HasRoomForTicks(bar, look.Details->Alleles.size()))
        DrawTicks(painter, bar, *look.Details, axis, look.Color, text);
    DrawOutlines(painter, bar.Rect, look, text);
    DrawName(painter, look.Name, bar.Rect.intersected(room), std::min(bar.FreeTo, room.right()),
             text, ground);
}

} // namespace Tamrivo
