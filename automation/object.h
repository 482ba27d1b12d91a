#pragma once

#include "automation/value.h"

#include <algorithm>
#include <array>
#include <span>

namespace Tamrivo::Automation
{

/// How a member is used.
enum class Access
{
    Method,
    Get,
    Put,
};

struct ParameterType
{
    std::string_view Name;
    Type Of = Type::None;
};

/// A member of a class as clients see it.
struct Member
{
    std::string_view Name;
    Access How = Access::Method;
    Type Result = Type::None;
    std::array<ParameterType, 6> Parameters = {}; ///< Those without a name don't count.

    constexpr std::size_t Count() const
    {
        std::size_t count = 0;
        while (count < Parameters.size() && !Parameters[count].Name.empty())
            ++count;
        return count;
    }
};

/// A class as clients see it. The position of a member counts: that of the first one with its name,
/// plus one, is the number by which clients call it.
struct Class
{
    std::string_view Name;
    std::string_view InterfaceId; ///< Of its dual interface, without braces.
    std::string_view About;
    std::span<const Member> Members;

    /// Position of the member, its name without minding case; -1 when there is none.
    std::int32_t Find(std::string_view name, Access how) const;
    /// The number of a name, whatever the member is; 0 when there is none.
    std::int32_t NumberOf(std::string_view name) const;
};

/// What clients call by name: an object of the library, or one of a client.
class Object : public std::enable_shared_from_this<Object>
{
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    /// Calls a member. Raises `Failure` for whatever goes wrong: `ClientError::NoSuchMember`,
    /// `WrongArguments`, what `ConvertTo` raises for an argument, and what the member does.
    virtual Value Call(std::string_view name, Access how, const List& arguments) = 0;

    Value Get(std::string_view name) { return Call(name, Access::Get, {}); }
    void Put(std::string_view name, Value value) { Call(name, Access::Put, {std::move(value)}); }
};

/// An object whose members stand in a table.
class TableObject : public Object
{
public:
    virtual const Class& ClassOf() const = 0;

    Value Call(std::string_view name, Access how, const List& arguments) override;
    /// Calls the member at a position. The only way in: whatever leaves it is a `Failure`, also for
    /// a host that calls back from each of its calls.
    Value CallAt(std::size_t position, const List& arguments);

private:
    /// @param arguments as many as the member has, and of their types
    virtual Value Do(std::size_t position, const List& arguments) = 0;

    int m_depth = 0; ///< Calls that are under way.
};

/// A row of the table of a class: a member and what it does. `T` is the object's type.
template <class T>
struct Row : Member
{
    Value (T::*Action)(const Member& member, const List& arguments) = nullptr;
};

/// The members of tables, one after the other, for a `Class`.
template <class... Tables>
constexpr auto MembersOf(const Tables&... tables)
{
    std::array<Member, (std::tuple_size_v<Tables> + ...)> members;
    auto end = members.begin();
    ((end = std::copy(tables.begin(), tables.end(), end)), ...);
    return members;
}

/// Does what stands in a row of the object's table.
template <class T, class Table>
Value DoRow(T& object, const Table& table, std::size_t position, const List& arguments)
{
    return (object.*table[position].Action)(table[position], arguments);
}

/// Typed access to arguments that the table has checked.
template <class T>
const T& Argument(const List& arguments, std::size_t position)
{
    return std::get<T>(arguments[position]);
}
inline const std::string& Text(const List& arguments, std::size_t position)
{
    return Argument<std::string>(arguments, position);
}
inline std::int32_t Long(const List& arguments, std::size_t position)
{
    return Argument<std::int32_t>(arguments, position);
}

} // namespace Tamrivo::Automation
