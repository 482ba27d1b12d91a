#pragma once

#include <cstdint>
#include <optional>

class QFont;
class QPalette;
class QWidget;

namespace Tamrivo
{

class Control;
struct Font;

/// Shows or hides the widget as the control says, and greys it when a person can't reach it: what
/// would be refused looks so.
void ApplyReach(QWidget& widget, const Control& control);

/// Gives the widget what a declared font changes against the font of the form, in which sizes are
/// declared relative to 8.25 points.
void ApplyFont(QWidget& widget, const std::optional<Font>& font);

/// The palette of a field with this background, a `Color`; the text stays readable on it in every
/// theme.
QPalette FieldPalette(std::int32_t backColor);

} // namespace Tamrivo
