#include "controls/user.h"

#include "controls/user_control.h"
#include "core/text.h"

#include <algorithm>

namespace Tamrivo::User
{

namespace
{

/// Why the control's own state keeps a person away.
std::optional<std::string> OwnObstacle(const Control& control)
{
    if (!control.Visible())
        return "hidden";
    if (!control.Enabled())
        return "disabled";
    return std::nullopt;
}

/// The code that a key handler sees. Past 16 bits it is the first half of the character's UTF-16
/// form, which no filter takes for a letter or a digit.
std::int16_t KeyCode(char32_t character)
{
    constexpr char32_t firstOfPairs = 0x10000;
    const char32_t code =
        character < firstOfPairs ? character : 0xD800U + ((character - firstOfPairs) >> 10U);
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(code));
}

bool IsControlCode(char32_t character)
{
    return character < U' ' || character == 0x7F;
}

/// A field's text while it is edited by hand.
class Edit
{
public:
    Edit(TextField& field, Span selection) : m_field(field), m_text(Decode(field.Text()))
    {
        m_start = std::min(selection.Start, m_text.size());
        m_length = std::min(selection.Length, m_text.size() - m_start);
    }

    /// Characters that the field still has room for once the selection is gone.
    std::size_t Room() const
    {
        if (m_field.MaxLength() == 0)
            return std::u32string::npos;
        const auto limit = static_cast<std::size_t>(m_field.MaxLength());
        const std::size_t kept = m_text.size() - m_length;
        return kept < limit ? limit - kept : 0;
    }

    std::size_t Replace(std::u32string_view characters)
    {
        m_text.replace(m_start, m_length, characters);
        m_field.SetText(Encode(m_text));
        return m_start + characters.size();
    }

    std::size_t EraseBackwards()
    {
        if (m_length == 0 && m_start > 0)
        {
            --m_start;
            m_length = 1;
        }
        return Replace({});
    }

    std::size_t Caret() const { return m_start + m_length; }

private:
    TextField& m_field;
    std::u32string m_text;
    std::size_t m_start;
    std::size_t m_length;
};

template <class List>
void ChooseText(List& list, const std::string& text)
{
    RequireReach(list);
    for (std::int32_t i = 0; i < list.ListCount(); ++i)
    {
        if (list.List(i) == text)
            return Choose(list, i);
    }
    throw Refusal(list.Name() + " has no entry \"" + text + "\"");
}

void RequirePosition(const EntryList& list, std::int32_t position)
{
    if (position < 0 || position >= list.ListCount())
        throw Refusal(list.Name() + " has no entry at position " + std::to_string(position));
}

} // namespace

std::optional<std::string> Obstacle(const Control& control)
{
    const auto own = OwnObstacle(control);
    if (own)
        return control.Name() + " is " + *own;

    const Container* container = &control.Parent();
    while (const Control* outer = container->AsControl())
    {
        // A menu is shown on demand, whatever its mark in the form.
        const bool isMenu = dynamic_cast<const Menu*>(outer) != nullptr;
        if (const auto obstacle = isMenu ? std::nullopt : OwnObstacle(*outer))
            return control.Name() + " is in " + outer->Name() + ", which is " + *obstacle;
        container = &outer->Parent();
    }
    const auto& form = dynamic_cast<const UserControl&>(*container);
    if (!form.Enabled() && !control.AnswersInDisabledForm())
        return control.Name() + " is in " + std::string(form.Name()) + ", which is disabled";
    return std::nullopt;
}

void RequireReach(const Control& control)
{
    if (const auto obstacle = Obstacle(control))
        throw Refusal(*obstacle);
}

std::size_t Press(TextField& field, char32_t character, Span selection)
{
    RequireReach(field);
    const std::int16_t pressed = KeyCode(character);
    std::int16_t code = pressed;
    field.KeyPress(code);

    Edit edit(field, selection);
    if (code == 0)
        return edit.Caret();
    if (code == Backspace)
        return edit.EraseBackwards();
    const char32_t effective =
        code == pressed ? character : static_cast<char32_t>(static_cast<std::uint16_t>(code));
    if (IsControlCode(effective) || edit.Room() == 0)
        return edit.Caret();
    return edit.Replace(std::u32string_view(&effective, 1));
}

bool PressControlKey(TextField& field, std::int16_t code)
{
    RequireReach(field);
    field.KeyPress(code);
    return code != 0;
}

void Type(TextField& field, std::string_view text)
{
    RequireReach(field);
    for (const char32_t character : Decode(text))
        Press(field, character);
}

std::size_t Paste(TextField& field, std::string_view text, Span selection)
{
    RequireReach(field);
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    Edit edit(field, selection);
    return edit.Replace(std::u32string_view(Decode(line)).substr(0, edit.Room()));
}

void Paste(TextField& field, std::string_view text)
{
    Paste(field, text, {0, field.Text().size()});
}

void Leave(TextField& field)
{
    RequireReach(field);
    field.LostFocus();
}

void Click(CheckBox& box)
{
    RequireReach(box);
    box.SetValue(box.Value() == 0 ? 1 : 0);
}

void Click(OptionButton& option)
{
    RequireReach(option);
    option.SetValue(true);
}

void Click(CommandButton& button)
{
    RequireReach(button);
    button.Click();
}

void Click(MenuItem& item)
{
    RequireReach(item);
    if (item.IsSeparator())
        throw Refusal(item.Name() + " is a separator");
    item.Click();
}

void Choose(ComboBox& combo, const std::string& text)
{
    ChooseText(combo, text);
}

void Choose(ListBox& list, const std::string& text)
{
    ChooseText(list, text);
}

void Choose(ComboBox& combo, std::int32_t position)
{
    RequireReach(combo);
    RequirePosition(combo, position);
    combo.SetListIndex(position);
}

void Choose(ListBox& list, std::int32_t position)
{
    RequireReach(list);
    RequirePosition(list, position);
    list.Choose(position);
}

void Up(SpinButton& spin)
{
    RequireReach(spin);
    spin.StepUp();
}

void Down(SpinButton& spin)
{
    RequireReach(spin);
    spin.StepDown();
}

void Turn(TabStrip& strip, int tab)
{
    RequireReach(strip);
    if (tab < 0 || tab >= static_cast<int>(strip.Captions().size()))
        throw Refusal(strip.Name() + " has no tab " + std::to_string(tab));
    strip.SetTab(tab);
}

} // namespace Tamrivo::User
