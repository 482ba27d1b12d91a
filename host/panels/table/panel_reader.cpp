#include "host/panels/table/panel_reader.h"

#include "core/text.h"
#include "host/panels/cells.h"
#include "host/panels/import_plan.h"
#include "host/panels/locus_columns.h"
#include "host/panels/table/table_row.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace Tamrivo
{

namespace
{

std::string CountOfCells(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " cell" : " cells");
}

class PanelTableReader
{
public:
    PanelTableReader(LineReader& source, const std::vector<std::string>& panels)
        : m_panels(panels), m_lines(source)
    {}

    PanelReading Read()
    {
        if (!m_lines.Next())
        {
            Complain(m_lines.Problem().empty()
                         ? "The table is empty; expected a line with the names of the columns"
                         : std::string(m_lines.Problem()));
            return std::move(m_reading);
        }
        if (ReadHeader())
        {
            while (m_reading.Complaints.size() < MaxPanelComplaints && m_lines.Next())
                ReadRow();
        }
        if (!m_lines.Problem().empty())
            Complain(std::string(m_lines.Problem()));
        return std::move(m_reading);
    }

private:
    struct Group
    {
        std::size_t Index = 0;               ///< Of the marker.
        std::vector<std::string> FirstCells; ///< Of its first line.
        bool IsWanted = true;
    };

    using GroupKey = std::tuple<std::string, std::string, std::string>;

    void Complain(std::string problem)
    {
        m_reading.Complaints.push_back({{}, m_lines.Number(), {}, std::move(problem)});
    }

    bool ReadHeader()
    {
        m_reading.Complaints = m_header.Read(m_lines.Cells());
        for (PanelComplaint& complaint : m_reading.Complaints)
            complaint.Line = m_lines.Number();
        return m_reading.Complaints.empty();
    }

    void ReadRow()
    {
        const Group* group = GroupOfRow();
        if (group != nullptr && !group->IsWanted)
            return;
        PanelMarker& marker = group != nullptr ? m_reading.Markers[group->Index] : NewMarker();
        if (!m_last->IsWanted)
            return;
        if (!HasAllOfMarker())
            return AddCountFlaw(marker, "; the file may have been cut off here");
        if (group != nullptr)
            CheckAgreement(marker, *group);
        else
            ReadMarker(marker);
        for (std::size_t at = m_header.ColumnCount(); at < m_lines.Cells().size(); ++at)
        {
            if (!m_lines.Cell(at).empty())
                return AddCountFlaw(marker, ", one for each name in the first line");
        }
        ReadAllele(marker);
    }

    void AddCountFlaw(PanelMarker& marker, const std::string& end) const
    {
        m_row.AddFlaw(marker, "",
                      "The line has " + CountOfCells(m_lines.Cells().size()) + "; expected " +
                          std::to_string(m_header.ColumnCount()) + end);
    }

    /// Whether the line reaches to what every line of a marker must state.
    bool HasAllOfMarker() const
    {
        constexpr PanelColumn columns[] = {PanelColumn::Color, PanelColumn::Repeat,
                                           PanelColumn::MarkerMin, PanelColumn::MarkerMax};
        return std::ranges::all_of(columns, [this](PanelColumn column) {
            return m_header.PositionOf(column) < m_lines.Cells().size();
        });
    }

    /// The group of the line's marker; null for a marker that begins with this line, for which
    /// there is one from now on.
    const Group* GroupOfRow()
    {
        // The lines of a marker stand together, as a rule.
        if (m_last != nullptr && m_last->FirstCells.size() == m_lines.Cells().size() &&
            IsSame(PanelColumn::Panel) && IsSame(PanelColumn::Marker) &&
            IsSame(PanelColumn::LocusTag))
            return m_last;
        const auto [found, isNew] = m_groups.try_emplace(
            GroupKey(m_row.Cell(PanelColumn::Panel), m_row.Cell(PanelColumn::Marker),
                     m_row.Cell(PanelColumn::LocusTag)));
        Group& group = found->second;
        m_last = &group;
        if (!isNew)
            return &group;
        group.Index = m_reading.Markers.size();
        group.FirstCells.assign(m_lines.Cells().begin(), m_lines.Cells().end());
        return nullptr;
    }

    bool IsSame(PanelColumn column) const
    {
        const std::size_t position = m_header.PositionOf(column);
        return position == TableHeader::NoPosition ||
               (position < m_last->FirstCells.size() &&
                m_last->FirstCells[position] == m_lines.Cell(position));
    }

    void CheckAgreement(PanelMarker& marker, const Group& group) const
    {
        for (const TableHeader::MarkerColumn& column : m_header.MarkerColumns())
        {
            const std::string_view first = column.Position < group.FirstCells.size()
                                               ? std::string_view(group.FirstCells[column.Position])
                                               : "";
            CheckCell(marker, column.Name, m_lines.Cell(column.Position), first);
        }
    }

    void CheckCell(PanelMarker& marker, std::string_view column, std::string_view cell,
                   std::string_view first) const
    {
        if (cell == first || EqualNoCase(TrimmedCell(cell), TrimmedCell(first)))
            return;
        const auto number = CellNumber(cell);
        if (number && number == CellNumber(first))
            return;
        m_row.AddFlaw(marker, column,
                      QuotedCell(cell) + " stands there; expected " + QuotedCell(first) +
                          " as on line " + std::to_string(marker.Line) +
                          ", the first of the marker " + marker.Marker);
    }

    /// The line's marker, of which so far only the names are known.
    PanelMarker& NewMarker()
    {
        PanelMarker& marker = m_reading.Markers.emplace_back();
        marker.Line = m_lines.Number();
        marker.Stated = {m_header.Has(PanelColumn::Virtual), m_header.Has(PanelColumn::AlleleReal4),
                         m_header.Has(PanelColumn::AlleleInt1)};
        ReadNames(marker);
        m_last->IsWanted = m_panels.empty() || IsOfPanels(marker, m_panels);
        return marker;
    }

    void ReadMarker(PanelMarker& marker) const
    {
        if (TrimmedCell(marker.Marker).empty())
            m_row.AddFlaw(marker, "Marker", "nothing stands there; expected the name of a marker");
        marker.Color = m_row.Text(PanelColumn::Color);
        if (Trim(marker.Color).empty())
            m_row.Expect(marker, PanelColumn::Color, "the colour of a dye");
        ReadMeasures(marker);
        ReadFields(marker);
    }

    void ReadNames(PanelMarker& marker) const
    {
        marker.Panel = m_row.Name(marker, PanelColumn::Panel);
        marker.ShortName = m_row.Name(marker, PanelColumn::ShortName);
        marker.FullName = m_row.Name(marker, PanelColumn::FullName);
        marker.Marker = m_row.Name(marker, PanelColumn::Marker);
        marker.LocusTag = m_row.Name(marker, PanelColumn::LocusTag);
    }

    void ReadMeasures(PanelMarker& marker) const
    {
        marker.RepeatLength = m_row.WholeNumber(
            marker, PanelColumn::Repeat, "the length of the repeat unit, a whole number of nt");
        const std::size_t flaws = marker.Flaws.size();
        marker.RangeStart = m_row.Number(marker, PanelColumn::MarkerMin, "the start of the range");
        marker.RangeEnd = m_row.Number(marker, PanelColumn::MarkerMax, "the end of the range");
        if (flaws == marker.Flaws.size() && marker.RangeStart > marker.RangeEnd)
            m_row.Expect(marker, PanelColumn::MarkerMax,
                         "an end of the range that isn't less than its start, " +
                             NumberCell(marker.RangeStart));
        if (!m_row.IsMissing(PanelColumn::Offset))
            marker.Offset = m_row.Number(marker, PanelColumn::Offset, "the size less its repeats");
    }

    void ReadFields(PanelMarker& marker) const
    {
        LocusFields scratch;
        for (const auto& [field, position] : m_header.FieldColumns())
        {
            std::string cell = UnescapeCell(m_lines.Cell(position));
            const std::string_view expected = SetField(scratch, *field, cell);
            if (!expected.empty())
                m_row.AddFlaw(marker, field->Name,
                              QuotedCell(cell) + " stands there; expected " +
                                  std::string(expected));
            marker.FieldCells.emplace_back(field, std::move(cell));
        }
    }

    void ReadAllele(PanelMarker& marker) const
    {
        constexpr PanelColumn cellsOfAllele[] = {PanelColumn::Allele, PanelColumn::Size,
                                                 PanelColumn::SizeMin, PanelColumn::SizeMax};
        if (std::ranges::all_of(cellsOfAllele,
                                [&](PanelColumn column) { return m_row.IsMissing(column); }))
            return;

        PanelAllele& allele = marker.Alleles.emplace_back();
        allele.Name = m_row.AlleleName(marker);
        if (TrimmedCell(allele.Name).empty())
            m_row.Expect(marker, PanelColumn::Allele, "the name of an allele");

        allele.Size = m_row.Number(marker, PanelColumn::Size, "a size");
        allele.BinStart = m_row.Number(marker, PanelColumn::SizeMin, "the start of a bin");
        allele.BinEnd = m_row.Number(marker, PanelColumn::SizeMax, "the end of a bin");
        allele.IsVirtual = m_row.OneOf(marker, PanelColumn::Virtual, 0, 1,
                                       "1 for an allele outside the ladder, or 0") == 1;
        allele.Origin = m_row.OneOf(marker, PanelColumn::AlleleInt1, AlleleOrigin::Imported, 2,
                                    "0 for generated, 1 for edited or 2 for imported");
        allele.Repeats =
            m_row.IsMissing(PanelColumn::AlleleReal4)
                ? CellNumber(allele.Name).value_or(0)
                : m_row.Number(marker, PanelColumn::AlleleReal4, "the number of repeats");
    }

    const std::vector<std::string>& m_panels;
    TableLines m_lines;
    TableHeader m_header;
    TableRow m_row{m_header, m_lines};
    std::map<GroupKey, Group> m_groups;
    Group* m_last = nullptr;
    PanelReading m_reading;
};

} // namespace

PanelReading ReadPanelTable(LineReader& source, const std::vector<std::string>& panels)
{
    return PanelTableReader(source, panels).Read();
}

} // namespace Tamrivo
