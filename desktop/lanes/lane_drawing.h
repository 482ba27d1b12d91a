#pragma once

#include "desktop/common/length_axis.h"
#include "desktop/lanes/lane_order.h"
#include "host/loci/dyes.h"

#include <QFontMetrics>
#include <QPalette>
#include <QRectF>
#include <QSize>

#include <optional>
#include <vector>

class QPainter;

namespace Tamrivo
{

/// The bar of a locus.
struct LaneBar
{
    QRectF Rect;
    std::size_t Locus; ///< Position in the list of loci.
    double FreeTo;     ///< Where the next bar of the row begins, or the row ends.
};

/// Loci as lanes of bars over the fragment length. Measures are pixels and follow the font. A lane
/// may have more rows than there is room for: the lanes are then seen through a window, which
/// begins `scrolled` pixels below their top. The axis stays at the bottom.
class LaneDrawing
{
public:
    /// @param dyes those of the store, whose colours the bars have
    LaneDrawing(std::vector<LaneLocus> loci, LocusOverlaps overlaps, Dyes dyes = {});

    const std::vector<LaneLocus>& Loci() const { return m_loci; }
    const LocusOverlaps& Overlaps() const { return m_overlaps; }

    /// Height of all lanes.
    static int AxisHeight(const QFontMetrics& font);
    int LanesHeight(const QFontMetrics& font) const;
    static int RowHeight(const QFontMetrics& font);

    /// Draws what is in view, with a frame around the locus that has the focus, if any.
    void Draw(QPainter& painter, QSize size, int scrolled, const QPalette& palette,
              std::optional<std::size_t> focus = {}) const;
    /// The loci as they stand from the top to the bottom and, in a row, from left to right.
    std::vector<std::size_t> InReadingOrder() const;
    /// Top of a locus's row, from the top of the lanes.
    int TopOf(std::size_t locus, const QFontMetrics& font) const;
    /// The bars that are in view, at least in part.
    std::vector<LaneBar> BarsInView(QSize size, int scrolled, const QFontMetrics& font) const;

private:
    LengthAxis AxisIn(QSize size, const QFontMetrics& font) const;
    QString TitleOf(const Lane& lane) const;
    int TitleWidth(const QFontMetrics& font) const;
    void DrawGrounds(QPainter& painter, QSize size, int scrolled, const QPalette& palette) const;
    void DrawBar(QPainter& painter, const LaneBar& bar, const LengthAxis& axis,
                 const QPalette& palette) const;

    std::vector<LaneLocus> m_loci;
    LocusOverlaps m_overlaps;
    Dyes m_dyes;
    std::vector<Lane> m_lanes;
    double m_low = 0;
    double m_high = 1;
};

} // namespace Tamrivo
