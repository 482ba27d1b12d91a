#include "component/registration.h"

#include "component/class_table.h"
#include "component/guid_text.h"
#include "component/module_path.h"
#include "component/registry_file.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace Tamrivo
{

namespace
{

using Lines = std::vector<std::string>;

Lines ReadLines(const std::filesystem::path& path)
{
    Lines lines;
    std::ifstream file(path);
    if (!file && std::filesystem::exists(path))
        throw std::runtime_error(Registry::PathText(path) + " can't be read");
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

void WriteLines(const std::filesystem::path& path, const Lines& lines)
{
    std::filesystem::create_directories(path.parent_path());
    std::filesystem::path temporary = path;
    temporary += ".new";
    std::ofstream file(temporary);
    for (const std::string& line : lines)
        file << line << '\n';
    file.close();
    if (!file)
        throw std::runtime_error(Registry::PathText(temporary) + " can't be written");
    std::filesystem::rename(temporary, path);
}

/// Replaces the lines of this module's classes by `entries`; `isOwn` tells which those are.
template <class IsOwn>
void Rewrite(IsOwn isOwn, const Lines& entries)
{
    const std::filesystem::path path = Registry::Path();
    if (path.empty())
        throw std::runtime_error("The environment names no directory for the user's data");
    Lines lines = ReadLines(path);
    std::erase_if(lines, [&](const std::string& line) {
        const auto entry = Registry::Parse(line);
        return entry && isOwn(*entry);
    });
    lines.insert(lines.end(), entries.begin(), entries.end());
    if (lines.empty())
        std::filesystem::remove(path);
    else
        WriteLines(path, lines);
}

bool HasOurName(const Registry::Entry& entry)
{
    return std::ranges::any_of(CreatableClasses(), [&](const CreatableClass& created) {
        return EqualNoCase(created.Name, entry.Name);
    });
}

} // namespace

void RegisterClasses()
{
    const std::string path = Registry::PathText(ModulePath());
    if (path.find_first_of("\n\t") != std::string::npos)
        throw std::runtime_error(
            "A module can't be registered under a path with tabs or line ends");
    Lines entries;
    for (const CreatableClass& created : CreatableClasses())
        entries.push_back(std::string(created.Name) + '\t' + GuidText(created.Id) + '\t' + path);
    Rewrite(HasOurName, entries);
}

void UnregisterClasses()
{
    const std::filesystem::path& path = ModulePath();
    Rewrite(
        [&](const Registry::Entry& entry) { return HasOurName(entry) && entry.ModulePath == path; },
        {});
}

} // namespace Tamrivo
