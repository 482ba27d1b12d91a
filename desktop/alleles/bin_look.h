#pragma once

#include "desktop/alleles/bin_shapes.h"

#include <QPointF>
#include <QRectF>

class QPainter;
class QPalette;

namespace Tamrivo
{

void FillBin(QPainter& painter, const QRectF& rect, BinState state);

/// A line in the middle of the place that a bin would take.
void DrawBinWithoutWidth(QPainter& painter, const QRectF& place, BinState state);

/// Tells what the looks mean, on one line.
void DrawBinLegend(QPainter& painter, QPointF topLeft, const QPalette& palette);

} // namespace Tamrivo
