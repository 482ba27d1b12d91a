#pragma once

#include "core/locale.h"

#include <locale>

namespace Tamrivo::Fakes
{

/// Number notation of one's own, whatever locales the machine has.
class Notation : public std::numpunct<wchar_t>
{
public:
    Notation(wchar_t decimal, wchar_t grouping) : m_decimal(decimal), m_grouping(grouping) {}

protected:
    wchar_t do_decimal_point() const override { return m_decimal; }
    wchar_t do_thousands_sep() const override { return m_grouping; }
    std::string do_grouping() const override { return "\3"; }

private:
    wchar_t m_decimal;
    wchar_t m_grouping;
};

/// Sets the locale of all texts and puts the classic one back.
class LocaleGuard
{
public:
    LocaleGuard(wchar_t decimal, wchar_t grouping)
    {
        SetTextLocale(std::locale(std::locale::classic(), new Notation(decimal, grouping)));
    }
    LocaleGuard(const LocaleGuard&) = delete;
    LocaleGuard& operator=(const LocaleGuard&) = delete;
    ~LocaleGuard() { SetTextLocale(std::locale::classic()); }
};

inline constexpr wchar_t NarrowNoBreakSpace = L'\x202F';

} // namespace Tamrivo::Fakes
