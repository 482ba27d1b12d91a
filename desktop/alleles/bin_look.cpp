#include "desktop/alleles/bin_look.h"

#include "desktop/common/colors.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// How a state is shown, and what the legend says of it.
struct StateLook
{
    BinState State;
    QColor Color;
    Qt::BrushStyle Pattern;
    const char* Legend;
};

constexpr StateLook looks[] = {
    {BinState::InOrder, SafeColor::Blue, Qt::SolidPattern, "Bin"},
    {BinState::Overlapping, SafeColor::Vermillion, Qt::BDiagPattern, "Overlapping"},
    {BinState::OutOfRange, SafeColor::Orange, Qt::DiagCrossPattern, "Outside the range"},
};

const StateLook& LookOf(BinState state)
{
    return *std::ranges::find(looks, state, &StateLook::State);
}

} // namespace

void FillBin(QPainter& painter, const QRectF& rect, BinState state)
{
    const StateLook& look = LookOf(state);
    if (look.Pattern != Qt::SolidPattern)
    {
        QColor ground = look.Color;
        ground.setAlphaF(0.35F);
        painter.fillRect(rect, ground);
    }
    painter.fillRect(rect, QBrush(look.Color, look.Pattern));
    // Bins that meet stay two.
    painter.setPen(look.Color.darker(150));
    painter.drawRect(rect);
}

void DrawBinWithoutWidth(QPainter& painter, const QRectF& place, BinState state)
{
    painter.setPen(QPen(LookOf(state).Color, 2, Qt::DashLine));
    const double x = place.center().x();
    painter.drawLine(QPointF(x, place.top()), QPointF(x, place.bottom()));
}

void DrawBinLegend(QPainter& painter, QPointF topLeft, const QPalette& palette)
{
    constexpr double gap = 4;
    const QFontMetrics font = painter.fontMetrics();
    const double swatch = font.ascent();
    double x = topLeft.x();
    const auto entry = [&](const char* text, const auto& draw) {
        draw(QRectF(x, topLeft.y() + 1, swatch, swatch));
        x += swatch + gap;
        painter.setPen(palette.color(QPalette::Text));
        painter.drawText(QPointF(x, topLeft.y() + font.ascent()), text);
        x += font.horizontalAdvance(text) + 4 * gap;
    };
    for (const StateLook& look : looks)
        entry(look.Legend, [&](const QRectF& rect) { FillBin(painter, rect, look.State); });
    entry("Without width",
          [&](const QRectF& rect) { DrawBinWithoutWidth(painter, rect, BinState::InOrder); });
}

} // namespace Tamrivo
