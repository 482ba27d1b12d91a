#include "host/panels/bins/bins_lines.h"

#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

struct Word
{
    std::string_view Text;
    BinsLine Kind;
};

constexpr Word words[] = {
    {"Version", BinsLine::Version},
    {"Kit type:", BinsLine::KitType},
    {"Chemistry Kit", BinsLine::Chemistry},
    {"BinSet Name", BinsLine::BinSet},
    {"Panel Name", BinsLine::BinsPanel},
    {"Marker Name", BinsLine::Marker},
    {"Panel", BinsLine::Panel},
};

} // namespace

std::string_view BinsCell(std::string_view cell)
{
    const std::size_t start = cell.find_first_not_of(" \"");
    if (start == std::string_view::npos)
        return {};
    return cell.substr(start, cell.find_last_not_of(" \"") - start + 1);
}

BinsLine KindOf(std::string_view firstCell)
{
    const std::string_view cell = BinsCell(firstCell);
    const auto* word = std::ranges::find_if(
        words, [cell](const Word& row) { return EqualNoCase(cell, row.Text); });
    return word == std::end(words) ? BinsLine::Content : word->Kind;
}

bool IsPanelsOrBins(std::string_view text)
{
    TableLines lines(text);
    if (!lines.Next())
        return false;
    const BinsLine kind = KindOf(lines.Cell(0));
    // A panel table's header may begin with "Panel" or "Marker" as well.
    const bool isTable = std::ranges::any_of(lines.Cells(), [](std::string_view cell) {
        return EqualNoCase(BinsCell(cell), "Allele") || EqualNoCase(BinsCell(cell), "Color");
    });
    return kind != BinsLine::Content && !isTable;
}

bool IsBins(std::string_view text)
{
    TableLines lines(text);
    for (int line = 0; line < 20 && lines.Next(); ++line)
    {
        const BinsLine kind = KindOf(lines.Cell(0));
        if (kind == BinsLine::BinSet || kind == BinsLine::BinsPanel || kind == BinsLine::Marker)
            return true;
        if (kind == BinsLine::KitType || kind == BinsLine::Panel)
            return false;
    }
    return false;
}

} // namespace Tamrivo
