#include "core/dates.h"

#include "core/locale.h"
#include "core/text.h"

#include <ctime>
#include <iterator>
#include <sstream>

namespace Tamrivo
{

namespace
{

constexpr std::wstring_view Format = L"%x %X";

std::tm LocalTime(std::chrono::sys_seconds moment)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    return local;
}

} // namespace

std::string DateText(const Date& date)
{
    if (!date)
        return {};
    const std::tm local = LocalTime(*date);
    // A stream of the thread's own would be quicker, and keep a module that has written a date from
    // being unloaded.
    std::wostringstream stream;
    stream.imbue(TextLocale());
    std::use_facet<std::time_put<wchar_t>>(TextLocale())
        .put(std::ostreambuf_iterator<wchar_t>(stream), stream, L' ', &local, Format.data(),
             Format.data() + Format.size());
    const std::wstring wide = stream.str();
    return Encode(std::u32string(wide.begin(), wide.end()));
}

Date DateFromText(std::string_view text)
{
    const std::u32string characters = Decode(text);
    std::wistringstream stream(std::wstring(characters.begin(), characters.end()));
    stream.imbue(TextLocale());
    std::tm local{};
    std::ios_base::iostate state = std::ios_base::goodbit;
    std::use_facet<std::time_get<wchar_t>>(TextLocale())
        .get(std::istreambuf_iterator<wchar_t>(stream), {}, stream, state, &local, Format.data(),
             Format.data() + Format.size());
    if ((state & std::ios_base::failbit) != 0)
        return std::nullopt;
    local.tm_isdst = -1;
    const std::time_t seconds = std::mktime(&local);
    if (seconds == -1)
        return std::nullopt;
    return std::chrono::time_point_cast<std::chrono::seconds>(
        std::chrono::system_clock::from_time_t(seconds));
}

} // namespace Tamrivo
