#include "host/panels/table/table_header.h"

#include "core/text.h"
#include "host/panels/cells.h"
#include "host/panels/locus_columns.h"

#include <map>

namespace Tamrivo
{

std::vector<PanelComplaint> TableHeader::Read(const std::vector<std::string_view>& cells)
{
    std::vector<PanelComplaint> complaints;
    m_columnCount = cells.size();
    std::map<std::string, std::size_t, LessNoCase> positions;
    for (std::size_t position = 0; position < m_columnCount; ++position)
    {
        const std::string name = Trim(UnquotedCell(cells[position]));
        if (!positions.emplace(name, position).second && !name.empty())
            complaints.push_back({{}, 0, name, "Two columns have this name; expected one"});
    }
    const auto positionOf = [&positions](std::string_view name) {
        const auto found = positions.find(name);
        return found == positions.end() ? NoPosition : found->second;
    };

    std::string missing;
    for (std::size_t column = 0; column < PanelColumnCount; ++column)
    {
        const PanelColumnRule& rule = PanelColumnRules[column];
        m_positions[column] = positionOf(rule.Name);
        if (rule.IsRequired && m_positions[column] == NoPosition)
            missing += (missing.empty() ? "" : ", ") + std::string(rule.Name);
        if (rule.IsOfMarker && m_positions[column] != NoPosition)
            m_markerColumns.push_back({rule.Name, m_positions[column]});
    }
    if (!missing.empty())
        complaints.push_back({{},
                              0,
                              {},
                              "The first line must name the columns of a panel table, separated "
                              "by tabs; missing: " +
                                  missing});
    for (const LocusField* field : LocusFieldColumns())
    {
        const std::size_t position = positionOf(field->Name);
        if (position == NoPosition)
            continue;
        m_fieldColumns.emplace_back(field, position);
        m_markerColumns.push_back({field->Name, position});
    }
    return complaints;
}

} // namespace Tamrivo
