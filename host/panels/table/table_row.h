#pragma once

#include "host/panels/table/table_header.h"
#include "host/panels/table/table_lines.h"

#include <optional>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// The line of a table that is being read: its cells by column, as what they ought to be. What a
/// cell isn't becomes a flaw of the line's marker.
class TableRow
{
public:
    /// Header and lines must outlive this object; it follows the lines.
    TableRow(const TableHeader& header, const TableLines& lines) : m_header(header), m_lines(lines)
    {}

    std::string_view Cell(PanelColumn column) const
    {
        return m_lines.Cell(m_header.PositionOf(column));
    }
    /// Whether the cell has nothing in it, or "NA".
    bool IsMissing(PanelColumn column) const;

    /// The text of a cell. Only tables of this program put backslashes before tabs and line ends
    /// and leave quotes as they are.
    std::string Text(PanelColumn column) const;
    /// The text of a cell that people read.
    std::string Name(PanelMarker& marker, PanelColumn column) const;
    /// The name of an allele; "9.30" and "9.3" are one.
    std::string AlleleName(PanelMarker& marker) const;
    double Number(PanelMarker& marker, PanelColumn column, std::string_view what) const;
    std::int32_t WholeNumber(PanelMarker& marker, PanelColumn column,
                             std::string_view expected) const;
    /// The cell's whole number from 0 to `high`; `initial` for an empty cell.
    std::int32_t OneOf(PanelMarker& marker, PanelColumn column, std::int32_t initial,
                       std::int32_t high, std::string_view expected) const;

    void AddFlaw(PanelMarker& marker, std::string_view column, std::string problem,
                 bool isLack = false) const;
    /// The cell is not what was expected; a missing one is told once a marker.
    void Expect(PanelMarker& marker, PanelColumn column, std::string_view expected) const;

private:
    const TableHeader& m_header;
    const TableLines& m_lines;
};

/// The cell without blanks around it.
std::string_view TrimmedCell(std::string_view cell);

} // namespace Tamrivo
