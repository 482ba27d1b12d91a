#include "host/panels/panel_format.h"

#include "core/text.h"
#include "host/panels/bins/bins_lines.h"

namespace Tamrivo
{

std::optional<PanelFormat> FindFormat(std::string_view option)
{
    for (std::size_t format = 0; format < std::size(PanelFormatNames); ++format)
    {
        if (EqualNoCase(option, PanelFormatNames[format].Option))
            return static_cast<PanelFormat>(format);
    }
    return std::nullopt;
}

PanelFormat DetectFormat(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    if (start != std::string_view::npos && text[start] == '<')
        return PanelFormat::OsirisKit;
    const std::string_view header =
        text.substr(0, std::min(text.find('\n', start == std::string_view::npos ? 0 : start),
                                std::size_t{4096}));
    if (header.find("Short.Name") != std::string_view::npos)
        return PanelFormat::KitTable;
    return IsPanelsOrBins(text) ? PanelFormat::PanelsBins : PanelFormat::PanelTable;
}

std::string ProblemOfBytes(std::string_view bytes)
{
    if (bytes.empty())
        return "The file is empty";
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return "The file is UTF-16; save it as UTF-8";
    if (bytes.find('\0') != std::string_view::npos)
        return "The file is binary or UTF-16; a text in UTF-8 was expected";
    return {};
}

} // namespace Tamrivo
