#include "desktop/common/dye_shade.h"

namespace Tamrivo
{

bool IsDarkTheme(const QPalette& palette)
{
    return qGray(palette.color(QPalette::Base).rgb()) < 128;
}

QColor DyeShade(const Dyes& dyes, std::int32_t dyeIndex, const QPalette& palette)
{
    const KnownColor* color = FindColor(dyes.ColorOf(dyeIndex));
    if (color == nullptr)
        return palette.color(QPalette::Text);
    return QColor::fromRgb(IsDarkTheme(palette) ? color->OnDark : color->OnLight);
}

} // namespace Tamrivo
