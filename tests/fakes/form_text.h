#pragma once

#include "controls/buttons.h"
#include "controls/frames.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/menu.h"
#include "controls/spin_button.h"
#include "controls/text_field.h"
#include "controls/user_control.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace Tamrivo::Fakes
{

inline std::string Quoted(const std::string& text)
{
    return " \"" + text + '"';
}

template <class T>
std::string Bold(const T& control)
{
    const auto& font = control.Font();
    if (!font)
        return {};
    return font->Name == "MS Sans Serif" && font->Points == 8.25 && font->Bold ? " bold" : " font";
}

/// What a control of a kind declares beyond what all declare.
inline std::string Declared(const Control& control)
{
    if (const auto* field = dynamic_cast<const TextField*>(&control))
        return "field" + Quoted(field->Text()) + " max " + std::to_string(field->MaxLength()) +
               (field->Alignment() == Alignment::Right ? " right" : "") +
               (field->ToolTipText().empty() ? "" : Quoted(field->ToolTipText()));
    if (const auto* label = dynamic_cast<const Label*>(&control))
        return "label" + Quoted(label->Caption()) + Bold(*label);
    if (const auto* frame = dynamic_cast<const Frame*>(&control))
        return "frame" + Quoted(frame->Caption()) + " tab " + std::to_string(frame->Tab());
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control))
        return "tabs" + Quoted(strip->Captions().at(0)) + Quoted(strip->Captions().at(1)) +
               " tab " + std::to_string(strip->Tab());
    if (const auto* box = dynamic_cast<const CheckBox*>(&control))
        return "check" + Quoted(box->Caption()) + (box->Value() == 0 ? "" : " on");
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        return "option" + Quoted(option->Caption()) + (option->Value() ? " on" : "");
    if (const auto* button = dynamic_cast<const CommandButton*>(&control))
        return "button" + Quoted(button->Caption()) +
               (button->ToolTipText().empty() ? "" : Quoted(button->ToolTipText())) + Bold(*button);
    if (const auto* menu = dynamic_cast<const Menu*>(&control))
        return "menu" + Quoted(menu->Caption());
    if (const auto* item = dynamic_cast<const MenuItem*>(&control))
        return item->IsSeparator() ? "separator" : "item" + Quoted(item->Caption());
    if (const auto* list = dynamic_cast<const EntryList*>(&control))
    {
        std::string text = dynamic_cast<const ComboBox*>(list) != nullptr ? "combo" : "list";
        for (std::int32_t position = 0; position < list->ListCount(); ++position)
            text += Quoted(list->List(position)) + (list->ItemData(position) == 0 ? "" : " data");
        return text;
    }
    if (const auto* spin = dynamic_cast<const SpinButton*>(&control))
    {
        if (spin->Linked() == nullptr)
            return "spin";
        std::string text = "spin " + spin->Linked()->Name();
        const auto properties = spin->Properties();
        std::for_each(properties.begin() + 9, properties.end(), [&text](const auto& own) {
            text += " " + own.first + " " + std::to_string(std::get<std::int32_t>(own.second));
        });
        return text;
    }
    return "hosted";
}

/// A form as text, one line for each control by its tab index:
///     7 txtFragStart in fraLocusInformation 2640,1200,675,285 field "60" max 3 right stop
inline std::string FormText(const UserControl& form)
{
    std::string text =
        std::to_string(form.ClientWidth()) + " by " + std::to_string(form.ClientHeight()) + "\n";
    for (const Control* control : form.InTabOrder())
    {
        const auto& [left, top, width, height] = control->Place();
        const Control* outer = control->Parent().AsControl();
        text += std::to_string(control->TabIndex()) + " " + control->Name() +
                (outer == nullptr ? "" : " in " + outer->Name());
        if (control->TabIndex() >= 0)
            text += " " + std::to_string(left) + "," + std::to_string(top) + "," +
                    std::to_string(width) + "," + std::to_string(height);
        text += " " + Declared(*control) + (control->Enabled() ? "" : " disabled") +
                (control->Visible() ? "" : " hidden") + (control->IsTabStop() ? " stop" : "") +
                "\n";
    }
    return text;
}

/// What tests/forms/ says of a form.
inline std::string FormFile(const std::string& name)
{
    std::ifstream file(std::string(FORMS) + "/" + name + ".txt");
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace Tamrivo::Fakes
