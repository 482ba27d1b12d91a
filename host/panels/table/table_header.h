#pragma once

#include "contracts/locus_fields.h"
#include "core/text.h"
#include "host/panels/panel_marker.h"
#include "host/panels/table/panel_table.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// Where the columns of a panel table stand.
class TableHeader
{
public:
    static constexpr std::size_t NoPosition = static_cast<std::size_t>(-1);

    /// A column whose cells agree on all lines of a marker.
    struct MarkerColumn
    {
        std::string_view Name;
        std::size_t Position;
    };

    /// Reads the table's first line. Gives what is wrong with it, without the number of the line.
    std::vector<PanelComplaint> Read(const std::vector<std::string_view>& cells);

    std::size_t ColumnCount() const { return m_columnCount; }
    std::size_t PositionOf(PanelColumn column) const
    {
        return m_positions[static_cast<std::size_t>(column)];
    }
    bool Has(PanelColumn column) const { return PositionOf(column) != NoPosition; }
    /// Whether the table was written by this program.
    bool IsOwn() const { return Has(PanelColumn::LocusTag) && Has(PanelColumn::AlleleInt1); }

    const std::vector<MarkerColumn>& MarkerColumns() const { return m_markerColumns; }
    /// Further fields of the locus, and where their columns stand.
    const std::vector<std::pair<const LocusField*, std::size_t>>& FieldColumns() const
    {
        return m_fieldColumns;
    }

private:
    using Positions = std::map<std::string, std::size_t, LessNoCase>;

    /// Finds the columns with a meaning of their own. Gives those that are missing.
    std::string FindColumns(const Positions& positions);
    void FindFields(const Positions& positions);

    std::size_t m_columnCount = 0;
    std::size_t m_positions[PanelColumnCount] = {};
    std::vector<MarkerColumn> m_markerColumns;
    std::vector<std::pair<const LocusField*, std::size_t>> m_fieldColumns;
};

} // namespace Tamrivo
