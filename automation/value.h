#pragma once

#include "core/error.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tamrivo::Automation
{

class Object;
struct Value;

using ObjectPointer = std::shared_ptr<Object>;
using List = std::vector<Value>;

/// What passes between the library and a client of another language: nothing, a truth value, a
/// number, a text in UTF-8, an object (null is allowed for "no object"), or a list of values.
struct Value
    : std::variant<std::monostate, bool, std::int32_t, double, std::string, ObjectPointer, List>
{
    using variant::variant;
    /// A literal is a text, never a truth value.
    Value(const char* text) : variant(std::string(text)) {}

    bool IsEmpty() const { return index() == 0; }
};

/// The kinds of values that parameters and results are declared as.
enum class Type
{
    None, ///< No result.
    Boolean,
    Long, ///< 32 bits.
    Double,
    Text,
    Object,
    Values,
    Any,
};

/// Numbers of the failures that a client can cause besides those of `ErrorNumber`.
namespace ClientError
{
inline constexpr std::int32_t NoSuchMember = 438;
inline constexpr std::int32_t WrongArguments = 450;
/// What a person can't do.
inline constexpr std::int32_t Refused = ErrorNumber::Application + 0x211;
} // namespace ClientError

/// The value as one of a type, numbers and texts turned into each other where nothing is lost.
/// `what` names the value in the failure: `ErrorNumber::NotANumber` for a value of another kind,
/// `OutOfRange` for a number that doesn't fit, `NoObject` for no object.
Value ConvertTo(Type type, const Value& value, const std::string& what);

} // namespace Tamrivo::Automation
