#include "host/panels/table/table_header.h"

#include "host/panels/cells.h"
#include "host/panels/locus_columns.h"

namespace Tamrivo
{

namespace
{

template <class Map>
std::size_t PositionIn(const Map& positions, std::string_view name)
{
    const auto found = positions.find(name);
    return found == positions.end() ? TableHeader::NoPosition : found->second;
}

} // namespace

std::vector<PanelComplaint> TableHeader::Read(const std::vector<std::string_view>& cells)
{
    std::vector<PanelComplaint> complaints;
    m_columnCount = cells.size();
    Positions positions;
    for (std::size_t position = 0; position < m_columnCount; ++position)
    {
        const std::string name = Trim(UnquotedCell(cells[position]));
        if (!positions.emplace(name, position).second && !name.empty())
            complaints.push_back({{}, 0, name, "Two columns have this name; expected one"});
    }
    if (const std::string missing = FindColumns(positions); !missing.empty())
        complaints.push_back({{},
                              0,
                              {},
                              "The first line must name the columns of a panel table, separated "
                              "by tabs; missing: " +
                                  missing});
    FindFields(positions);
    return complaints;
}

std::string TableHeader::FindColumns(const Positions& positions)
{
    std::string missing;
    for (std::size_t column = 0; column < PanelColumnCount; ++column)
    {
        const PanelColumnRule& rule = PanelColumnRules[column];
        m_positions[column] = PositionIn(positions, rule.Name);
        if (rule.IsRequired && m_positions[column] == NoPosition)
            missing += (missing.empty() ? "" : ", ") + std::string(rule.Name);
        if (rule.IsOfMarker && m_positions[column] != NoPosition)
            m_markerColumns.push_back({rule.Name, m_positions[column]});
    }
    return missing;
}

void TableHeader::FindFields(const Positions& positions)
{
    for (const LocusField* field : LocusFieldColumns())
    {
        const std::size_t position = PositionIn(positions, field->Name);
        if (position == NoPosition)
            continue;
        m_fieldColumns.emplace_back(field, position);
        m_markerColumns.push_back({field->Name, position});
    }
}

} // namespace Tamrivo
