#include "host/panels/panel_format.h"

#include "core/text.h"
#include "host/panels/bins/bins_lines.h"

namespace Tamrivo
{

std::string FormatOptions(std::string_view between)
{
    std::string options;
    for (const PanelFormatName& format : PanelFormatNames)
        options.append(options.empty() ? "" : between).append(format.Option);
    return options;
}

std::optional<PanelFormat> FindFormat(std::string_view option)
{
    for (std::size_t format = 0; format < std::size(PanelFormatNames); ++format)
    {
        if (EqualNoCase(option, PanelFormatNames[format].Option))
            return static_cast<PanelFormat>(format);
    }
    return std::nullopt;
}

PanelFormat DetectFormat(std::string_view head)
{
    head.remove_prefix(std::min(head.find_first_not_of(" \t\r\n"), head.size()));
    if (head.starts_with('<'))
        return PanelFormat::OsirisKit;
    const std::string_view header = head.substr(0, std::min(head.find('\n'), std::size_t{4096}));
    if (header.find("Short.Name") != std::string_view::npos)
        return PanelFormat::KitTable;
    return IsPanelsOrBins(head) ? PanelFormat::PanelsBins : PanelFormat::PanelTable;
}

std::string ProblemOfBytes(std::string_view head)
{
    if (head.empty())
        return "The file is empty";
    if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF"))
        return "The file is UTF-16; save it as UTF-8";
    if (head.find('\0') != std::string_view::npos)
        return "The file is binary or UTF-16; a text in UTF-8 was expected";
    return {};
}

} // namespace Tamrivo
