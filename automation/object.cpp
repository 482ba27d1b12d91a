#include "automation/object.h"

#include "controls/user.h"
#include "core/text.h"

#include <string>

namespace Tamrivo::Automation
{

namespace
{

std::string Described(const Class& type, const Member& member)
{
    return std::string(type.Name) + "." + std::string(member.Name);
}

List Checked(const Class& type, const Member& member, const List& arguments)
{
    const std::size_t count = member.Count();
    if (arguments.size() != count)
        throw Failure(ClientError::WrongArguments, std::string(type.Name),
                      Described(type, member) + " takes " + std::to_string(count) +
                          (count == 1 ? " argument" : " arguments") + ", not " +
                          std::to_string(arguments.size()));
    List checked;
    for (std::size_t i = 0; i < count; ++i)
    {
        const ParameterType& parameter = member.Parameters[i];
        checked.push_back(ConvertTo(parameter.Of, arguments[i],
                                    "The argument \"" + std::string(parameter.Name) + "\" of " +
                                        Described(type, member)));
    }
    return checked;
}

/// Counts a call as long as it lasts.
class Nested
{
public:
    explicit Nested(int& depth) : m_depth(depth) { ++m_depth; }
    Nested(const Nested&) = delete;
    Nested& operator=(const Nested&) = delete;
    ~Nested() { --m_depth; }

private:
    int& m_depth;
};

} // namespace

std::int32_t Class::Find(std::string_view name, Access how) const
{
    for (std::size_t i = 0; i < Members.size(); ++i)
    {
        if (Members[i].How == how && EqualNoCase(Members[i].Name, name))
            return static_cast<std::int32_t>(i);
    }
    return -1;
}

std::int32_t Class::NumberOf(std::string_view name) const
{
    for (std::size_t i = 0; i < Members.size(); ++i)
    {
        if (EqualNoCase(Members[i].Name, name))
            return static_cast<std::int32_t>(i) + 1;
    }
    return 0;
}

Value TableObject::Call(std::string_view name, Access how, const List& arguments)
{
    const Class& type = ClassOf();
    std::int32_t position = type.Find(name, how);
    // Some languages can't tell a call from a reading.
    if (position < 0 && how != Access::Put)
        position = type.Find(name, how == Access::Get ? Access::Method : Access::Get);
    if (position < 0)
        throw Failure(ClientError::NoSuchMember, std::string(type.Name),
                      std::string(type.Name) + " has no member \"" + std::string(name) + "\"" +
                          (how == Access::Put ? " that can be set" : ""));
    return CallAt(static_cast<std::size_t>(position), arguments);
}

Value TableObject::CallAt(std::size_t position, const List& arguments)
{
    constexpr int deepest = 16;
    if (m_depth >= deepest)
        throw Failure(ErrorNumber::Unexpected, std::string(ClassOf().Name),
                      std::string(ClassOf().Name) + " is called from its own calls without end");
    const Nested nested(m_depth);
    try
    {
        return Do(position, Checked(ClassOf(), ClassOf().Members[position], arguments));
    }
    catch (const User::Refusal& refusal)
    {
        throw Failure(ClientError::Refused, std::string(ClassOf().Name), refusal.what());
    }
    catch (const std::exception&)
    {
        throw Failure(CurrentError());
    }
}

} // namespace Tamrivo::Automation
