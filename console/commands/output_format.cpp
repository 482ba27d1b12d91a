#include "console/commands/output_format.h"

#include "core/text.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace Tamrivo
{

namespace
{

constexpr std::string_view formatNames[] = {"table", "tsv", "json", "html"};

std::string_view NameOf(OutputFormat format)
{
    return formatNames[static_cast<std::size_t>(format)];
}

} // namespace

void AddFormatOption(CLI::App& command, OutputFormat& format,
                     const std::vector<OutputFormat>& offered)
{
    std::string names;
    for (const OutputFormat one : offered)
        names.append(names.empty() ? "" : "|").append(NameOf(one));
    const auto choose = [&format, offered, names](const std::string& name) {
        const auto chosen = std::ranges::find_if(
            offered, [&name](OutputFormat one) { return EqualNoCase(name, NameOf(one)); });
        if (chosen == offered.end())
            throw CLI::ValidationError("--format", "\"" + name + "\" is none of " + names);
        format = *chosen;
    };
    format = offered.front();
    command
        .add_option_function<std::string>("--format", choose,
                                          "How to print it; a table for people unless named")
        ->type_name(names);
}

} // namespace Tamrivo
