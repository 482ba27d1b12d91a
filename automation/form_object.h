#pragma once

#include "automation/named_host.h"
#include "controls/form_user.h"

#include <memory>

namespace Tamrivo::Automation
{

/// A form of the library as clients see it: what can be read of its controls, and what a person can
/// do with them. The form is made at the first use of a member other than Host.
class FormObject : public TableObject
{
public:
    Value GetHost(const Member&, const List&);
    Value PutHost(const Member&, const List& arguments);
    Value Controls(const Member&, const List&);
    Value Read(const Member&, const List& arguments);
    Value Press(const Member&, const List& arguments);
    Value Type(const Member&, const List& arguments);
    Value Paste(const Member&, const List& arguments);
    Value Leave(const Member&, const List& arguments);
    Value Click(const Member&, const List& arguments);
    Value Choose(const Member&, const List& arguments);
    Value Up(const Member&, const List& arguments);
    Value Down(const Member&, const List& arguments);
    Value Turn(const Member&, const List& arguments);
    Value Answer(const Member&, const List& arguments);

protected:
    /// The form, which is made now if it wasn't.
    UserControl& Form();
    /// The host that the form is made for.
    NamedHost& HostOfForm();
    /// The client's object, or the one that stands in for it.
    const ObjectPointer& Client();

private:
    virtual bool HasForm() const = 0;
    virtual UserControl& MakeForm(NamedHost& host) = 0;
    /// Raises `User::Refusal` where no person could do anything at present.
    virtual void RequirePerson() = 0;

    User::FormUser Person();

    ObjectPointer m_client;
    std::unique_ptr<NamedHost> m_host;
    UserControl* m_form = nullptr;
};

inline constexpr ParameterType ControlParameter{"control", Automation::Type::Text};

inline constexpr std::array FormRows{
    Row<FormObject>{{"Host", Access::Get, Type::Object, {}}, &FormObject::GetHost},
    Row<FormObject>{{"Host", Access::Put, Type::None, {{{"value", Type::Object}}}},
                    &FormObject::PutHost},
    Row<FormObject>{{"Controls", Access::Get, Type::Values, {}}, &FormObject::Controls},
    Row<FormObject>{
        {"Read", Access::Method, Type::Any, {{ControlParameter, {"property", Type::Text}}}},
        &FormObject::Read},
    Row<FormObject>{
        {"Press", Access::Method, Type::None, {{ControlParameter, {"key", Type::Long}}}},
        &FormObject::Press},
    Row<FormObject>{
        {"Type", Access::Method, Type::None, {{ControlParameter, {"text", Type::Text}}}},
        &FormObject::Type},
    Row<FormObject>{
        {"Paste", Access::Method, Type::None, {{ControlParameter, {"text", Type::Text}}}},
        &FormObject::Paste},
    Row<FormObject>{{"Leave", Access::Method, Type::None, {{ControlParameter}}},
                    &FormObject::Leave},
    Row<FormObject>{{"Click", Access::Method, Type::None, {{ControlParameter}}},
                    &FormObject::Click},
    Row<FormObject>{
        {"Choose", Access::Method, Type::None, {{ControlParameter, {"entry", Type::Text}}}},
        &FormObject::Choose},
    Row<FormObject>{{"Up", Access::Method, Type::None, {{ControlParameter}}}, &FormObject::Up},
    Row<FormObject>{{"Down", Access::Method, Type::None, {{ControlParameter}}}, &FormObject::Down},
    Row<FormObject>{{"Turn", Access::Method, Type::None, {{ControlParameter, {"tab", Type::Long}}}},
                    &FormObject::Turn},
    Row<FormObject>{{"Answer", Access::Method, Type::None, {{{"answer", Type::Text}}}},
                    &FormObject::Answer},
};

} // namespace Tamrivo::Automation
