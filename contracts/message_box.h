#pragma once

#include <cstdint>

namespace Tamrivo
{

/// Kinds of message box: the icon's number plus the buttons' number.
namespace MessageKind
{
inline constexpr std::int32_t Critical = 16;             ///< OK
inline constexpr std::int32_t Exclamation = 48;          ///< OK
inline constexpr std::int32_t ExclamationYesNo = 48 + 4; ///< Yes and No
} // namespace MessageKind

/// Answers to a message box.
enum class MessageAnswer : std::int32_t
{
    Ok = 1,
    Yes = 6,
    No = 7,
};

} // namespace Tamrivo
