#include "desktop/alleles/bin_look.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// How a state is shown.
struct StateLook
{
    BinState State;
    Qt::BrushStyle Pattern;
    Qt::PenStyle Outline;
    double OutlineWidth;
};

constexpr StateLook looks[] = {
    {BinState::InOrder, Qt::SolidPattern, Qt::SolidLine, 1},
    {BinState::Overlapping, Qt::BDiagPattern, Qt::SolidLine, 2},
    {BinState::OutOfRange, Qt::DiagCrossPattern, Qt::DashLine, 1.5},
};

const StateLook& LookOf(BinState state)
{
    return *std::ranges::find(looks, state, &StateLook::State);
}

void DrawFilled(QPainter& painter, const QRectF& place, const BinShape& bin, const QColor& shade)
{
    const StateLook& look = LookOf(bin.State);
    const bool isSolid = look.Pattern == Qt::SolidPattern;
    if (!bin.IsVirtual && !isSolid)
    {
        QColor ground = shade;
        ground.setAlphaF(0.3F);
        painter.fillRect(place, ground);
    }
    if (!bin.IsVirtual || !isSolid)
        painter.fillRect(place, QBrush(shade, look.Pattern));
    painter.setBrush(Qt::NoBrush);
    // Bins that meet stay two.
    painter.setPen(QPen(isSolid && !bin.IsVirtual ? shade.darker(150) : shade, look.OutlineWidth,
                        look.Outline));
    painter.drawRect(place);
}

/// An entry of the legend: which bins it stands for, and one of them.
struct LegendEntry
{
    const char* Text;
    bool (*IsOf)(const BinShape&);
    BinShape Sample;
};

BinShape SampleBin(BinState state, double width = 1, bool isVirtual = false)
{
    return {1, 0, width, 0, state, isVirtual, {}};
}

std::vector<LegendEntry> LegendEntries()
{
    return {
        {"Overlapping", [](const BinShape& bin) { return bin.State == BinState::Overlapping; },
         SampleBin(BinState::Overlapping)},
        {"Outside the range", [](const BinShape& bin) { return bin.State == BinState::OutOfRange; },
         SampleBin(BinState::OutOfRange)},
        {"Virtual", [](const BinShape& bin) { return bin.IsVirtual; },
         SampleBin(BinState::InOrder, 1, true)},
        {"Without width", [](const BinShape& bin) { return !bin.HasWidth(); },
         SampleBin(BinState::InOrder, 0)},
    };
}

} // namespace

void DrawBin(QPainter& painter, const QRectF& place, const BinShape& bin, const QColor& shade)
{
    if (bin.HasWidth())
        return DrawFilled(painter, place, bin, shade);
    painter.setPen(QPen(shade, 2, Qt::DashLine));
    const double x = place.center().x();
    painter.drawLine(QPointF(x, place.top()), QPointF(x, place.bottom()));
}

void DrawBinLegend(QPainter& painter, QPointF topLeft, std::span<const BinShape> bins,
                   const QString& dye, const QColor& shade, const QPalette& palette)
{
    constexpr double gap = 4;
    const QFontMetrics font = painter.fontMetrics();
    const double swatch = font.ascent();
    double x = topLeft.x();
    const auto add = [&](const QString& text, const BinShape& sample) {
        DrawBin(painter, QRectF(x, topLeft.y() + 1, swatch, swatch), sample, shade);
        x += swatch + gap;
        painter.setPen(palette.color(QPalette::Text));
        painter.drawText(QPointF(x, topLeft.y() + font.ascent()), text);
        x += font.horizontalAdvance(text) + 4 * gap;
    };
    add(dye, SampleBin(BinState::InOrder));
    for (const LegendEntry& entry : LegendEntries())
    {
        if (std::ranges::any_of(bins, entry.IsOf))
            add(entry.Text, entry.Sample);
    }
}

} // namespace Tamrivo
