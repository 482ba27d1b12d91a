#pragma once

#include <QString>

#include <cstdint>

class QColor;
class QPainter;
class QPalette;
class QRectF;

namespace Tamrivo
{

class LengthAxis;

/// What the mouse would make of a bin, before it does; lengths in nt.
struct BinDraft
{
    std::int32_t Row; ///< Whose bin it would be, counted from 1; 0: a new allele's.
    double From;
    double To;
    double Size;
    QString Text; ///< The values, for people.
};

/// Draws the bin with dashed outlines between upper and lower end of `band`, and the values at the
/// upper edge of the picture, above the bin as far as the band's ends allow.
void DrawDraft(QPainter& painter, const LengthAxis& axis, const QRectF& band, const BinDraft& draft,
               const QColor& shade, const QPalette& palette);

} // namespace Tamrivo
