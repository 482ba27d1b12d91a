#pragma once

#include <QColor>

namespace Tamrivo
{

/// Colours that people with any kind of colour blindness tell apart (Okabe and Ito, 2008). What
/// differs in meaning differs in pattern as well.
namespace SafeColor
{
inline constexpr QColor Blue{0, 114, 178};
inline constexpr QColor SkyBlue{86, 180, 233};
inline constexpr QColor Orange{230, 159, 0};
inline constexpr QColor Vermillion{213, 94, 0};
} // namespace SafeColor

} // namespace Tamrivo
