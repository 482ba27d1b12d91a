#pragma once

#include "desktop/alleles/bin_shapes.h"

#include <QColor>
#include <QPointF>
#include <QRectF>

#include <span>

class QPainter;
class QPalette;

namespace Tamrivo
{

/// Draws a bin in the shade of its dye. Pattern and outline tell its state: hatched and thick where
/// it overlaps, crossed and dashed outside the range, hollow when virtual, and a dashed line in the
/// middle of `place` when it has no width.
void DrawBin(QPainter& painter, const QRectF& place, const BinShape& bin, const QColor& shade);

/// Tells the name of the dye, and what those looks mean that the bins have, on one line.
void DrawBinLegend(QPainter& painter, QPointF topLeft, std::span<const BinShape> bins,
                   const QString& dye, const QColor& shade, const QPalette& palette);

} // namespace Tamrivo
