#include "platform/panels/panel_reader.h"

#include "core/text.h"
#include "platform/panels/cells.h"
#include "platform/panels/locus_columns.h"
#include "platform/panels/table_lines.h"

#include <algorithm>
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

std::string Quoted(std::string_view text)
{
    return text.empty() ? "nothing" : "\"" + std::string(text) + "\"";
}

class Reader
{
public:
    explicit Reader(std::string_view text) : m_lines(text) {}

    PanelReading Read()
    {
        if (m_lines.Next() && ReadHeader())
        {
            while (m_reading.Complaints.size() < MaxPanelComplaints && m_lines.Next())
                ReadRow();
        }
        if (!m_lines.IsText())
            Complain("", "The text isn't UTF-8; save the table as UTF-8");
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
        m_reading.Complaints.push_back({m_lines.Number(), std::string(column), std::move(problem)});
    }

    void Expect(PanelColumn column, std::string_view expected)
    {
        Complain(Rule(column).Name,
                 Quoted(Cell(column)) + " stands there; expected " + std::string(expected));
    }

    bool ReadHeader()
    {
        m_columnCount = m_lines.Cells().size();
        std::map<std::string, std::size_t, LessNoCase> positions;
        for (std::size_t position = 0; position < m_columnCount; ++position)
        {
            const std::string name = Trim(m_lines.Cell(position));
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
        return m_reading.Complaints.empty();
    }

    std::string_view Cell(PanelColumn column) const
    {
        return m_lines.Cell(m_positions[static_cast<std::size_t>(column)]);
    }

    double Number(PanelColumn column, std::string_view what)
    {
        const auto number = CellNumber(Cell(column));
        if (!number)
            Expect(column, std::string(what) + " in nt with a decimal point, such as 94.05");
        return number.value_or(0);
    }

    void ReadRow()
    {
        for (std::size_t position = m_columnCount; position < m_lines.Cells().size(); ++position)
        {
            if (!m_lines.Cell(position).empty())
            {
                Complain("", "The line has " + std::to_string(m_lines.Cells().size()) +
                                 " cells; expected " + std::to_string(m_columnCount) +
                                 ", one for each name in the first line");
                return;
            }
        }
        if (Trim(Cell(PanelColumn::Marker)).empty())
        {
            Expect(PanelColumn::Marker, "the name of a marker");
            return;
        }
        ReadAllele(MarkerOfRow());
    }

    PanelMarker& MarkerOfRow()
    {
        const auto [found, isNew] = m_groups.try_emplace(
            {Cell(PanelColumn::Panel), Cell(PanelColumn::Marker), Cell(PanelColumn::LocusTag)});
        Group& group = found->second;
        if (!isNew)
        {
            PanelMarker& marker = m_reading.Markers[group.Index];
            CheckAgreement(marker, group.FirstCells);
            return marker;
        }
        group.Index = m_reading.Markers.size();
        group.FirstCells = m_lines.Cells();
        return ReadMarker();
    }

    PanelMarker& ReadMarker()
    {
        PanelMarker& marker = m_reading.Markers.emplace_back();
        marker.Line = m_lines.Number();
        marker.Panel = UnescapeCell(Cell(PanelColumn::Panel));
        marker.Marker = UnescapeCell(Cell(PanelColumn::Marker));
        marker.LocusTag = UnescapeCell(Cell(PanelColumn::LocusTag));
        marker.Color = UnescapeCell(Cell(PanelColumn::Color));
        if (Trim(marker.Color).empty())
            Expect(PanelColumn::Color, "the colour of a dye");

        const auto repeat = CellWholeNumber(Cell(PanelColumn::Repeat));
        if (!repeat)
            Expect(PanelColumn::Repeat, "the length of the repeat unit, a whole number of nt");
        marker.RepeatLength = repeat.value_or(0);

        const std::size_t complaints = m_reading.Complaints.size();
        marker.RangeStart = Number(PanelColumn::MarkerMin, "the start of the range");
        marker.RangeEnd = Number(PanelColumn::MarkerMax, "the end of the range");
        if (complaints == m_reading.Complaints.size() && marker.RangeStart > marker.RangeEnd)
            Expect(PanelColumn::MarkerMax, "an end of the range that isn't less than its start, " +
                                               NumberCell(marker.RangeStart));
        if (!Trim(Cell(PanelColumn::Offset)).empty())
            marker.Offset = Number(PanelColumn::Offset, "the size less its repeats");

        LocusFields scratch;
        for (const auto& [field, position] : m_fieldColumns)
        {
            std::string cell = UnescapeCell(m_lines.Cell(position));
            const std::string_view expected = SetField(scratch, *field, cell);
            if (!expected.empty())
                Complain(field->Name,
                         Quoted(cell) + " stands there; expected " + std::string(expected));
            marker.FieldCells.emplace_back(field, std::move(cell));
        }
        return marker;
    }

    void CheckAgreement(const PanelMarker& marker, const std::vector<std::string_view>& firstCells)
    {
        for (const MarkerColumn& column : m_markerColumns)
        {
            const std::string_view cell = m_lines.Cell(column.Position);
            const std::string_view first =
                column.Position < firstCells.size() ? firstCells[column.Position] : "";
            if (cell == first || EqualNoCase(Trim(cell), Trim(first)))
                continue;
            const auto number = CellNumber(cell);
            if (number && number == CellNumber(first))
                continue;
            Complain(column.Name, Quoted(cell) + " stands there; expected " + Quoted(first) +
                                      " as on line " + std::to_string(marker.Line) +
                                      ", the first of the marker " + marker.Marker);
        }
    }

    void ReadAllele(PanelMarker& marker)
    {
        constexpr PanelColumn cellsOfAllele[] = {PanelColumn::Allele, PanelColumn::Size,
                                                 PanelColumn::SizeMin, PanelColumn::SizeMax};
        if (std::ranges::all_of(cellsOfAllele,
                                [&](PanelColumn column) { return Trim(Cell(column)).empty(); }))
            return;

        AlleleFields& allele = marker.Alleles.emplace_back();
        allele.AlleleText1 = UnescapeCell(Cell(PanelColumn::Allele));
        if (Trim(allele.AlleleText1).empty())
            Expect(PanelColumn::Allele, "the name of an allele");

        const std::size_t complaints = m_reading.Complaints.size();
        allele.AlleleReal1 = Number(PanelColumn::Size, "a size");
        allele.AlleleReal2 = Number(PanelColumn::SizeMin, "the start of a bin");
        allele.AlleleReal3 = Number(PanelColumn::SizeMax, "the end of a bin");
        if (complaints == m_reading.Complaints.size())
        {
            const std::string size = ", " + NumberCell(allele.AlleleReal1);
            if (allele.AlleleReal2 > allele.AlleleReal1)
                Expect(PanelColumn::SizeMin, "a start of the bin that isn't above the size" + size);
            if (allele.AlleleReal3 < allele.AlleleReal1)
                Expect(PanelColumn::SizeMax, "an end of the bin that isn't below the size" + size);
        }
        allele.AlleleInt2 =
            OneOf(PanelColumn::Virtual, 0, 1, "1 for an allele outside the ladder, or 0");
        allele.AlleleInt1 = OneOf(PanelColumn::AlleleInt1, AlleleOrigin::Imported, 2,
                                  "0 for generated, 1 for edited or 2 for imported");
        allele.AlleleReal4 = CellNumber(allele.AlleleText1).value_or(0);
        if (!Trim(Cell(PanelColumn::AlleleReal4)).empty())
            allele.AlleleReal4 = Number(PanelColumn::AlleleReal4, "the number of repeats");
    }

    /// The cell's whole number from 0 to `high`; `initial` for an empty cell.
    std::int32_t OneOf(PanelColumn column, std::int32_t initial, std::int32_t high,
                       std::string_view expected)
    {
        if (Trim(Cell(column)).empty())
            return initial;
        const auto number = CellWholeNumber(Cell(column));
        if (number && *number >= 0 && *number <= high)
            return *number;
        Expect(column, expected);
        return initial;
    }

    TableLines m_lines;
    std::size_t m_columnCount = 0;
    std::size_t m_positions[PanelColumnCount] = {};
    std::vector<MarkerColumn> m_markerColumns;
    std::vector<std::pair<const LocusField*, std::size_t>> m_fieldColumns;
    std::map<std::tuple<std::string_view, std::string_view, std::string_view>, Group> m_groups;
    PanelReading m_reading;
};

} // namespace

std::string PanelComplaint::Text() const
{
    return "line " + std::to_string(Line) + (Column.empty() ? "" : ", column " + Column) + ": " +
           Problem;
}

PanelReading ReadPanelTable(std::string_view text)
{
    return Reader(text).Read();
}

} // namespace Tamrivo
