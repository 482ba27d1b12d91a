#include "desktop/lanes/lane_drawing.h"

#include "desktop/common/dye_shade.h"
#include "desktop/common/text.h"

#include <QPainter>

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr int padding = 6;
constexpr int rowGap = 4;

int SwatchSize(const QFontMetrics& font)
{
    return font.ascent();
}

int HeightOf(const Lane& lane, const QFontMetrics& font)
{
    const int rows = static_cast<int>(lane.Rows.size());
    return rows * (LaneDrawing::RowHeight(font) + rowGap) - rowGap + 2 * padding;
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
    const double low = std::ranges::min(m_loci, {}, &LaneLocus::From).From;
    const double high = std::ranges::max(m_loci, {}, &LaneLocus::To).To;
    const double edge = std::max(2.0, (high - low) * 0.02);
    m_whole = m_inView = {low - edge, high + edge};
}

void LaneDrawing::SetInView(LaneStretch stretch)
{
    constexpr double least = 4;
    const double span =
        std::clamp(stretch.High - stretch.Low, std::min(least, m_whole.High - m_whole.Low),
                   m_whole.High - m_whole.Low);
    const double low = std::clamp(stretch.Low, m_whole.Low, m_whole.High - span);
    m_inView = {low, low + span};
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
    return ToQString(m_dyes.TitleOf(lane.DyeIndex));
}

int LaneDrawing::TitleWidth(const QFontMetrics& font) const
{
    int width = 0;
    for (const Lane& lane : m_lanes)
        width = std::max(width, font.horizontalAdvance(TitleOf(lane)));
    return SwatchSize(font) + width + 3 * padding;
}

LengthAxis LaneDrawing::AxisIn(QSize size, const QFontMetrics& font) const
{
    return {m_inView.Low, m_inView.High, static_cast<double>(TitleWidth(font)),
            static_cast<double>(size.width() - padding)};
}

std::vector<LaneBar> LaneDrawing::BarsInView(QSize size, int scrolled,
                                             const QFontMetrics& font) const
{
    std::vector<LaneBar> bars;
    const LengthAxis axis = AxisIn(size, font);
    const int bottom = size.height() - AxisHeight(font);
    const int rowHeight = RowHeight(font);
    const int step = rowHeight + rowGap;
    const double left = axis.X(m_inView.Low);
    const double width = axis.X(m_inView.High) - left;
    int laneTop = -scrolled;
    for (const Lane& lane : m_lanes)
    {
        const int top = laneTop + padding;
        laneTop += HeightOf(lane, font);
        const int rows = static_cast<int>(lane.Rows.size());
        const int first = std::max(0, -top / step);
        const int last = std::min(rows, bottom > top ? (bottom - top) / step + 1 : 0);
        for (int row = first; row < last; ++row)
            AddBars(lane.Rows[static_cast<std::size_t>(row)],
                    QRectF(left, top + row * step, width, rowHeight), axis, bars);
    }
    return bars;
}

void LaneDrawing::AddBars(const std::vector<std::size_t>& row, const QRectF& place,
                          const LengthAxis& axis, std::vector<LaneBar>& bars) const
{
    constexpr double leastWidth = 2;
    double free = place.right();
    for (auto position = row.rbegin(); position != row.rend(); ++position)
    {
        const double left = axis.X(m_loci[*position].From);
        const double width = std::max(leastWidth, axis.X(m_loci[*position].To) - left);
        if (left < place.right() && left + width > place.left())
            bars.push_back({QRectF(left, place.top(), width, place.height()), *position, free});
        free = left;
    }
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
                       const LaneMarks& marks) const
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

    const double left = axis.X(m_inView.Low);
    const QRectF room(left - 2, 0, axis.X(m_inView.High) - left + 4, axisTop);
    painter.setClipRect(room);
    for (const LaneBar& bar : BarsInView(size, scrolled, font))
        DrawLaneBar(painter, bar, LookOf(bar.Locus, marks, palette), axis, room, palette);
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
        const int swatch = SwatchSize(font);
        painter.fillRect(QRect(padding, lineTop + (RowHeight(font) - swatch) / 2, swatch, swatch),
                         DyeShade(m_dyes, lane.DyeIndex, palette));
        painter.setPen(text);
        painter.drawText(QRect(2 * padding + swatch, lineTop, TitleWidth(font), RowHeight(font)),
                         Qt::AlignVCenter | Qt::AlignLeft, TitleOf(lane));
        top += height;
    }
}

BarLook LaneDrawing::LookOf(std::size_t position, const LaneMarks& marks,
                            const QPalette& palette) const
{
    const LaneLocus& locus = m_loci[position];
    BarLook look;
    look.Name = ToQString(locus.Tag);
    look.Color = DyeShade(m_dyes, locus.DyeIndex, palette);
    look.Details = marks.DetailsOf ? marks.DetailsOf(position) : nullptr;
    look.IsOverlapped = m_overlaps.IsOverlapped[position];
    look.IsChosen = marks.Chosen.contains(position);
    look.HasFocus = marks.Focus == position;
    auto stretch = std::ranges::lower_bound(
        m_overlaps.Shared, std::pair(locus.DyeIndex, locus.From), {},
        [](const SharedStretch& shared) { return std::pair(shared.DyeIndex, shared.To); });
    for (; stretch != m_overlaps.Shared.end() && stretch->DyeIndex == locus.DyeIndex &&
           stretch->From <= locus.To;
         ++stretch)
        look.Shared.push_back(*stretch);
    return look;
}

} // namespace Tamrivo
