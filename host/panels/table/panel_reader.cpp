#include "host/panels/table/panel_reader.h"

#include "core/text.h"
#include "host/panels/cells.h"
#include "host/panels/locus_columns.h"
#include "host/panels/table/panel_table.h"
#include "host/panels/table/table_lines.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace Tamrivo
{

namespace
{

constexpr std::size_t noPosition = static_cast<std::size_t>(-1);

const PanelColumnRule& Rule(PanelColumn column)
{
    return PanelColumnRules[static_cast<std::size_t>(column)];
}

std::string_view Trimmed(std::string_view cell)
{
    while (cell.starts_with(' '))
        cell.remove_prefix(1);
    while (cell.ends_with(' '))
        cell.remove_suffix(1);
    return cell;
}

bool IsMissing(std::string_view cell)
{
    const std::string_view text = Trimmed(cell);
    return text.empty() || text == "NA";
}

/// "9.30" and "9.3" are one allele.
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

class PanelTableReader
{
public:
    explicit PanelTableReader(std::string_view text) : m_lines(text) {}

    PanelReading Read()
    {
        if (m_lines.Next() && ReadHeader())
        {
            while (m_reading.Complaints.size() < MaxPanelComplaints && m_lines.Next())
                ReadRow();
        }
        if (!m_lines.Problem().empty())
            Complain("", std::string(m_lines.Problem()));
        else if (m_lines.Number() == 0)
            Complain("", "The table is empty; expected a line with the names of the columns");
        return std::move(m_reading);
    }

private:
    /// A column whose cells agree on all lines of a marker.
    struct MarkerColumn
    {
        std::string_view Name;
        std::size_t Position;
    };

    struct Group
    {
        std::size_t Index; ///< Of the marker.
        std::vector<std::string_view> FirstCells;
    };

    void Complain(std::string_view column, std::string problem)
    {
        m_reading.Complaints.push_back(
            {{}, m_lines.Number(), std::string(column), std::move(problem)});
    }

    void AddFlaw(PanelMarker& marker, std::string_view column, std::string problem,
                 bool isLack = false) const
    {
        if (marker.Flaws.size() < MaxPanelComplaints)
            marker.Flaws.push_back(
                {{}, m_lines.Number(), std::string(column), std::move(problem), isLack});
    }

    /// The cell is not what was expected; a missing one is told once a marker.
    void Expect(PanelMarker& marker, PanelColumn column, std::string_view expected) const
    {
        const std::string_view name = Rule(column).Name;
        const std::string_view cell = Cell(column);
        // A line that ends too early has been cut off.
        const bool isLack = IsMissing(cell) && m_lines.Cells().size() >= m_columnCount;
        const bool isTold = isLack && std::ranges::any_of(marker.Flaws, [name](const auto& flaw) {
                                return flaw.IsLack && flaw.Column == name;
                            });
        if (!isTold)
            AddFlaw(marker, name,
                    QuotedCell(Trimmed(cell)) + " stands there; expected " + std::string(expected),
                    isLack);
    }

    bool ReadHeader()
    {
        m_columnCount = m_lines.Cells().size();
        std::map<std::string, std::size_t, LessNoCase> positions;
        for (std::size_t position = 0; position < m_columnCount; ++position)
        {
            const std::string name = Trim(UnquotedCell(m_lines.Cell(position)));
            if (!positions.emplace(name, position).second && !name.empty())
                Complain(name, "Two columns have this name; expected one");
        }
        const auto positionOf = [&positions](std::string_view name) {
            const auto found = positions.find(name);
            return found == positions.end() ? noPosition : found->second;
        };

        std::string missing;
        for (std::size_t column = 0; column < PanelColumnCount; ++column)
        {
            const PanelColumnRule& rule = PanelColumnRules[column];
            m_positions[column] = positionOf(rule.Name);
            if (rule.IsRequired && m_positions[column] == noPosition)
                missing += (missing.empty() ? "" : ", ") + std::string(rule.Name);
            if (rule.IsOfMarker && m_positions[column] != noPosition)
                m_markerColumns.push_back({rule.Name, m_positions[column]});
        }
        if (!missing.empty())
            Complain("", "The first line must name the columns of a panel table, separated by "
                         "tabs; missing: " +
                             missing);
        for (const LocusField* field : LocusFieldColumns())
        {
            const std::size_t position = positionOf(field->Name);
            if (position == noPosition)
                continue;
            m_fieldColumns.emplace_back(field, position);
            m_markerColumns.push_back({field->Name, position});
        }
        m_isOwn = Has(PanelColumn::LocusTag) && Has(PanelColumn::AlleleInt1);
        return m_reading.Complaints.empty();
    }

    bool Has(PanelColumn column) const
    {
        return m_positions[static_cast<std::size_t>(column)] != noPosition;
    }

    std::string_view Cell(PanelColumn column) const
    {
        return m_lines.Cell(m_positions[static_cast<std::size_t>(column)]);
    }

    /// The text of a cell. Only tables of this program put backslashes before tabs and line ends
    /// and leave quotes as they are.
    std::string Text(PanelColumn column) const
    {
        const std::string_view cell = Cell(column);
        if (m_isOwn)
            return UnescapeCell(cell);
        return cell == "NA" ? "" : UnescapeCell(UnquotedCell(cell));
    }

    std::string Name(PanelMarker& marker, PanelColumn column) const
    {
        std::string name = Text(column);
        if (!m_isOwn && !IsPrintableText(name))
            AddFlaw(marker, Rule(column).Name,
                    QuotedCell(name) +
                        " has a control character; expected a name that can be read");
        return name;
    }

    double Number(PanelMarker& marker, PanelColumn column, std::string_view what) const
    {
        const auto number = CellNumber(Cell(column));
        if (!number)
            Expect(marker, column,
                   std::string(what) + " in nt with a decimal point, such as 94.05");
        return number.value_or(0);
    }

    void ReadRow()
    {
        PanelMarker& marker = MarkerOfRow();
        for (std::size_t position = m_columnCount; position < m_lines.Cells().size(); ++position)
        {
            if (!m_lines.Cell(position).empty())
            {
                AddFlaw(marker, "",
                        "The line has " + std::to_string(m_lines.Cells().size()) +
                            " cells; expected " + std::to_string(m_columnCount) +
                            ", one for each name in the first line");
                return;
            }
        }
        ReadAllele(marker);
    }

    PanelMarker& MarkerOfRow()
    {
        // The lines of a marker stand together, as a rule.
        if (m_last != nullptr && m_last->FirstCells.size() == m_lines.Cells().size() &&
            IsSame(PanelColumn::Panel) && IsSame(PanelColumn::Marker) &&
            IsSame(PanelColumn::LocusTag))
            return Agreeing(*m_last);
        const auto [found, isNew] = m_groups.try_emplace(
            {Cell(PanelColumn::Panel), Cell(PanelColumn::Marker), Cell(PanelColumn::LocusTag)});
        Group& group = found->second;
        m_last = &group;
        if (!isNew)
            return Agreeing(group);
        group.Index = m_reading.Markers.size();
        group.FirstCells = m_lines.Cells();
        return ReadMarker();
    }

    bool IsSame(PanelColumn column) const
    {
        const std::size_t position = m_positions[static_cast<std::size_t>(column)];
        return position == noPosition || (position < m_last->FirstCells.size() &&
                                          m_last->FirstCells[position] == m_lines.Cell(position));
    }

    PanelMarker& Agreeing(const Group& group)
    {
        PanelMarker& marker = m_reading.Markers[group.Index];
        CheckAgreement(marker, group.FirstCells);
        return marker;
    }

    PanelMarker& ReadMarker()
    {
        PanelMarker& marker = m_reading.Markers.emplace_back();
        marker.Line = m_lines.Number();
        marker.Panel = Name(marker, PanelColumn::Panel);
        marker.ShortName = Name(marker, PanelColumn::ShortName);
        marker.FullName = Name(marker, PanelColumn::FullName);
        marker.Marker = Name(marker, PanelColumn::Marker);
        if (Trimmed(marker.Marker).empty())
            AddFlaw(marker, "Marker", "nothing stands there; expected the name of a marker");
        marker.LocusTag = Name(marker, PanelColumn::LocusTag);
        marker.Color = Text(PanelColumn::Color);
        marker.Stated = {Has(PanelColumn::Virtual), Has(PanelColumn::AlleleReal4),
                         Has(PanelColumn::AlleleInt1)};
        if (Trim(marker.Color).empty())
            Expect(marker, PanelColumn::Color, "the colour of a dye");

        const auto repeat = CellWholeNumber(Cell(PanelColumn::Repeat));
        if (!repeat)
            Expect(marker, PanelColumn::Repeat,
                   "the length of the repeat unit, a whole number of nt");
        marker.RepeatLength = repeat.value_or(0);

        const std::size_t flaws = marker.Flaws.size();
        marker.RangeStart = Number(marker, PanelColumn::MarkerMin, "the start of the range");
        marker.RangeEnd = Number(marker, PanelColumn::MarkerMax, "the end of the range");
        if (flaws == marker.Flaws.size() && marker.RangeStart > marker.RangeEnd)
            Expect(marker, PanelColumn::MarkerMax,
                   "an end of the range that isn't less than its start, " +
                       NumberCell(marker.RangeStart));
        if (!IsMissing(Cell(PanelColumn::Offset)))
            marker.Offset = Number(marker, PanelColumn::Offset, "the size less its repeats");

        LocusFields scratch;
        for (const auto& [field, position] : m_fieldColumns)
        {
            std::string cell = UnescapeCell(m_lines.Cell(position));
            const std::string_view expected = SetField(scratch, *field, cell);
            if (!expected.empty())
                AddFlaw(marker, field->Name,
                        QuotedCell(cell) + " stands there; expected " + std::string(expected));
            marker.FieldCells.emplace_back(field, std::move(cell));
        }
        return marker;
    }

    void CheckAgreement(PanelMarker& marker, const std::vector<std::string_view>& firstCells) const
    {
        for (const MarkerColumn& column : m_markerColumns)
        {
            const std::string_view cell = m_lines.Cell(column.Position);
            const std::string_view first =
                column.Position < firstCells.size() ? firstCells[column.Position] : "";
            if (cell == first || EqualNoCase(Trimmed(cell), Trimmed(first)))
                continue;
            const auto number = CellNumber(cell);
            if (number && number == CellNumber(first))
                continue;
            AddFlaw(marker, column.Name,
                    QuotedCell(cell) + " stands there; expected " + QuotedCell(first) +
                        " as on line " + std::to_string(marker.Line) +
                        ", the first of the marker " + marker.Marker);
        }
    }

    void ReadAllele(PanelMarker& marker)
    {
        constexpr PanelColumn cellsOfAllele[] = {PanelColumn::Allele, PanelColumn::Size,
                                                 PanelColumn::SizeMin, PanelColumn::SizeMax};
        if (std::ranges::all_of(cellsOfAllele,
                                [&](PanelColumn column) { return IsMissing(Cell(column)); }))
            return;

        AlleleFields& allele = marker.Alleles.emplace_back();
        allele.AlleleText1 = Name(marker, PanelColumn::Allele);
        if (!m_isOwn)
            allele.AlleleText1 = PlainName(std::move(allele.AlleleText1));
        if (Trimmed(allele.AlleleText1).empty())
            Expect(marker, PanelColumn::Allele, "the name of an allele");

        allele.AlleleReal1 = Number(marker, PanelColumn::Size, "a size");
        allele.AlleleReal2 = Number(marker, PanelColumn::SizeMin, "the start of a bin");
        allele.AlleleReal3 = Number(marker, PanelColumn::SizeMax, "the end of a bin");
        allele.AlleleInt2 =
            OneOf(marker, PanelColumn::Virtual, 0, 1, "1 for an allele outside the ladder, or 0");
        allele.AlleleInt1 = OneOf(marker, PanelColumn::AlleleInt1, AlleleOrigin::Imported, 2,
                                  "0 for generated, 1 for edited or 2 for imported");
        allele.AlleleReal4 = CellNumber(allele.AlleleText1).value_or(0);
        if (!IsMissing(Cell(PanelColumn::AlleleReal4)))
            allele.AlleleReal4 = Number(marker, PanelColumn::AlleleReal4, "the number of repeats");
    }

    /// The cell's whole number from 0 to `high`; `initial` for an empty cell.
    std::int32_t OneOf(PanelMarker& marker, PanelColumn column, std::int32_t initial,
                       std::int32_t high, std::string_view expected) const
    {
        if (IsMissing(Cell(column)))
            return initial;
        const auto number = CellWholeNumber(Cell(column));
        if (number && *number >= 0 && *number <= high)
            return *number;
        Expect(marker, column, expected);
        return initial;
    }

    TableLines m_lines;
    std::size_t m_columnCount = 0;
    std::size_t m_positions[PanelColumnCount] = {};
    bool m_isOwn = false; ///< Written by this program.
    std::vector<MarkerColumn> m_markerColumns;
    std::vector<std::pair<const LocusField*, std::size_t>> m_fieldColumns;
    std::map<std::tuple<std::string_view, std::string_view, std::string_view>, Group> m_groups;
    const Group* m_last = nullptr;
    PanelReading m_reading;
};

} // namespace

PanelReading ReadPanelTable(std::string_view text)
{
    return PanelTableReader(text).Read();
}

} // namespace Tamrivo
