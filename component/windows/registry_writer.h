#pragma once

#include "component/com.h"

#include <optional>
#include <string>
#include <vector>

/// Texts in the platform's registry. Each function raises `std::system_error` with the platform's
/// code where the registry refuses.
namespace Tamrivo::Registry
{

struct Value
{
    std::wstring Key;
    std::wstring Name; ///< Empty for the value without a name.
    std::wstring Text;
};

/// The text of a value; none when it isn't there.
std::optional<std::wstring> Read(HKEY root, const std::wstring& key, const std::wstring& name);

/// Whether this program may enter classes there.
bool MayWrite(HKEY root);

/// Writes all of the values, or nothing: a failure puts back what was there before.
void Write(HKEY root, const std::vector<Value>& values);

/// Takes the values away, and those of their keys that hold nothing else.
void Remove(HKEY root, const std::vector<Value>& values);

} // namespace Tamrivo::Registry
