#pragma once

#include <QPointF>
#include <QString>

#include <vector>

class QPainter;
class QPalette;

namespace Tamrivo
{

/// The name of an allele above its bin.
struct BinName
{
    QPointF Foot; ///< The middle of its lower end.
    QString Text;
    bool IsMarked; ///< Comes before others where there isn't room for all.
};

/// Draws the names, which stand by size: upright while there is room for all of them between
/// neighbours, else turned, and then as many as fit.
void DrawBinNames(QPainter& painter, const std::vector<BinName>& names, const QPalette& palette);

} // namespace Tamrivo
