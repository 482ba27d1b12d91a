#include "desktop/front_end/page_content.h"

#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_field.h"
#include "controls/user_control.h"
#include "host/alleles/pane_user.h"

namespace Tamrivo
{

PageContent ContentOf(const UserControl& page)
{
    PageContent content;
    for (const Control* control : page.Controls())
    {
        if (const auto* field = dynamic_cast<const TextField*>(control))
            content.Fields.push_back(field->Text());
        else if (const auto* combo = dynamic_cast<const ComboBox*>(control))
            content.Fields.push_back(combo->Text());
        else if (const auto* box = dynamic_cast<const CheckBox*>(control))
            content.Fields.push_back(std::to_string(box->Value()));
        else if (const auto* option = dynamic_cast<const OptionButton*>(control))
            content.Fields.emplace_back(option->Value() ? "chosen" : "");
        else if (const auto* pane = dynamic_cast<const User::AllelePaneControl*>(control))
        {
            for (const auto& row : User::AllelesOf(*pane).Rows())
                content.Alleles.push_back(*row);
        }
    }
    return content;
}

} // namespace Tamrivo
