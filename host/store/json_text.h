#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// JSON written from front to back, without building it up first. Texts that aren't UTF-8 are
/// written as {"Bytes": "HEX"}, numbers without a decimal form as text.
class JsonText
{
public:
    void BeginObject() { Begin('{'); }
    void EndObject() { m_text += '}'; }
    void BeginArray() { Begin('['); }
    void EndArray() { m_text += ']'; }

    /// The name of the member whose value comes next.
    void Name(std::string_view name);
    void Value(const std::string& value);
    void Value(double value);
    void Value(std::int32_t value) { Value(static_cast<long long>(value)); }
    void Value(long long value);
    void Value(bool value);

    template <class Member>
    void Add(std::string_view name, const Member& value)
    {
        Name(name);
        Value(value);
    }

    const std::string& Text() const { return m_text; }
    void Clear() { m_text.clear(); }

private:
    void Begin(char bracket);
    void Separate();
    void Quote(std::string_view text);

    std::string m_text;
};

} // namespace Tamrivo
