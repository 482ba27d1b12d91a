#include "component/windows/notation.h"

#include "component/com.h"
#include "component/windows/date_reading.h"
#include "core/locale.h"

#include <algorithm>
#include <climits>
#include <string>
#include <string_view>

namespace Tamrivo
{

namespace
{

std::wstring Setting(LCTYPE kind)
{
    wchar_t text[128]; // The longest setting has 80 characters.
    const int length =
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, kind, text, static_cast<int>(std::size(text)));
    return length > 0 ? std::wstring(text, static_cast<std::size_t>(length) - 1) : std::wstring();
}

/// "3;2;0", where 0 repeats the last size, as `std::numpunct::grouping` gives it.
std::string GroupingOf(std::wstring_view sizes)
{
    std::string grouping;
    for (const wchar_t size : sizes)
    {
        if (size > L'0' && size <= L'9')
            grouping += static_cast<char>(size - L'0');
    }
    if (!grouping.empty() && !sizes.ends_with(L";0"))
        grouping += CHAR_MAX;
    return grouping;
}

class Numbers : public std::numpunct<wchar_t>
{
protected:
    char_type do_decimal_point() const override { return m_decimal.empty() ? L'.' : m_decimal[0]; }
    char_type do_thousands_sep() const override { return m_group.empty() ? L',' : m_group[0]; }
    std::string do_grouping() const override { return m_group.empty() ? "" : m_grouping; }

private:
    std::wstring m_decimal = Setting(LOCALE_SDECIMAL);
    std::wstring m_group = Setting(LOCALE_STHOUSAND);
    std::string m_grouping = GroupingOf(Setting(LOCALE_SGROUPING));
};

class WrittenDates : public std::time_put<wchar_t>
{
protected:
    iter_type do_put(iter_type out, std::ios_base& stream, char_type fill, const std::tm* time,
                     char format, char modifier) const override
    {
        const auto word = [](int number) { return static_cast<WORD>(number); };
        const SYSTEMTIME moment{word(time->tm_year + 1900), word(time->tm_mon + 1),
                                word(time->tm_wday),        word(time->tm_mday),
                                word(time->tm_hour),        word(time->tm_min),
                                word(time->tm_sec),         0};
        wchar_t text[256];
        constexpr int size = std::size(text);
        int length = 0;
        if (format == 'x')
            length = GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &moment, nullptr,
                                     text, size, nullptr);
        else if (format == 'X')
            length = GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &moment, nullptr, text, size);
        return length > 0 ? std::copy_n(text, length - 1, out)
                          : time_put::do_put(out, stream, fill, time, format, modifier);
    }
};

class ReadDates : public std::time_get<wchar_t>
{
protected:
    iter_type do_get(iter_type in, iter_type end, std::ios_base& stream,
                     std::ios_base::iostate& state, std::tm* time, char format,
                     char modifier) const override
    {
        if (format == 'x')
            return ReadDate(in, end, m_date, {}, state, *time);
        if (format == 'X')
            return ReadDate(in, end, m_time, m_afternoon, state, *time);
        return time_get::do_get(in, end, stream, state, time, format, modifier);
    }

private:
    std::wstring m_date = Setting(LOCALE_SSHORTDATE);
    std::wstring m_time = Setting(LOCALE_STIMEFORMAT);
    std::wstring m_afternoon = Setting(LOCALE_S2359);
};

} // namespace

std::locale NotationOfPerson()
{
    std::locale notation(std::locale::classic(), new Numbers);
    notation = std::locale(notation, new WrittenDates);
    return std::locale(notation, new ReadDates);
}

void TakeNotationOfPerson()
{
    static const bool isTaken = [] {
        if (TextLocale() == std::locale::classic())
            SetTextLocale(NotationOfPerson());
        return true;
    }();
    static_cast<void>(isTaken);
}

} // namespace Tamrivo
