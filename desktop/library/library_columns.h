#pragma once

#include "host/library/library.h"

#include <QString>

#include <span>

namespace Tamrivo
{

/// A column of the table of loci.
struct LibraryColumn
{
    const char* Title;
    const char* Tip;
    bool IsNumber; ///< Stands at the right.
    bool IsShown;  ///< Until the person has chosen columns.
    QString (*Text)(const Library& library, const LibraryLocus& locus);
    /// Negative, 0 or positive; null for the tag, whose order the model knows.
    int (*Compare)(const Library& library, const LibraryLocus& left, const LibraryLocus& right);
};

/// From left to right; the tag comes first.
std::span<const LibraryColumn> LibraryColumns();
inline constexpr int TagColumn = 0;
inline constexpr int DyeColumn = 1;

} // namespace Tamrivo
