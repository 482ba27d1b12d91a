#pragma once

#include "controls/user.h"
#include "controls/user_control.h"

#include <string>
#include <string_view>

namespace Tamrivo::User
{

/// The operations of controls/user.h on the controls of one form, found by their names. Each raises
/// `Refusal` when the form has no such control, or one that the operation isn't made for.
///
/// Virtual, so that a program that loads the library at run time acts through the same door without
/// linking it.
class FormUser
{
public:
    explicit FormUser(UserControl& form) : m_form(form) {}
    virtual ~FormUser() = default;

    virtual void Press(std::string_view field, char32_t character);
    virtual void Type(std::string_view field, std::string_view text);
    virtual void Paste(std::string_view field, std::string_view text);
    virtual void Leave(std::string_view field);
    /// A button, check box, option button or menu item.
    virtual void Click(std::string_view control);
    /// An entry of a combo box or list box.
    virtual void Choose(std::string_view list, const std::string& text);
    virtual void Up(std::string_view spin);
    virtual void Down(std::string_view spin);
    virtual void Turn(std::string_view strip, int tab);

private:
    UserControl& m_form;
};

} // namespace Tamrivo::User
