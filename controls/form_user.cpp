#include "controls/form_user.h"

namespace Tamrivo::User
{

namespace
{

template <class Kind, class Action>
bool ActIfA(Control& control, Action action)
{
    auto* const ofKind = dynamic_cast<Kind*>(&control);
    if (ofKind)
        action(*ofKind);
    return ofKind != nullptr;
}

/// Does the action on the control with the name, which must be of one of the kinds.
template <class... Kinds, class Action>
void Act(UserControl& form, std::string_view name, const std::string& participle, Action action)
{
    Control* const control = form.Find(name);
    if (!control)
        throw Refusal(std::string(form.Name()) + " has no control " + std::string(name));
    if (!(ActIfA<Kinds>(*control, action) || ...))
        throw Refusal(control->Name() + " can't be " + participle);
}

} // namespace

void FormUser::Press(std::string_view field, char32_t character)
{
    Act<TextField>(m_form, field, "typed into",
                   [&](TextField& found) { User::Press(found, character); });
}

void FormUser::Type(std::string_view field, std::string_view text)
{
    Act<TextField>(m_form, field, "typed into", [&](TextField& found) { User::Type(found, text); });
}

void FormUser::Paste(std::string_view field, std::string_view text)
{
    Act<TextField>(m_form, field, "pasted into",
                   [&](TextField& found) { User::Paste(found, text); });
}

void FormUser::Leave(std::string_view field)
{
    Act<TextField>(m_form, field, "left", [](TextField& found) { User::Leave(found); });
}

void FormUser::Click(std::string_view control)
{
    Act<CheckBox, OptionButton, CommandButton, MenuItem>(m_form, control, "clicked",
                                                         [](auto& found) { User::Click(found); });
}

void FormUser::Choose(std::string_view list, const std::string& text)
{
    Act<ComboBox, ListBox>(m_form, list, "chosen from",
                           [&](auto& found) { User::Choose(found, text); });
}

void FormUser::Up(std::string_view spin)
{
    Act<SpinButton>(m_form, spin, "stepped", [](SpinButton& found) { User::Up(found); });
}

void FormUser::Down(std::string_view spin)
{
    Act<SpinButton>(m_form, spin, "stepped", [](SpinButton& found) { User::Down(found); });
}

void FormUser::Turn(std::string_view strip, int tab)
{
    Act<TabStrip>(m_form, strip, "turned", [&](TabStrip& found) { User::Turn(found, tab); });
}

} // namespace Tamrivo::User
