#include "host/panels/cells.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace Tamrivo
{

namespace
{

struct EscapedCharacter
{
    char Character;
    char Letter;
};

constexpr EscapedCharacter escapedCharacters[] = {
    {'\t', 't'}, {'\n', 'n'}, {'\r', 'r'}, {'\\', '\\'}};

/// A number of few digits, as most are. Its digits and the power of ten are exact, so that their
/// quotient is the nearest number. None for any other text.
std::optional<double> ShortNumber(std::string_view cell)
{
    constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};
    if (cell.size() > std::size(powers) || cell.empty() || cell == ".")
        return std::nullopt;
    std::int64_t digits = 0;
    std::size_t decimals = 0;
    bool isBehindPoint = false;
    for (const char character : cell)
    {
        if (character >= '0' && character <= '9')
        {
            digits = 10 * digits + (character - '0');
            decimals += isBehindPoint ? 1 : 0;
        }
        else if (character == '.' && !isBehindPoint)
            isBehindPoint = true;
        else
            return std::nullopt;
    }
    return static_cast<double>(digits) / powers[decimals];
}

} // namespace

void SplitCells(std::string_view line, std::vector<std::string_view>& cells)
{
    cells.clear();
    for (std::size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t'))
    {
        cells.push_back(line.substr(0, tab));
        line.remove_prefix(tab + 1);
    }
    cells.push_back(line);
}

std::string EscapeCell(std::string_view text)
{
    std::string cell;
    for (const char character : text)
    {
        char letter = 0;
        for (const EscapedCharacter& escaped : escapedCharacters)
            letter = escaped.Character == character ? escaped.Letter : letter;
        if (letter != 0)
            cell += '\\';
        cell += letter != 0 ? letter : character;
    }
    return cell;
}

std::string UnescapeCell(std::string_view cell)
{
    if (cell.find('\\') == std::string_view::npos)
        return std::string(cell);
    std::string text;
    for (std::size_t at = 0; at < cell.size(); ++at)
    {
        text += cell[at];
        if (cell[at] != '\\' || at + 1 == cell.size())
            continue;
        for (const EscapedCharacter& escaped : escapedCharacters)
        {
            if (escaped.Letter == cell[at + 1])
            {
                text.back() = escaped.Character;
                ++at;
                break;
            }
        }
    }
    return text;
}

std::string UnquotedCell(std::string_view cell)
{
    if (cell.size() < 2 || !cell.starts_with('"') || !cell.ends_with('"'))
        return std::string(cell);
    std::string text;
    cell = cell.substr(1, cell.size() - 2);
    for (std::size_t at = 0; at < cell.size(); ++at)
    {
        const bool isEscape = cell[at] == '\\' || cell[at] == '"';
        if (isEscape && at + 1 < cell.size() && cell[at + 1] == '"')
            ++at;
        text += cell[at];
    }
    return text;
}

std::optional<double> CellNumber(std::string_view cell)
{
    while (cell.starts_with(' '))
        cell.remove_prefix(1);
    while (cell.ends_with(' '))
        cell.remove_suffix(1);
    if (const auto number = ShortNumber(cell))
        return number;
    double value = 0;
    const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), value);
    if (error != std::errc() || end != cell.data() + cell.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::int32_t> CellWholeNumber(std::string_view cell)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const std::optional<double> number = CellNumber(cell);
    if (!number || *number != std::floor(*number) || *number < Limits::min() ||
        *number > Limits::max())
        return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

std::string NumberCell(double value)
{
    char text[32];
    const auto [end, error] = std::to_chars(std::begin(text), std::end(text), value);
    return {text, end};
}

} // namespace Tamrivo
