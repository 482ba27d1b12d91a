#include "host/panels/panel_marker.h"

#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

bool IsControl(unsigned char character)
{
    return character < ' ' || character == 0x7F;
}

} // namespace

std::string PanelComplaint::Text() const
{
    std::string place = File;
    if (Line > 0)
        place += (place.empty() ? "line " : ", line ") + std::to_string(Line);
    if (Character > 0)
        place += ", column " + std::to_string(Character);
    if (!Column.empty())
        place += (Character > 0 ? ", element " : ", column ") + Column;
    return PrintableText(place.empty() ? Problem : place + ": " + Problem);
}

std::string QuotedCell(std::string_view text)
{
    constexpr std::size_t most = 60;
    if (text.empty())
        return "nothing";
    std::string shown = PrintableText(std::string(text.substr(0, 4 * most)));
    if (CharacterCount(shown) > most)
        shown = Characters(shown, 0, most) + "...";
    return "\"" + shown + "\"";
}

std::string PrintableText(std::string text)
{
    std::ranges::replace_if(text, &IsControl, '?');
    return text;
}

bool IsPrintableText(std::string_view text)
{
    return std::ranges::none_of(text, &IsControl);
}

} // namespace Tamrivo
