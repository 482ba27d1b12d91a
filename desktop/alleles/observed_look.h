#pragma once

#include "desktop/alleles/bin_shapes.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

class QPainter;
class QPalette;
class QRectF;

namespace Tamrivo
{

class LengthAxis;

/// Observed sizes over the bins of a locus, nt.
struct ObservedSizes
{
    std::vector<double> Sizes;         ///< Ascending.
    std::vector<std::size_t> Counts;   ///< Of each bin, those that it holds.
    std::vector<double> Outside;       ///< Those that no bin holds.
    std::vector<LengthRange> Proposed; ///< Bins that the sizes propose.
};

/// Counts the sizes in the bins. A size at a limit is inside.
void CountIn(std::span<const BinShape> bins, ObservedSizes& observed);

/// The lengths that a picture's axis spans: the range, all bins and sizes, and some room beside
/// them.
/// @param observed null when there are none
LengthRange LengthsOnShow(const std::optional<LengthRange>& range, std::span<const BinShape> bins,
                          const ObservedSizes* observed);

/// Draws how many sizes there are along the axis, as columns above the place's lower edge.
void DrawHistogram(QPainter& painter, const LengthAxis& axis, const QRectF& place,
                   const ObservedSizes& observed, const QPalette& palette);

/// Draws the proposed bins as outlines from the place's lower edge on, and a mark under each size
/// that no bin holds.
void DrawProposal(QPainter& painter, const LengthAxis& axis, const QRectF& place,
                  const ObservedSizes& observed, const QPalette& palette);

/// Writes the number of sizes into a bin, turned where it is narrow.
void DrawCount(QPainter& painter, const QRectF& bin, std::size_t count, const QPalette& palette);

} // namespace Tamrivo
