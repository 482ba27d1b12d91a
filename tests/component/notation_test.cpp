#include "component/com.h"
#include "component/windows/notation.h"
#include "core/dates.h"
#include "core/locale.h"
#include "core/numbers.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace Tamrivo
{

namespace
{

using Settings = std::map<LCTYPE, std::wstring>;

/// Changes settings of the person, and puts them back.
Settings Exchange(const Settings& settings)
{
    Settings before;
    for (const auto& [kind, value] : settings)
    {
        wchar_t text[128] = {};
        GetLocaleInfoW(LOCALE_USER_DEFAULT, kind, text, static_cast<int>(std::size(text)));
        before[kind] = text;
        SetLocaleInfoW(LOCALE_USER_DEFAULT, kind, value.c_str());
    }
    return before;
}

TEST(Notation, IsThatOfThePerson)
{
    struct Case
    {
        Settings Person;
        const char* Number;
        const char* Date;
    };
    const Case cases[] = {
        {{{LOCALE_SDECIMAL, L","},
          {LOCALE_STHOUSAND, L"."},
          {LOCALE_SGROUPING, L"3;0"},
          {LOCALE_SSHORTDATE, L"dd.MM.yyyy"},
          {LOCALE_STIMEFORMAT, L"HH:mm:ss"}},
         "1.234.567,50",
         "05.01.2024 13:04:09"},
        {{{LOCALE_SDECIMAL, L"."},
          {LOCALE_STHOUSAND, L","},
          {LOCALE_SGROUPING, L"3;2;0"},
          {LOCALE_SSHORTDATE, L"M/d/yyyy"},
          {LOCALE_S1159, L"AM"},
          {LOCALE_S2359, L"PM"},
          {LOCALE_STIMEFORMAT, L"h:mm:ss tt"}},
         "12,34,567.50",
         "1/5/2024 1:04:09 PM"},
    };
    std::tm local{};
    local.tm_year = 124;
    local.tm_mday = 5;
    local.tm_hour = 13;
    local.tm_min = 4;
    local.tm_sec = 9;
    local.tm_isdst = -1;
    const Date date = std::chrono::time_point_cast<std::chrono::seconds>(
        std::chrono::system_clock::from_time_t(std::mktime(&local)));
    for (const auto& [person, number, text] : cases)
    {
        const Settings before = Exchange(person);
        SetTextLocale(NotationOfPerson());
        EXPECT_EQ(TwoDecimals(1234567.5), number);
        EXPECT_EQ(ToDouble(number), 1234567.5);
        EXPECT_EQ(DateText(date), text);
        EXPECT_EQ(DateFromText(text), date);
        EXPECT_EQ(DateFromText("yesterday"), std::nullopt);
        SetTextLocale(std::locale::classic());
        Exchange(before);
    }
}

} // namespace

} // namespace Tamrivo
