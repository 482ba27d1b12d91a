#pragma once

#include "host/alleles/allele_problems.h"

#include <QString>

#include <vector>

namespace Tamrivo
{

/// A stretch of fragment lengths, nt.
struct LengthRange
{
    double From;
    double To;

    bool operator==(const LengthRange&) const = default;
};

/// What the picture tells of a bin by pattern and outline.
enum class BinState
{
    InOrder,
    Overlapping, ///< With another bin.
    OutOfRange,  ///< The allele's size lies outside the fragment range.
};

/// A bin in the picture, lengths in nt.
struct BinShape
{
    std::int32_t Row; ///< Counted from 1.
    double From;
    double To;
    double Size;
    BinState State;
    bool IsVirtual; ///< The allele isn't in the ladder.
    QString Name;

    bool HasWidth() const { return From < To; }
};

/// The bins of a list in the order of its rows. A bin whose ends stand the wrong way round is shown
/// between them all the same.
/// @param range the fragment range that they should lie in
std::vector<BinShape> ShapesOf(const AlleleRows& rows, const LengthRange& range);

/// What a bin's shape means, in words.
QString Describe(const BinShape& shape);

} // namespace Tamrivo
