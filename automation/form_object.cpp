#include "automation/form_object.h"

#include "automation/memory_host.h"
#include "core/text.h"

namespace Tamrivo::Automation
{

namespace
{

Value ValueOf(const PropertyValue& property)
{
    return std::visit([](const auto& value) { return Value(value); }, property);
}

/// A key's code as a character; halves of characters are none.
char32_t Character(std::int32_t code)
{
    if (code < 1 || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        throw Failure(ErrorNumber::OutOfRange, "Press",
                      "There is no key with the code " + std::to_string(code));
    return static_cast<char32_t>(code);
}

} // namespace

const ObjectPointer& FormObject::Client()
{
    if (!m_client)
        m_client = std::make_shared<MemoryHost>();
    return m_client;
}

NamedHost& FormObject::HostOfForm()
{
    if (!m_host)
        m_host = std::make_unique<NamedHost>(Client());
    return *m_host;
}

UserControl& FormObject::Form()
{
    if (!HasForm())
        m_form = &MakeForm(HostOfForm());
    return *m_form;
}

User::FormUser FormObject::Person()
{
    UserControl& form = Form();
    RequirePerson();
    return User::FormUser(form);
}

Value FormObject::GetHost(const Member&, const List&)
{
    return Client();
}

Value FormObject::PutHost(const Member&, const List& arguments)
{
    if (m_host)
        throw User::Refusal("The page is made for its host already; set Host before anything else");
    m_client = Argument<ObjectPointer>(arguments, 0);
    return {};
}

Value FormObject::Controls(const Member&, const List&)
{
    List names;
    for (const Control* control : Form().InTabOrder())
        names.emplace_back(control->Name());
    return names;
}

Value FormObject::Read(const Member&, const List& arguments)
{
    const Control* const control = Form().Find(Text(arguments, 0));
    if (!control)
        throw User::Refusal(std::string(Form().Name()) + " has no control \"" + Text(arguments, 0) +
                            "\"");
    for (const auto& [name, value] : control->Properties())
    {
        if (EqualNoCase(name, Text(arguments, 1)))
            return ValueOf(value);
    }
    throw User::Refusal(control->Name() + " has no property \"" + Text(arguments, 1) + "\"");
}

Value FormObject::Press(const Member&, const List& arguments)
{
    const char32_t character = Character(Long(arguments, 1));
    Person().Press(Text(arguments, 0), character);
    return {};
}

Value FormObject::Type(const Member&, const List& arguments)
{
    Person().Type(Text(arguments, 0), Text(arguments, 1));
    return {};
}

Value FormObject::Paste(const Member&, const List& arguments)
{
    Person().Paste(Text(arguments, 0), Text(arguments, 1));
    return {};
}

Value FormObject::Leave(const Member&, const List& arguments)
{
    Person().Leave(Text(arguments, 0));
    return {};
}

Value FormObject::Click(const Member&, const List& arguments)
{
    Person().Click(Text(arguments, 0));
    return {};
}

Value FormObject::Choose(const Member&, const List& arguments)
{
    Person().Choose(Text(arguments, 0), Text(arguments, 1));
    return {};
}

Value FormObject::Up(const Member&, const List& arguments)
{
    Person().Up(Text(arguments, 0));
    return {};
}

Value FormObject::Down(const Member&, const List& arguments)
{
    Person().Down(Text(arguments, 0));
    return {};
}

Value FormObject::Turn(const Member&, const List& arguments)
{
    Person().Turn(Text(arguments, 0), Long(arguments, 1));
    return {};
}

Value FormObject::Answer(const Member&, const List& arguments)
{
    try
    {
        return Client()->Call("Answer", Access::Method, arguments);
    }
    catch (const Failure& failure)
    {
        if (failure.Record().Number != ClientError::NoSuchMember)
            throw;
        throw User::Refusal("The host has no Answer: it answers a message box itself, by what its "
                            "ShowMessage gives. Only the in-memory host takes answers beforehand");
    }
}

} // namespace Tamrivo::Automation
