#include "host/store/json_text.h"

#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Tamrivo
{

namespace
{

constexpr std::string_view hexDigits = "0123456789abcdef";

template <class Number>
void AppendNumber(std::string& text, Number value)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(digits.data(), end);
}

bool IsPlain(char character)
{
    return static_cast<unsigned char>(character) >= 0x20 && character != '"' && character != '\\';
}

} // namespace

void JsonText::Name(std::string_view name)
{
    Separate();
    Quote(name);
    m_text += ':';
}

void JsonText::Value(const std::string& value)
{
    Separate();
    if (IsUtf8(value))
    {
        Quote(value);
        return;
    }
    m_text += R"({"Bytes":")";
    for (const char byte : value)
    {
        m_text += hexDigits[static_cast<unsigned char>(byte) >> 4U];
        m_text += hexDigits[static_cast<unsigned char>(byte) & 0xFU];
    }
    m_text += "\"}";
}

void JsonText::Value(double value)
{
    Separate();
    if (std::isfinite(value))
        AppendNumber(m_text, value);
    else
        Quote(std::isnan(value) ? "nan" : value > 0 ? "inf" : "-inf");
}

void JsonText::Value(long long value)
{
    Separate();
    AppendNumber(m_text, value);
}

void JsonText::Value(bool value)
{
    Separate();
    m_text += value ? "true" : "false";
}

void JsonText::Begin(char bracket)
{
    Separate();
    m_text += bracket;
}

void JsonText::Separate()
{
    const char last = m_text.empty() ? '[' : m_text.back();
    if (last != '[' && last != '{' && last != ':')
        m_text += ',';
}

void JsonText::Quote(std::string_view text)
{
    m_text += '"';
    if (std::ranges::all_of(text, IsPlain))
    {
        m_text += text;
    }
    else
    {
        for (const char character : text)
        {
            if (IsPlain(character))
            {
                m_text += character;
                continue;
            }
            const auto code = static_cast<unsigned char>(character);
            if (code >= 0x20)
                m_text.append(1, '\\').append(1, character);
            else
                m_text.append("\\u00")
                    .append(1, hexDigits[code >> 4U])
                    .append(1, hexDigits[code & 0xFU]);
        }
    }
    m_text += '"';
}

} // namespace Tamrivo
