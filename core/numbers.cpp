#include "core/numbers.h"

#include "core/error.h"
#include "core/locale.h"
#include "core/narrowing.h"
#include "core/text.h"

#include <charconv>
#include <climits>
#include <cmath>
#include <iomanip>
#include <limits>
#include <optional>
#include <sstream>
#include <vector>

namespace Tamrivo
{

namespace
{

/// Reads a text from the left.
class Reader
{
public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    bool AtEnd() const { return m_rest.empty(); }
    bool AtDigit() const { return !m_rest.empty() && m_rest[0] >= '0' && m_rest[0] <= '9'; }

    bool Skip(std::string_view mark)
    {
        if (mark.empty() || !m_rest.starts_with(mark))
            return false;
        m_rest.remove_prefix(mark.size());
        return true;
    }

    /// Appends the digits that follow and gives their number.
    std::size_t TakeDigits(std::string& digits)
    {
        std::size_t count = 0;
        for (; AtDigit(); ++count)
        {
            digits += m_rest[0];
            m_rest.remove_prefix(1);
        }
        return count;
    }

private:
    std::string_view m_rest;
};

/// Whether groups of these sizes, from the left, are grouped as the locale groups digits.
bool GroupsFit(const std::vector<std::size_t>& groups, std::string_view grouping)
{
    std::size_t rule = 0;
    for (std::size_t i = groups.size(); i-- > 0; rule = std::min(rule + 1, grouping.size() - 1))
    {
        const bool unlimited = grouping[rule] <= 0 || grouping[rule] == CHAR_MAX;
        const std::size_t size = static_cast<unsigned char>(grouping[rule]);
        const bool leftmost = i == 0;
        const bool fits = leftmost ? groups[i] > 0 && (unlimited || groups[i] <= size)
                                   : !unlimited && groups[i] == size;
        if (!fits)
            return false;
    }
    return true;
}

/// The number in the notation of the C language, or nothing when the text is no number.
std::optional<std::string> Normalize(std::string_view text)
{
    const NumberNotation& notation = TextNotation();
    const std::string trimmed = Trim(text);
    Reader reader(trimmed);
    std::string number;
    if (reader.Skip("-"))
        number = "-";
    else
        reader.Skip("+");

    std::vector<std::size_t> groups{reader.TakeDigits(number)};
    while (groups.front() > 0 && reader.Skip(notation.GroupingMark))
        groups.push_back(reader.TakeDigits(number));
    if (groups.size() > 1 && !GroupsFit(groups, notation.Grouping))
        return std::nullopt;

    bool hasDigits = groups.front() > 0;
    if (reader.Skip(notation.DecimalMark))
    {
        number += '.';
        hasDigits |= reader.TakeDigits(number) > 0;
    }
    if (!hasDigits)
        return std::nullopt;

    if (reader.Skip("e") || reader.Skip("E"))
    {
        number += 'e';
        if (reader.Skip("-"))
            number += '-';
        else
            reader.Skip("+");
        if (reader.TakeDigits(number) == 0)
            return std::nullopt;
    }
    if (!reader.AtEnd())
        return std::nullopt;
    return number;
}

std::optional<double> Parse(std::string_view text)
{
    const auto number = Normalize(text);
    if (!number)
        return std::nullopt;
    double value = 0;
    const auto result = std::from_chars(number->data(), number->data() + number->size(), value);
    if (result.ec == std::errc())
        return value;
    // Too large, or too close to 0: a stream tells them apart.
    std::istringstream stream(*number);
    stream.imbue(std::locale::classic());
    return stream >> value ? std::optional(value) : std::nullopt;
}

/// The text in quotes, shortened where it would drown the message.
std::string Quoted(std::string_view text)
{
    constexpr std::size_t longest = 40;
    const bool shortened = CharacterCount(text) > longest;
    return "\"" + Characters(text, 0, longest) + (shortened ? "...\"" : "\"");
}

} // namespace

bool IsNumeric(std::string_view text)
{
    return Parse(text).has_value();
}

double ToDouble(std::string_view text)
{
    if (const auto value = Parse(text))
        return *value;
    throw Failure(ErrorNumber::NotANumber, "ToDouble", Quoted(text) + " is not a number");
}

std::int32_t ToInteger(std::string_view text)
{
    const auto value = Parse(text);
    if (!value)
        throw Failure(ErrorNumber::NotANumber, "ToInteger", Quoted(text) + " is not a number");
    if (const auto nearest = NearestInteger(*value))
        return *nearest;
    throw Failure(ErrorNumber::OutOfRange, "ToInteger",
                  Quoted(text) + " is too large for a whole number of 32 bits");
}

std::string IntegerText(std::int32_t value)
{
    return std::to_string(value);
}

std::string DoubleText(double value)
{
    // As a person writes it: an exponent only where the zeros would hide the number.
    const double magnitude = std::abs(value);
    const bool isPlain = magnitude == 0 || (magnitude >= 1e-4 && magnitude < 1e15);
    const auto format = isPlain ? std::chars_format::fixed : std::chars_format::scientific;
    char buffer[32];
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), value, format).ptr;
    std::string text(buffer, end);
    if (const auto mark = text.find('.'); mark != std::string::npos)
        text.replace(mark, 1, TextNotation().DecimalMark);
    return text;
}

std::string TwoDecimals(double value)
{
    std::wostringstream stream;
    stream.imbue(TextLocale());
    stream << std::fixed << std::setprecision(2) << value;
    const std::wstring wide = stream.str();
    return Encode(std::u32string(wide.begin(), wide.end()));
}

} // namespace Tamrivo
