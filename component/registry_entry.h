#pragma once

#include <filesystem>
#include <string>

namespace Tamrivo::Registry
{

/// Where a class is that a program creates by name.
struct Entry
{
    std::string Name;
    std::string ClassId; ///< In braces.
    std::filesystem::path ModulePath;
};

/// A path in UTF-8, whatever the platform's own encoding is.
inline std::string PathText(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace Tamrivo::Registry
