#pragma once

#include "component/com.h"

#include <array>
#include <cstdio>
#include <optional>
#include <string>

namespace Tamrivo
{

/// The identifier in braces, as in "{00000001-0000-0000-C000-000000000046}".
inline std::string GuidText(const GUID& guid)
{
    std::array<char, 39> text;
    std::snprintf(text.data(), text.size(),
                  "{%08lX-%04hX-%04hX-%02hhX%02hhX-%02hhX%02hhX%02hhX%02hhX%02hhX%02hhX}",
                  static_cast<unsigned long>(guid.Data1), guid.Data2, guid.Data3, guid.Data4[0],
                  guid.Data4[1], guid.Data4[2], guid.Data4[3], guid.Data4[4], guid.Data4[5],
                  guid.Data4[6], guid.Data4[7]);
    return text.data();
}

/// The identifier that `GuidText` wrote; none when the text is no such identifier.
inline std::optional<GUID> GuidFromText(const std::string& text)
{
    unsigned long data1 = 0;
    GUID guid{};
    std::sscanf(text.c_str(), "{%8lx-%4hx-%4hx-%2hhx%2hhx-%2hhx%2hhx%2hhx%2hhx%2hhx%2hhx}", &data1,
                &guid.Data2, &guid.Data3, &guid.Data4[0], &guid.Data4[1], &guid.Data4[2],
                &guid.Data4[3], &guid.Data4[4], &guid.Data4[5], &guid.Data4[6], &guid.Data4[7]);
    guid.Data1 = static_cast<decltype(guid.Data1)>(data1);
    return GuidText(guid) == text ? std::optional(guid) : std::nullopt;
}

} // namespace Tamrivo
