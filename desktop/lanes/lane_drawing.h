#pragma once

#include "desktop/common/length_axis.h"
#include "desktop/lanes/lane_bar.h"
#include "desktop/lanes/lane_order.h"
#include "host/loci/dyes.h"

#include <QFontMetrics>
#include <QPalette>
#include <QSize>

#include <functional>
#include <optional>
#include <set>
#include <vector>

class QPainter;

namespace Tamrivo
{

/// Lengths that are in view, nt.
struct LaneStretch
{
    double Low = 0;
    double High = 1;
};

/// What of the loci is marked or shown in detail. Positions in the list of loci.
struct LaneMarks
{
    std::optional<std::size_t> Focus = {};
    std::set<std::size_t> Chosen = {};
    /// Null for a locus whose details aren't known.
    std::function<const LaneDetails*(std::size_t locus)> DetailsOf = {};
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
    const Dyes& LabDyes() const { return m_dyes; }

    /// All lengths that the loci have, with a margin.
    LaneStretch Whole() const { return m_whole; }
    LaneStretch InView() const { return m_inView; }
    /// Shows some of the lengths: at least a few nt, and nothing past `Whole`.
    void SetInView(LaneStretch stretch);

    /// Height of all lanes.
    static int AxisHeight(const QFontMetrics& font);
    int LanesHeight(const QFontMetrics& font) const;
    static int RowHeight(const QFontMetrics& font);

    /// Draws what is in view.
    void Draw(QPainter& painter, QSize size, int scrolled, const QPalette& palette,
              const LaneMarks& marks = {}) const;
    /// The loci as they stand from the top to the bottom and, in a row, from left to right.
    std::vector<std::size_t> InReadingOrder() const;
    /// Top of a locus's row, from the top of the lanes.
    int TopOf(std::size_t locus, const QFontMetrics& font) const;
    /// The bars that are in view, at least in part.
    std::vector<LaneBar> BarsInView(QSize size, int scrolled, const QFontMetrics& font) const;
    LengthAxis AxisIn(QSize size, const QFontMetrics& font) const;

private:
    QString TitleOf(const Lane& lane) const;
    int TitleWidth(const QFontMetrics& font) const;
    void DrawGrounds(QPainter& painter, QSize size, int scrolled, const QPalette& palette) const;
    void AddBars(const std::vector<std::size_t>& row, const QRectF& place, const LengthAxis& axis,
                 std::vector<LaneBar>& bars) const;
    BarLook LookOf(std::size_t locus, const LaneMarks& marks, const QPalette& palette) const;

    std::vector<LaneLocus> m_loci;
    LocusOverlaps m_overlaps;
    Dyes m_dyes;
    std::vector<Lane> m_lanes;
    LaneStretch m_whole;
    LaneStretch m_inView;
};

} // namespace Tamrivo
