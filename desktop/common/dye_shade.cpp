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

QIcon DyeSwatch(const Dyes& dyes, std::int32_t dyeIndex, const QPalette& palette, int size)
{
    QPixmap square(size, size);
    square.fill(DyeShade(dyes, dyeIndex, palette));
    QIcon swatch;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
        swatch.addPixmap(square, mode);
    return swatch;
}

} // namespace Tamrivo
