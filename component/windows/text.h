#pragma once

#include "component/com.h"

#include <string>
#include <string_view>

namespace Tamrivo
{

/// UTF-8 as the platform's text.
inline std::wstring Wide(std::string_view text)
{
    const auto size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
    return wide;
}

/// The platform's text as UTF-8. Null is the empty text.
inline std::string Utf8(const BSTR text)
{
    const auto size = static_cast<int>(SysStringLen(text));
    std::string narrow(static_cast<std::size_t>(size) * 3, '\0');
    narrow.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text, size, narrow.data(), size * 3, nullptr, nullptr)));
    return narrow;
}

/// The text as the caller's own.
inline BSTR NewText(std::string_view text)
{
    const std::wstring wide = Wide(text);
    return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

} // namespace Tamrivo
