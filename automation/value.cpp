#include "automation/value.h"

#include "core/numbers.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace Tamrivo::Automation
{

namespace
{

using Numbers = std::numeric_limits<std::int32_t>;

constexpr std::array<const char*, 8> typeNames{"nothing",  "a truth value", "a whole number",
                                               "a number", "a text",        "an object",
                                               "a list",   "a value"};

[[noreturn]] void FailKind(Type type, const std::string& what)
{
    throw Failure(ErrorNumber::NotANumber, "Automation",
                  what + " must be " + typeNames.at(static_cast<std::size_t>(type)));
}

std::optional<double> Number(const Value& value)
{
    if (const auto* whole = std::get_if<std::int32_t>(&value))
        return *whole;
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    const auto* text = std::get_if<std::string>(&value);
    return text && IsNumeric(*text) ? std::optional(ToDouble(*text)) : std::nullopt;
}

std::int32_t Whole(double number, const std::string& what)
{
    if (!(number >= Numbers::min() && number <= Numbers::max()))
        throw Failure(ErrorNumber::OutOfRange, "Automation",
                      what + " must be a whole number of 32 bits");
    if (std::trunc(number) != number)
        FailKind(Type::Long, what);
    return static_cast<std::int32_t>(number);
}

Value AsNumber(Type type, const Value& value, const std::string& what)
{
    const auto number = Number(value);
    if (!number)
        FailKind(type, what);
    return type == Type::Long ? Value(Whole(*number, what)) : Value(*number);
}

Value AsText(const Value& value, const std::string& what)
{
    if (const auto* whole = std::get_if<std::int32_t>(&value))
        return IntegerText(*whole);
    if (const auto* number = std::get_if<double>(&value))
        return DoubleText(*number);
    if (!std::holds_alternative<std::string>(value))
        FailKind(Type::Text, what);
    return value;
}

Value AsBoolean(const Value& value, const std::string& what)
{
    if (const auto* whole = std::get_if<std::int32_t>(&value))
        return *whole != 0;
    if (!std::holds_alternative<bool>(value))
        FailKind(Type::Boolean, what);
    return value;
}

Value AsObject(const Value& value, const std::string& what)
{
    const auto* object = std::get_if<ObjectPointer>(&value);
    if (!object)
        FailKind(Type::Object, what);
    if (!*object)
        throw Failure(ErrorNumber::NoObject, "Automation",
                      what + " must be an object, and is Nothing");
    return value;
}

} // namespace

Value ConvertTo(Type type, const Value& value, const std::string& what)
{
    switch (type)
    {
    case Type::Boolean: return AsBoolean(value, what);
    case Type::Long:
    case Type::Double: return AsNumber(type, value, what);
    case Type::Text: return AsText(value, what);
    case Type::Object: return AsObject(value, what);
    case Type::Values:
        if (!std::holds_alternative<List>(value))
            FailKind(type, what);
        return value;
    default: return value;
    }
}

} // namespace Tamrivo::Automation
