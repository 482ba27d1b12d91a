#include "host/library/search_terms.h"

#include "core/error.h"
#include "core/text.h"
#include "host/checks/check_rules.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <optional>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& expected)
{
    throw Failure(ErrorNumber::InvalidArgument, "Search", expected);
}

/// Takes a run of digits from the text; none when there is none, or too many of them.
std::optional<std::int32_t> TakeNumber(std::string_view& text)
{
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

LocusCondition OfDye(Library& library, const std::string& value)
{
    std::vector<std::int32_t> dyes;
    std::string colors;
    for (const Dye& dye : library.LabDyes().All())
    {
        if (dye.Color.starts_with(value) || FoldCase(dye.Name).starts_with(value))
            dyes.push_back(*library.LabDyes().OfColor(dye.Color));
        colors.append(colors.empty() ? "" : ", ").append(dye.Color);
    }
    if (dyes.empty())
        Refuse("No dye has such a colour or name; there are " + colors);
    return [&loci = library.Loci(), dyes](std::size_t position) {
        return std::ranges::find(dyes, loci[position].DyeIndex) != dyes.end();
    };
}

/// The loci with one of the names that begin with the value.
LocusCondition Named(const Library& library, const NameList& names,
                     std::uint32_t LibraryLocus::*member, const std::string& value)
{
    std::vector<bool> isMeant;
    for (const NameList::Entry& entry : names.Entries())
        isMeant.push_back(entry.Key.starts_with(value));
    return [&loci = library.Loci(), member, isMeant](std::size_t position) {
        return isMeant[loci[position].*member];
    };
}

LocusCondition OfPanel(Library& library, const std::string& value)
{
    return Named(library, library.Panels(), &LibraryLocus::Panel, value);
}

LocusCondition OfProject(Library& library, const std::string& value)
{
    return Named(library, library.Projects(), &LibraryLocus::Project, value);
}

LocusCondition OverRange(Library& library, const std::string& value)
{
    constexpr const char* expected = "Lengths in nt are expected, such as range:100-200";
    std::string_view rest = value;
    const auto from = TakeNumber(rest);
    if (!from || (!rest.empty() && rest.front() != '-'))
        Refuse(expected);
    auto to = from;
    if (!rest.empty())
    {
        rest.remove_prefix(1);
        const std::string_view digits = rest;
        if (digits.empty())
            return {};
        to = TakeNumber(rest);
        if (!to || !rest.empty())
            Refuse(expected);
        const std::size_t fromLength = value.size() - digits.size() - 1;
        if (*to < *from && digits.size() < fromLength)
            return {};
        if (*to < *from)
            Refuse("The range ends before it begins");
    }
    return [&loci = library.Loci(), low = *from, high = *to](std::size_t position) {
        return loci[position].FragStart <= high && loci[position].FragEnd >= low;
    };
}

LocusCondition WithAllele(Library& library, const std::string& value)
{
    return [&names = library.AlleleNames(),
            begin = FoldedTexts::Separator + value](std::size_t position) {
        return names[position].find(begin) != std::string_view::npos;
    };
}

LocusCondition OfRepeat(Library& library, const std::string& value)
{
    std::string_view rest = value;
    const auto length = TakeNumber(rest);
    if (!length || !rest.empty())
        Refuse("The length of the repeat unit in nt is expected, such as repeat:4");
    return [&loci = library.Loci(), wanted = *length](std::size_t position) {
        return loci[position].RepeatLength == wanted;
    };
}

LocusCondition Used(Library& library, const std::string& value)
{
    const bool wanted = std::string_view("yes").starts_with(value);
    if (!wanted && !std::string_view("no").starts_with(value))
        Refuse("yes or no is expected");
    return [&loci = library.Loci(), wanted](std::size_t position) {
        return (loci[position].UsedBy > 0) == wanted;
    };
}

/// A year, a month or a day, from its first second to before the first of the next.
struct Period
{
    std::chrono::sys_seconds Begin;
    std::chrono::sys_seconds End;
};

std::chrono::sys_seconds LocalMidnight(int year, int month, int day)
{
    std::tm local{};
    local.tm_year = year - 1900;
    local.tm_mon = month - 1;
    local.tm_mday = day;
    local.tm_isdst = -1;
    return std::chrono::sys_seconds(std::chrono::seconds(std::mktime(&local)));
}

/// "2026", "2026-01" or "2026-01-31"; none for the beginning of one.
std::optional<Period> PeriodOf(std::string_view text)
{
    constexpr std::size_t yearLength = 4;
    constexpr std::size_t monthLength = 7;
    constexpr std::size_t dayLength = 10;
    constexpr std::string_view pattern = "0000-00-00";
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        if (at >= pattern.size() || isDigit(text[at]) != isDigit(pattern[at]) ||
            (!isDigit(text[at]) && text[at] != '-'))
            Refuse("A date is expected, such as changed:>2026-01-31");
    }
    if (text.size() != yearLength && text.size() != monthLength && text.size() != dayLength)
        return std::nullopt;
    int numbers[] = {0, 1, 1};
    for (int part = 0; !text.empty(); ++part)
    {
        numbers[part] = *TakeNumber(text);
        text.remove_prefix(text.empty() ? 0 : 1);
        if (text.empty())
        {
            const auto [year, month, day] = numbers;
            const std::chrono::year_month_day date(std::chrono::year(year),
                                                   std::chrono::month(static_cast<unsigned>(month)),
                                                   std::chrono::day(static_cast<unsigned>(day)));
            if (!date.ok())
                Refuse("There is no such date");
            const auto next = [&](int one) { return numbers[one] + (one == part ? 1 : 0); };
            return Period{LocalMidnight(year, month, day),
                          LocalMidnight(next(0), next(1), next(2))};
        }
    }
    return std::nullopt;
}

