#include "component/windows/date_reading.h"

#include <algorithm>
#include <string>

namespace Tamrivo
{

namespace
{

using Input = std::time_get<wchar_t>::iter_type;

struct Field
{
    wchar_t Letter;
    int std::tm::*Member;
    int First; ///< What is written for 0.
};

constexpr Field fields[] = {
    {L'd', &std::tm::tm_mday, 0}, {L'M', &std::tm::tm_mon, 1},  {L'y', &std::tm::tm_year, 1900},
    {L'H', &std::tm::tm_hour, 0}, {L'h', &std::tm::tm_hour, 0}, {L'm', &std::tm::tm_min, 0},
    {L's', &std::tm::tm_sec, 0},
};

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

/// -1 where no digit stands.
int ReadNumber(Input& in, const Input& end)
{
    constexpr int most = 9999;
    int number = -1;
    for (; in != end && IsDigit(*in) && number <= most; ++in)
        number = std::max(number, 0) * 10 + (*in - L'0');
    return number;
}

/// The word up to the next number, without blanks around it.
std::wstring ReadWord(Input& in, const Input& end)
{
    std::wstring word;
    for (; in != end && !IsDigit(*in); ++in)
        word += *in;
    word.erase(0, std::min(word.find_first_not_of(L' '), word.size()));
    return word.substr(0, word.find_last_not_of(L' ') + 1);
}

bool ReadField(const Field& field, std::size_t letters, Input& in, const Input& end, std::tm& time)
{
    int number = ReadNumber(in, end);
    const bool isName = letters > 2 && field.Letter != L'y';
    if (number < 0 || isName)
        return false;
    if (field.Letter == L'y' && letters <= 2)
        number += number < 69 ? 2000 : 1900;
    time.*field.Member = number - field.First;
    return true;
}

} // namespace

Input ReadDate(Input in, Input end, std::wstring_view picture, std::wstring_view afternoon,
               std::ios_base::iostate& state, std::tm& time)
{
    bool isRead = true;
    bool isAfternoon = false;
    for (std::size_t at = 0; at < picture.size() && isRead;)
    {
        const wchar_t letter = picture[at];
        const std::size_t next = std::min(picture.find_first_not_of(letter, at), picture.size());
        const auto* const field = std::ranges::find(fields, letter, &Field::Letter);
        if (field != std::end(fields))
            isRead = ReadField(*field, next - at, in, end, time);
        else if (letter == L't')
            isAfternoon = ReadWord(in, end) == afternoon;
        else
        {
            for (std::size_t left = letter == L'\'' ? 0 : next - at; left > 0 && isRead; --left)
            {
                isRead = in != end && *in == letter;
                if (isRead)
                    ++in;
            }
        }
        at = next;
    }
    if (picture.find(L'h') != std::wstring_view::npos)
        time.tm_hour = time.tm_hour % 12 + (isAfternoon ? 12 : 0);
    if (!isRead)
        state |= std::ios_base::failbit;
    return in;
}

} // namespace Tamrivo
