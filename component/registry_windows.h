#pragma once

#include "component/com.h"
#include "component/registry_entry.h"

#include <optional>
#include <string>
#include <string_view>

/// Where classes are found by name under Windows: in the registry of the platform. In this header
/// alone, for programs that link nothing of the library.
namespace Tamrivo::Registry
{

/// A text of `HKEY_CLASSES_ROOT`, the unnamed value of a key; empty when there is none.
inline std::wstring ClassesText(const std::wstring& key)
{
    DWORD size = 0;
    const auto get = [&](void* text) {
        return RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text,
                            &size);
    };
    if (get(nullptr) != ERROR_SUCCESS)
        return {};
    std::wstring text(size / sizeof(wchar_t), L'\0');
    if (get(text.data()) != ERROR_SUCCESS)
        return {};
    return text.c_str();
}

/// The entry of a class; none when it isn't registered.
inline std::optional<Entry> Find(std::string_view className)
{
    const std::wstring name(className.begin(), className.end());
    const std::wstring classId = ClassesText(name + L"\\CLSID");
    const std::wstring module = ClassesText(L"CLSID\\" + classId + L"\\InprocServer32");
    if (classId.empty() || module.empty())
        return std::nullopt;
    return Entry{std::string(className), PathText(classId), module};
}

} // namespace Tamrivo::Registry
