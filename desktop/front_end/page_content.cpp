#include "desktop/front_end/page_content.h"

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_field.h"
#include "controls/user_control.h"
#include "host/alleles/pane_user.h"

#include <optional>

namespace Tamrivo
{

namespace
{

constexpr const char* chosen = "chosen";

/// What a field holds; none for a control that isn't one.
std::optional<std::string> ValueOf(const Control& control)
{
    if (const auto* field = dynamic_cast<const TextField*>(&control))
        return field->Text();
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control))
        return combo->Text();
    if (const auto* box = dynamic_cast<const CheckBox*>(&control))
        return std::to_string(box->Value());
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        return option->Value() ? chosen : "";
    return std::nullopt;
}

void SetValue(Control& control, const std::string& value)
{
    if (auto* field = dynamic_cast<TextField*>(&control))
        field->SetText(value);
    else if (auto* combo = dynamic_cast<ComboBox*>(&control))
        combo->SetText(value);
    else if (auto* box = dynamic_cast<CheckBox*>(&control))
        box->SetValue(std::stoi(value));
    else if (auto* option = dynamic_cast<OptionButton*>(&control); option && value == chosen)
        option->SetValue(true);
}

} // namespace

PageFields FieldsOf(const UserControl& page)
{
    PageFields fields;
    for (const Control* control : page.Controls())
    {
        if (auto value = ValueOf(*control))
            fields.push_back(*std::move(value));
    }
    return fields;
}

PageContent ContentOf(const UserControl& page)
{
    PageContent content{FieldsOf(page), {}};
    for (const Control* control : page.Controls())
    {
        const auto* pane = dynamic_cast<const User::AllelePaneControl*>(control);
        if (pane == nullptr)
            continue;
        for (const auto& row : User::AllelesOf(*pane).Rows())
            content.Alleles.push_back(*row);
    }
    return content;
}

Control* Restore(const UserControl& page, const PageFields& fields)
{
    // What answers to one field may change another that stands before it.
    constexpr int rounds = 2;
    Control* first = nullptr;
    for (int round = 0; round < rounds && FieldsOf(page) != fields; ++round)
    {
        std::size_t at = 0;
        for (Control* control : page.Controls())
        {
            const auto value = ValueOf(*control);
            if (!value || *value == fields[at++])
                continue;
            SetValue(*control, fields[at - 1]);
            if (first == nullptr)
                first = control;
        }
    }
    return first;
}

} // namespace Tamrivo
