#include "host/grid/sort_key.h"

#include "core/dates.h"
#include "core/text.h"

#include <algorithm>
#include <cstdint>

namespace Tamrivo
{

namespace
{

/// The lowest byte, which ends a part of a key.
constexpr char End = '\0';

void AppendBigEndian(std::string& key, std::uint64_t value, int bytes)
{
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        key += static_cast<char>((value >> static_cast<unsigned>(shift)) & 0xFFU);
}

/// One byte for the numbers that occur, so that the key of a usual tag is a short string.
void AppendCount(std::string& key, std::size_t count)
{
    constexpr std::size_t first = 0xFF;
    key += static_cast<char>(std::min(count, first));
    if (count >= first)
        AppendBigEndian(key, count, 8);
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Writes a run of digits so that the longer number, and of equally long ones the higher, comes
/// last. The leading mark keeps numbers where their digits stand among other characters.
void AppendNumber(std::string& key, std::string_view digits)
{
    key += '0';
    AppendCount(key, digits.size());
    key += digits;
}

std::string TagKey(std::string_view tag, bool caseCounts)
{
    const std::string folded = FoldCase(tag);
    std::string key;
    // Each number has two bytes more than its digits.
    key.reserve(2 * tag.size());
    std::string leadingZeros;
    for (auto place = folded.begin(); place != folded.end();)
    {
        if (!IsDigit(*place))
        {
            key += *place++;
            continue;
        }
        const auto end = std::find_if_not(place, folded.end(), IsDigit);
        const auto first = std::find_if(place, end, [](char digit) { return digit != '0'; });
        AppendNumber(key, {first, end});
        AppendCount(leadingZeros, static_cast<std::size_t>(first - place));
        place = end;
    }
    key += End;
    key += leadingZeros;
    if (caseCounts)
        key += tag;
    return key;
}

std::string DateKey(std::string_view text)
{
    if (text.empty())
        return {};
    std::string key;
    if (const Date date = DateFromText(text))
    {
        constexpr std::uint64_t signBit = std::uint64_t{1} << 63U;
        key += '0';
        AppendBigEndian(key, static_cast<std::uint64_t>(date->time_since_epoch().count()) ^ signBit,
                        8);
    }
    else
    {
        key += '1';
        key += FoldCase(text);
    }
    return key;
}

} // namespace

std::string SortKey(ColumnKind kind, std::string_view cell, bool caseCounts)
{
    switch (kind)
    {
    case ColumnKind::Tags: return TagKey(cell, caseCounts);
    case ColumnKind::Dates: return DateKey(cell);
    }
    return {};
}

} // namespace Tamrivo
