#pragma once

#include "desktop/common/length_axis.h"
#include "desktop/lanes/lane_details.h"
#include "desktop/lanes/locus_overlaps.h"

#include <QColor>
#include <QPalette>
#include <QRectF>
#include <QString>

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

/// What a bar looks like besides its place. State shows by pattern and outline, the dye by colour.
struct BarLook
{
    QString Name;
    QColor Color; ///< Of the dye.
    std::vector<SharedStretch> Shared;
    const LaneDetails* Details = nullptr; ///< Null: not known yet, or there is no room.
    bool IsOverlapped = false;
    bool IsChosen = false;
    bool HasFocus = false;
};

/// Draws a bar as far as it is within `room`.
void DrawLaneBar(QPainter& painter, const LaneBar& bar, const BarLook& look, const LengthAxis& axis,
                 const QRectF& room, const QPalette& palette);

/// Whether ticks of so many alleles can be told apart in a bar.
bool HasRoomForTicks(const LaneBar& bar, std::size_t alleles);

/// A colour between two.
QColor Mixed(const QColor& ground, const QColor& color, double share);

} // namespace Tamrivo
