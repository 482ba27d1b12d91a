#include "host/panels/bins/bins_lines.h"

#include "core/text.h"
#include "host/panels/cells.h"

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

/// The cells of the next line that has anything in it.
void NextCells(std::string_view& rest, std::vector<std::string_view>& cells)
{
    rest.remove_prefix(std::min(rest.find_first_not_of("\t \r\n"), rest.size()));
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(line.size());
    SplitCells(line.substr(0, line.find('\r')), cells);
}

} // namespace

std::string_view BinsCell(std::string_view cell)
{
    while (cell.starts_with(' ') || cell.starts_with('"'))
        cell.remove_prefix(1);
    while (cell.ends_with(' ') || cell.ends_with('"'))
        cell.remove_suffix(1);
    return cell;
}

std::string_view TakeName(std::string_view& list)
{
    std::string_view name;
    while (name.empty() && !list.empty())
    {
        const std::size_t comma = std::min(list.find(','), list.size());
        name = BinsCell(list.substr(0, comma));
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return name;
}

BinsLine KindOf(std::string_view firstCell)
{
    const std::string_view cell = BinsCell(firstCell);
    // Most lines are bins of alleles that are numbers.
    if (!cell.empty() && cell.front() >= '0' && cell.front() <= '9')
        return BinsLine::Content;
    const auto* word = std::ranges::find_if(words, [cell](const Word& row) {
        return cell.size() == row.Text.size() && EqualNoCase(cell, row.Text);
    });
    return word == std::end(words) ? BinsLine::Content : word->Kind;
}

bool IsPanelsOrBins(std::string_view head)
{
    std::vector<std::string_view> cells;
    NextCells(head, cells);
    // A panel table's header may begin with "Panel" or "Marker" as well.
    const bool isTable = std::ranges::any_of(cells, [](std::string_view cell) {
        return EqualNoCase(BinsCell(cell), "Allele") || EqualNoCase(BinsCell(cell), "Color");
    });
    return KindOf(cells.front()) != BinsLine::Content && !isTable;
}

bool IsBins(std::string_view head)
{
    std::vector<std::string_view> cells;
    for (int line = 0; line < 20 && !head.empty(); ++line)
    {
        NextCells(head, cells);
        const BinsLine kind = KindOf(cells.front());
        if (kind == BinsLine::BinSet || kind == BinsLine::BinsPanel || kind == BinsLine::Marker)
            return true;
        if (kind == BinsLine::KitType || kind == BinsLine::Panel)
            return false;
    }
    return false;
}

} // namespace Tamrivo