LocusCondition ChangedIn(Library& library, const std::string& value)
{
    std::string_view rest = value;
    const char sign = rest.front();
    const bool isCompared = sign == '<' || sign == '>';
    rest.remove_prefix(isCompared ? 1 : 0);
    const bool isIncluded = isCompared && rest.starts_with('=');
    rest.remove_prefix(isIncluded ? 1 : 0);
    const auto period = PeriodOf(rest);
    if (!period)
        return {};
    // From the one moment on, and before the other.
    std::chrono::sys_seconds from = period->Begin;
    std::chrono::sys_seconds before = period->End;
    if (sign == '>')
    {
        from = isIncluded ? period->Begin : period->End;
        before = std::chrono::sys_seconds::max();
    }
    if (sign == '<')
    {
        from = std::chrono::sys_seconds::min();
        before = isIncluded ? period->End : period->Begin;
    }
    return [&loci = library.Loci(), from, before](std::size_t position) {
        const Date& changed = loci[position].Changed;
        return changed && *changed >= from && *changed < before;
    };
}

/// The loci in which a check finds something: by rules whose names begin with the value.
LocusCondition WithProblem(Library& library, const std::string& value)
{
    std::string names;
    bool isRule = false;
    for (const CheckRule& rule : CheckRules)
    {
        names.append(names.empty() ? "" : ", ").append(rule.Name);
        isRule = isRule || rule.Name.starts_with(value);
    }
    if (!isRule)
        Refuse("No rule has such a name; there are " + names);
    return [&problems = library.Problems(),
            begin = FoldedTexts::Separator + value](std::size_t position) {
        return problems[position].find(begin) != std::string_view::npos;
    };
}

constexpr SearchTerm terms[] = {
    {"dye", OfDye},       {"panel", OfPanel},     {"project", OfProject},
    {"range", OverRange}, {"allele", WithAllele}, {"repeat", OfRepeat},
    {"used", Used},       {"changed", ChangedIn}, {"problem", WithProblem, true},
};

} // namespace

std::span<const SearchTerm> SearchTerms()
{
    return terms;
}

} // namespace Tamrivo
