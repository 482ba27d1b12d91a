#include "desktop/alleles/bin_names.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <limits>
#include <utility>

namespace Tamrivo
{

namespace
{

bool NeedTurning(const std::vector<BinName>& names, const QFontMetrics& font)
{
    constexpr double apart = 4;
    double room = std::numeric_limits<double>::max();
    double longest = 0;
    for (std::size_t at = 0; at < names.size(); ++at)
    {
        longest = std::max<double>(longest, font.horizontalAdvance(names[at].Text));
        if (at > 0)
            room = std::min(room, names[at].Foot.x() - names[at - 1].Foot.x());
    }
    return longest + apart > room;
}

void DrawBinName(QPainter& painter, const BinName& name, bool isTurned)
{
    const QFontMetrics font = painter.fontMetrics();
    painter.save();
    painter.translate(name.Foot);
    if (isTurned)
    {
        painter.rotate(-90);
        painter.drawText(QPointF(0, font.ascent() / 2.0 - 1), name.Text);
    }
    else
        painter.drawText(QPointF(-font.horizontalAdvance(name.Text) / 2.0, 0), name.Text);
    painter.restore();
}

} // namespace

void DrawBinNames(QPainter& painter, const std::vector<BinName>& names, const QPalette& palette)
{
    const QFontMetrics font = painter.fontMetrics();
    const bool isTurned = NeedTurning(names, font);
    painter.setPen(palette.color(QPalette::Text));
    std::vector<std::pair<double, double>> taken; // Pixels, from and to.
    for (const bool isMarked : {true, false})
    {
        double free = -1;
        for (const BinName& name : names)
        {
            if (name.IsMarked != isMarked)
                continue;
            const double half =
                (isTurned ? font.height() : font.horizontalAdvance(name.Text)) / 2.0;
            const double from = name.Foot.x() - half;
            const double to = name.Foot.x() + half;
            const bool meetsMarked =
                !isMarked && std::ranges::any_of(taken, [from, to](const auto& other) {
                    return from < other.second && other.first < to;
                });
            if (from < free || meetsMarked)
                continue;
            free = to;
            if (isMarked)
                taken.emplace_back(from, to);
            DrawBinName(painter, name, isTurned);
        }
    }
}

} // namespace Tamrivo
