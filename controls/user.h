#pragma once

#include "controls/buttons.h"
#include "controls/frames.h"
#include "controls/lists.h"
#include "controls/menu.h"
#include "controls/spin_button.h"
#include "controls/text_field.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

/// What a person can do with the controls. Every front end acts through these operations alone, so
/// that all of them refuse, filter and answer alike.
namespace Tamrivo::User
{

/// A person can't do that; the message says why.
class Refusal : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Why a person can't reach the control: it, or something that it lies in, is disabled or hidden.
/// None when it can be reached. A tab that isn't on show doesn't count.
std::optional<std::string> Obstacle(const Control& control);

/// Raises `Refusal` when there is an `Obstacle`.
void RequireReach(const Control& control);

/// Part of a field's text, in characters counted from 0. Past the end counts as the end.
struct Span
{
    std::size_t Start = 0;
    std::size_t Length = 0;
};

/// The caret behind the last character.
inline constexpr Span AtEnd{static_cast<std::size_t>(-1), 0};

inline constexpr std::int16_t Backspace = 8;

// Each operation raises `Refusal` when the control can't be reached. Failures of event handlers
// pass through.

/// Presses one key while `selection` is selected. A character that the field's filter lets through
/// replaces the selection, unless the text would be longer than `MaxLength`; Backspace removes the
/// selection or the character before it; other control keys do nothing. Gives the caret's place.
std::size_t Press(TextField& field, char32_t character, Span selection = AtEnd);

/// Presses a letter together with the control key: 1 for Ctrl+A to 26 for Ctrl+Z. Gives whether the
/// field's filter lets the key through to its ordinary effect, which the front end brings about.
bool PressControlKey(TextField& field, std::int16_t code);

/// Types the characters one by one at the end of the field.
void Type(TextField& field, std::string_view text);

/// Replaces the selection at once, without key presses. Only the first line is taken, and no more
/// than `MaxLength` has room for. Gives the caret's place.
std::size_t Paste(TextField& field, std::string_view text, Span selection);

/// Replaces the whole content at once.
void Paste(TextField& field, std::string_view text);

/// Takes the focus away from the field.
void Leave(TextField& field);

void Click(CheckBox& box);
void Click(OptionButton& option);
void Click(CommandButton& button);
/// Picks an item of a menu. A separator can't be picked.
void Click(MenuItem& item);

/// Chooses the entry with the text. Raises `Refusal` when there is none.
void Choose(ComboBox& combo, const std::string& text);
void Choose(ListBox& list, const std::string& text);
/// Chooses the entry at a position.
void Choose(ComboBox& combo, std::int32_t position);
void Choose(ListBox& list, std::int32_t position);

void Up(SpinButton& spin);
void Down(SpinButton& spin);

/// Turns to a tab, counted from 0.
void Turn(TabStrip& strip, int tab);

} // namespace Tamrivo::User
