#include "host/panels/table/table_row.h"

#include "host/panels/cells.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

std::string_view NameOf(PanelColumn column)
{
    return PanelColumnRules[static_cast<std::size_t>(column)].Name;
}

bool IsNothing(std::string_view cell)
{
    const std::string_view text = TrimmedCell(cell);
    return text.empty() || text == "NA";
}

std::string PlainName(std::string name)
{
    if (name.find('.') != std::string::npos && CellNumber(name))
    {
        name.erase(name.find_last_not_of('0') + 1);
        if (name.ends_with('.'))
            name.pop_back();
    }
    return name;
}

} // namespace

std::string_view TrimmedCell(std::string_view cell)
{
    while (cell.starts_with(' '))
        cell.remove_prefix(1);
    while (cell.ends_with(' '))
        cell.remove_suffix(1);
    return cell;
}

bool TableRow::IsMissing(PanelColumn column) const
{
    return IsNothing(Cell(column));
}

std::string TableRow::Text(PanelColumn column) const
{
    const std::string_view cell = Cell(column);
    if (m_header.IsOwn())
        return UnescapeCell(cell);
    if (cell.starts_with('"'))
        return UnescapeCell(UnquotedCell(cell));
    return cell == "NA" ? "" : UnescapeCell(cell);
}

std::string TableRow::Name(PanelMarker& marker, PanelColumn column) const
{
    std::string name = Text(column);
    if (!m_header.IsOwn() && !IsPrintableText(name))
        AddFlaw(marker, NameOf(column),
                QuotedCell(name) + " has a control character; expected a name that can be read");
    return name;
}

std::string TableRow::AlleleName(PanelMarker& marker) const
{
    std::string name = Name(marker, PanelColumn::Allele);
    return m_header.IsOwn() ? name : PlainName(std::move(name));
}

double TableRow::Number(PanelMarker& marker, PanelColumn column, std::string_view what) const
{
    const auto number = CellNumber(Cell(column));
    if (!number)
        Expect(marker, column, std::string(what) + " in nt with a decimal point, such as 94.05");
    return number.value_or(0);
}

std::int32_t TableRow::WholeNumber(PanelMarker& marker, PanelColumn column,
                                   std::string_view expected) const
{
    const auto number = CellWholeNumber(Cell(column));
    if (!number)
        Expect(marker, column, expected);
    return number.value_or(0);
}

std::int32_t TableRow::OneOf(PanelMarker& marker, PanelColumn column, std::int32_t initial,
                             std::int32_t high, std::string_view expected) const
{
    if (IsMissing(column))
        return initial;
    const auto number = CellWholeNumber(Cell(column));
    if (number && *number >= 0 && *number <= high)
        return *number;
    Expect(marker, column, expected);
    return initial;
}

void TableRow::AddFlaw(PanelMarker& marker, std::string_view column, std::string problem,
                       bool isLack) const
{
    if (marker.Flaws.size() < MaxPanelComplaints)
        marker.Flaws.push_back(
            {{}, m_lines.Number(), std::string(column), std::move(problem), isLack});
}

void TableRow::Expect(PanelMarker& marker, PanelColumn column, std::string_view expected) const
{
    const std::string_view name = NameOf(column);
    const std::string_view cell = Cell(column);
    // A line that ends too early has been cut off.
    const bool isLack = IsNothing(cell) && m_lines.Cells().size() >= m_header.ColumnCount();
    const bool isTold = isLack && std::ranges::any_of(marker.Flaws, [name](const auto& flaw) {
                            return flaw.IsLack && flaw.Column == name;
                        });
    if (!isTold)
        AddFlaw(marker, name,
                QuotedCell(TrimmedCell(cell)) + " stands there; expected " + std::string(expected),
                isLack);
}

} // namespace Tamrivo
