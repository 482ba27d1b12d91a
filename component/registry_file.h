#pragma once

#include "component/registry_entry.h"
#include "core/text.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

/// The file that tells programs where the classes are that they create by name: in the user's data
/// directory, a line a class, of name, class identifier in braces and the module's full path,
/// separated by tabs, in UTF-8. In this header alone, for programs that link nothing of the
/// library.
namespace Tamrivo::Registry
{

/// "tamrivo/classes.tsv" in `XDG_DATA_HOME`, else in "~/.local/share". Empty when the environment
/// names no such directory.
inline std::filesystem::path Path()
{
    const auto variable = [](const char* name) {
        const char* const value = std::getenv(name);
        return std::filesystem::path(value ? value : "");
    };
    std::filesystem::path data = variable("XDG_DATA_HOME");
    if (!data.is_absolute())
        data = variable("HOME") / ".local" / "share";
    return data.is_absolute() ? data / "tamrivo" / "classes.tsv" : std::filesystem::path();
}

/// The entry in a line; none when the line has another form.
inline std::optional<Entry> Parse(std::string_view line)
{
    const auto first = line.find('\t');
    const auto second = line.find('\t', first + 1);
    if (first == line.npos || second == line.npos)
        return std::nullopt;
    return Entry{std::string(line.substr(0, first)),
                 std::string(line.substr(first + 1, second - first - 1)),
                 std::u8string(line.begin() + static_cast<std::ptrdiff_t>(second) + 1, line.end())};
}

/// The entry of a class, by its name without minding case; none when it isn't registered.
inline std::optional<Entry> Find(std::string_view className)
{
    std::ifstream file(Path());
    for (std::string line; std::getline(file, line);)
    {
        if (auto entry = Parse(line); entry && EqualNoCase(entry->Name, className))
            return entry;
    }
    return std::nullopt;
}

} // namespace Tamrivo::Registry
