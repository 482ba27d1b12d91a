#include "console/commands/output_format.h"

#include <map>
#include <string>

namespace Tamrivo
{

void AddFormatOption(CLI::App& command, OutputFormat& format,
                     const std::vector<OutputFormat>& offered)
{
    constexpr const char* names[] = {"table", "tsv", "json", "html"};
    std::map<std::string, OutputFormat> formats;
    std::string list;
    for (const OutputFormat one : offered)
    {
        const std::string name = names[static_cast<std::size_t>(one)];
        formats.emplace(name, one);
        list += (list.empty() ? "" : "|") + name;
    }
    format = offered.front();
    command.add_option("--format", format, "How to print it; a table for people unless named")
        ->transform(CLI::CheckedTransformer(formats, CLI::ignore_case).description(""))
        ->type_name(list);
}

} // namespace Tamrivo
