#pragma once

#include "host/loci/dyes.h"

#include <QColor>
#include <QPalette>

namespace Tamrivo
{

bool IsDarkTheme(const QPalette& palette);

/// The shade of a dye's colour that is read on the ground of the palette. A dye that the store
/// doesn't have is drawn in the colour of text. What differs in state, not in dye, differs in
/// pattern and outline.
QColor DyeShade(const Dyes& dyes, std::int32_t dyeIndex, const QPalette& palette);

} // namespace Tamrivo
