#include "desktop/alleles/observed_look.h"

#include "desktop/common/length_axis.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <map>

namespace Tamrivo
{

LengthRange LengthsOnShow(const std::optional<LengthRange>& range, std::span<const BinShape> bins,
                          const ObservedSizes* observed)
{
    LengthRange shown = range.value_or(LengthRange{0, 1});
    const auto include = [&shown](double length) {
        shown.From = std::min(shown.From, length);
        shown.To = std::max(shown.To, length);
    };
    for (const BinShape& bin : bins)
    {
        for (const double length : {bin.From, bin.Size, bin.To})
            include(length);
    }
    if (observed != nullptr)
    {
        include(observed->Sizes.front());
        include(observed->Sizes.back());
    }
    const double room = std::max(1.0, (shown.To - shown.From) * 0.02);
    return {shown.From - room, shown.To + room};
}

void CountIn(std::span<const BinShape> bins, ObservedSizes& observed)
{
    observed.Counts.assign(bins.size(), 0);
    observed.Outside.clear();
    for (const double size : observed.Sizes)
    {
        bool isInside = false;
        for (std::size_t at = 0; at < bins.size(); ++at)
        {
            if (bins[at].From > size || size > bins[at].To)
                continue;
            ++observed.Counts[at];
            isInside = true;
        }
        if (!isInside)
            observed.Outside.push_back(size);
    }
}

void DrawHistogram(QPainter& painter, const LengthAxis& axis, const QRectF& place,
                   const ObservedSizes& observed, const QPalette& palette)
{
    constexpr double column = 0.2; // nt
    std::map<long, int> columns;
    for (const double size : observed.Sizes)
        ++columns[std::lround(size / column)];
    int most = 1;
    for (const auto& [number, count] : columns)
        most = std::max(most, count);
    QColor color = palette.color(QPalette::Text);
    color.setAlphaF(0.35F);
    for (const auto& [number, count] : columns)
    {
        const double middle = static_cast<double>(number) * column;
        const double left = axis.X(middle - column / 2);
        const double width = std::max(1.0, axis.X(middle + column / 2) - left);
        const double height = place.height() * count / most;
        painter.fillRect(QRectF(left, place.bottom() - height, width, height), color);
    }
}

void DrawProposal(QPainter& painter, const LengthAxis& axis, const QRectF& place,
                  const ObservedSizes& observed, const QPalette& palette)
{
    constexpr double share = 0.3; // of the height
    constexpr double mark = 4;    // pixels
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Text), 2, Qt::DashLine));
    const double height = place.height() * share;
    for (const LengthRange& bin : observed.Proposed)
    {
        const double left = axis.X(bin.From);
        painter.drawRect(QRectF(left, place.bottom() - height, axis.X(bin.To) - left, height));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Text));
    for (const double size : observed.Outside)
    {
        const double x = axis.X(size);
        QPainterPath arrow(QPointF(x, place.bottom() - mark));
        arrow.lineTo(x - mark, place.bottom() + mark);
        arrow.lineTo(x + mark, place.bottom() + mark);
        painter.drawPath(arrow);
    }
    painter.restore();
}

void DrawCount(QPainter& painter, const QRectF& bin, std::size_t count, const QPalette& palette)
{
    if (count == 0)
        return;
    const QString text = QString::number(count);
    const QFontMetrics font = painter.fontMetrics();
    const bool isTurned = font.horizontalAdvance(text) > bin.width();
    painter.setPen(palette.color(QPalette::Text));
    painter.save();
    painter.translate(bin.center().x(), bin.bottom() - 3);
    if (isTurned)
    {
        painter.rotate(-90);
        painter.drawText(QPointF(0, font.ascent() / 2.0 - 1), text);
    }
    else
        painter.drawText(QPointF(-font.horizontalAdvance(text) / 2.0, 0), text);
    painter.restore();
}

} // namespace Tamrivo
