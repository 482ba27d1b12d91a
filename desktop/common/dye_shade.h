#pragma once

#include "host/loci/dyes.h"

#include <QColor>
#include <QIcon>
#include <QPalette>

namespace Tamrivo
{

bool IsDarkTheme(const QPalette& palette);

/// The shade of a dye's colour that is read on the ground of the palette. A dye that the store
/// doesn't have is drawn in the colour of text. What differs in state, not in dye, differs in
/// pattern and outline.
QColor DyeShade(const Dyes& dyes, std::int32_t dyeIndex, const QPalette& palette);

/// A square of that shade, which stays as it is in a row that is selected.
QIcon DyeSwatch(const Dyes& dyes, std::int32_t dyeIndex, const QPalette& palette, int size);

} // namespace Tamrivo
