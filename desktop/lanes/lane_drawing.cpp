#include "desktop/lanes/lane_drawing.h"

#include "desktop/common/dye_shade.h"
#include "desktop/common/text.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr int padding = 6;
constexpr int rowGap = 4;

int HeightOf(const Lane& lane, const QFontMetrics& font)
{
    const int rows = static_cast<int>(lane.Rows.size());
    return rows * (LaneDrawing::RowHeight(font) + rowGap) - rowGap + 2 * padding;
}

QColor Mixed(const QColor& ground, const QColor& color, double share)
{
    const auto mix = [share](int one, int other) {
        return static_cast<int>(one + (other - one) * share);
    };
    return {mix(ground.red(), color.red()), mix(ground.green(), color.green()),
            mix(ground.blue(), color.blue())};
}

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
void DrawName(QPainter& painter, const QString& name, const LaneBar& bar, const QColor& text,
              const QColor& halo)
{
    constexpr double edge = 4;
    const QFontMetrics font = painter.fontMetrics();
    const double inside = bar.Rect.width() - 2 * edge;
    const double beside = bar.FreeTo - bar.Rect.right() - 2 * edge;
    const double length = font.horizontalAdvance(name);
    const bool isInside = length <= inside || (length > beside && inside >= beside);
    const QString shown =
        font.elidedText(name, Qt::ElideRight, static_cast<int>(isInside ? inside : beside));
    if (shown != name && shown.size() < 2)
        return;
    const double left = isInside ? bar.Rect.center().x() - font.horizontalAdvance(shown) / 2.0
                                 : bar.Rect.right() + edge;
    const QPointF place(left, bar.Rect.center().y() + (font.ascent() - font.descent()) / 2.0);
    if (isInside)
    {
        QPainterPath outline;
        outline.addText(place, painter.font(), shown);
        painter.strokePath(outline, QPen(halo, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.setPen(text);
    painter.drawText(place, shown);
}

} // namespace

LaneDrawing::LaneDrawing(std::vector<LaneLocus> loci, LocusOverlaps overlaps, Dyes dyes)
    : m_loci(std::move(loci)),
      m_overlaps(std::move(overlaps)),
      m_dyes(std::move(dyes)),
      m_lanes(LayOutLanes(m_loci))
{
    if (m_loci.empty())
        return;
    m_low = std::ranges::min(m_loci, {}, &LaneLocus::From).From;
    m_high = std::ranges::max(m_loci, {}, &LaneLocus::To).To;
    const double edge = std::max(2.0, (m_high - m_low) * 0.02);
    m_low -= edge;
    m_high += edge;
}

int LaneDrawing::RowHeight(const QFontMetrics& font)
{
    return font.height() + 6;
}

int LaneDrawing::AxisHeight(const QFontMetrics& font)
{
    return font.height() + 10;
}

int LaneDrawing::LanesHeight(const QFontMetrics& font) const
{
    int height = 0;
    for (const Lane& lane : m_lanes)
        height += HeightOf(lane, font);
    return height;
}

QString LaneDrawing::TitleOf(const Lane& lane) const
{
    const auto dye = static_cast<std::size_t>(lane.DyeIndex);
    const bool isNamed = dye < m_dyes.All().size() && !m_dyes.All()[dye].Name.empty();
    return ToQString(DyeEntry(lane.DyeIndex) + " (" + m_dyes.ColorOf(lane.DyeIndex) +
                     (isNamed ? ", " + m_dyes.All()[dye].Name : "") + ")");
}

int LaneDrawing::TitleWidth(const QFontMetrics& font) const
{
    int width = 0;
    for (const Lane& lane : m_lanes)
        width = std::max(width, font.horizontalAdvance(TitleOf(lane)));
    return width + 2 * padding;
}

LengthAxis LaneDrawing::AxisIn(QSize size, const QFontMetrics& font) const
{
    return {m_low, m_high, static_cast<double>(TitleWidth(font)),
            static_cast<double>(size.width() - padding)};
}

std::vector<LaneBar> LaneDrawing::BarsInView(QSize size, int scrolled,
                                             const QFontMetrics& font) const
{
    constexpr double leastWidth = 2;
    std::vector<LaneBar> bars;
    const LengthAxis axis = AxisIn(size, font);
    const int bottom = size.height() - AxisHeight(font);
    const int rowHeight = RowHeight(font);
    const int step = rowHeight + rowGap;
    int laneTop = -scrolled;
    for (const Lane& lane : m_lanes)
    {
        const int top = laneTop + padding;
        laneTop += HeightOf(lane, font);
        const int rows = static_cast<int>(lane.Rows.size());
        const int first = std::max(0, -top / step);
        const int last = std::min(rows, bottom > top ? (bottom - top) / step + 1 : 0);
        for (int row = first; row < last; ++row)
        {
            double free = size.width() - padding;
            const auto& positions = lane.Rows[static_cast<std::size_t>(row)];
            for (auto position = positions.rbegin(); position != positions.rend(); ++position)
            {
                const double left = axis.X(m_loci[*position].From);
                const double width = std::max(leastWidth, axis.X(m_loci[*position].To) - left);
                bars.push_back({QRectF(left, top + row * step, width, rowHeight), *position, free});
                free = left;
            }
        }
    }
    return bars;
}

std::vector<std::size_t> LaneDrawing::InReadingOrder() const
{
    std::vector<std::size_t> order;
    for (const Lane& lane : m_lanes)
    {
        for (const auto& row : lane.Rows)
            order.insert(order.end(), row.begin(), row.end());
    }
    return order;
}

int LaneDrawing::TopOf(std::size_t locus, const QFontMetrics& font) const
{
    int laneTop = 0;
    for (const Lane& lane : m_lanes)
    {
        const auto row = std::ranges::find_if(lane.Rows, [locus](const auto& positions) {
            return std::ranges::find(positions, locus) != positions.end();
        });
        if (row != lane.Rows.end())
            return laneTop + padding +
                   static_cast<int>(row - lane.Rows.begin()) * (RowHeight(font) + rowGap);
        laneTop += HeightOf(lane, font);
    }
    return 0;
}

void LaneDrawing::Draw(QPainter& painter, QSize size, int scrolled, const QPalette& palette,
                       std::optional<std::size_t> focus) const
{
    const QFontMetrics font = painter.fontMetrics();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect({}, size), palette.color(QPalette::Base));
    const LengthAxis axis = AxisIn(size, font);
    const int axisTop = size.height() - AxisHeight(font);
    painter.setClipRect(0, 0, size.width(), axisTop);
    DrawGrounds(painter, size, scrolled, palette);
    painter.setClipping(false);
    axis.Draw(painter, palette, axisTop, 0);
    painter.setClipRect(0, 0, size.width(), axisTop);
    for (const LaneBar& bar : BarsInView(size, scrolled, font))
    {
        DrawBar(painter, bar, axis, palette);
        if (bar.Locus == focus)
        {
            painter.setPen(QPen(palette.color(QPalette::Text), 2, Qt::DotLine));
            painter.drawRect(bar.Rect.adjusted(-2, -2, 2, 2));
        }
    }
    painter.setClipping(false);
}

void LaneDrawing::DrawGrounds(QPainter& painter, QSize size, int scrolled,
                              const QPalette& palette) const
{
    const QFontMetrics font = painter.fontMetrics();
    const QColor text = palette.color(QPalette::Text);
    const QColor band = Mixed(palette.color(QPalette::Base), text, 0.05);
    int top = -scrolled;
    bool isBanded = true;
    for (const Lane& lane : m_lanes)
    {
        const int height = HeightOf(lane, font);
        if (isBanded)
            painter.fillRect(QRect(0, top, size.width(), height), band);
        isBanded = !isBanded;
        // In sight for as long as any row of the lane is.
        const int lineTop = std::clamp(0, top + padding, top + height - padding - RowHeight(font));
        painter.setPen(text);
        painter.drawText(QRect(padding, lineTop, TitleWidth(font), RowHeight(font)),
                         Qt::AlignVCenter | Qt::AlignLeft, TitleOf(lane));
        top += height;
    }
}

void LaneDrawing::DrawBar(QPainter& painter, const LaneBar& bar, const LengthAxis& axis,
                          const QPalette& palette) const
{
    const LaneLocus& locus = m_loci[bar.Locus];
    const bool isOverlapped = m_overlaps.IsOverlapped[bar.Locus];
    const QColor color = DyeShade(m_dyes, locus.DyeIndex, palette);
    const QColor ground =
        Mixed(palette.color(QPalette::Base), color, IsDarkTheme(palette) ? 0.35 : 0.2);
    painter.fillRect(bar.Rect, ground);

    auto stretch = std::ranges::lower_bound(
        m_overlaps.Shared, std::pair(locus.DyeIndex, locus.From), {},
        [](const SharedStretch& shared) { return std::pair(shared.DyeIndex, shared.To); });
    for (; stretch != m_overlaps.Shared.end() && stretch->DyeIndex == locus.DyeIndex &&
           stretch->From <= locus.To;
         ++stretch)
    {
        const double left = std::max(bar.Rect.left(), axis.X(stretch->From));
        const double right = std::min(bar.Rect.right(), axis.X(stretch->To));
        const double least = std::max(left + 2, right);
        Hatch(painter, {left, bar.Rect.top(), least - left, bar.Rect.height()}, color);
    }
    painter.setPen(QPen(color, isOverlapped ? 3 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar.Rect);
    DrawName(painter, ToQString(locus.Tag), bar, palette.color(QPalette::Text), ground);
}

} // namespace Tamrivo
