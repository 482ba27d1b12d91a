#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// A moment, to the second, UTC. No value: never.
using Date = std::optional<std::chrono::sys_seconds>;

/// The date and time of day in local time, in the notation of `TextLocale` ("%x %X"); empty for
/// no date.
std::string DateText(const Date& date);

/// The date that `DateText` wrote, or none when the text is no such date.
Date DateFromText(std::string_view text);

} // namespace Tamrivo
