#include "core/text.h"
#include "host/panels/bins/bins_lines.h"
#include "host/panels/bins/panels_bins.h"
#include "host/panels/cells.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr std::size_t cellsBeforeLadder = 7;
constexpr std::size_t cellsOfMarker = 6;

class PanelsFileReader
{
public:
    PanelsFileReader(LineReader& source, const std::string& file) : m_lines(source)
    {
        m_read.File = file;
    }

    PanelsFile Read()
    {
        while (m_read.Complaints.size() < MaxPanelComplaints && m_lines.Next())
        {
            const BinsLine kind = KindOf(m_lines.Cell(0));
            if (kind == BinsLine::Panel)
                m_panel = BinsCell(m_lines.Cell(1));
            else if (kind == BinsLine::Content && !BinsCell(m_lines.Cell(0)).empty())
                ReadMarker();
        }
        m_read.LastLine = m_lines.Number();
        if (!m_lines.Problem().empty())
            Complain(std::string(m_lines.Problem()));
        else if (m_shortLine == m_read.LastLine && m_shortLine > 0)
            Complain(EndsInLine);
        else if (m_read.Markers.empty() && m_read.Complaints.empty())
            Complain("The panels file has no markers; it may have been cut off");
        return std::move(m_read);
    }

private:
    void Complain(std::string problem)
    {
        m_read.Complaints.push_back({m_read.File, m_lines.Number(), {}, std::move(problem)});
    }

    void AddFlaw(PanelMarker& marker, std::size_t cell, const std::string& expected) const
    {
        marker.Flaws.push_back(
            {m_read.File, m_lines.Number(), std::to_string(cell + 1),
             QuotedCell(m_lines.Cell(cell)) + " stands there; expected " + expected});
    }

    double Number(PanelMarker& marker, std::size_t cell, const std::string& expected) const
    {
        const auto number = CellNumber(BinsCell(m_lines.Cell(cell)));
        if (!number)
            AddFlaw(marker, cell, expected + " in nt with a decimal point");
        return number.value_or(0);
    }

    void ReadMarker()
    {
        const auto& cells = m_lines.Cells();
        if (m_panel.empty())
            return Complain("A marker stands in front of the line \"Panel\"; expected the name of "
                            "its panel first");
        PanelMarker& marker = m_read.Markers.emplace_back();
        std::string& ladder = m_read.Ladders.emplace_back();
        marker.File = m_read.File;
        marker.Line = m_lines.Number();
        marker.Panel = m_panel;
        marker.Marker = BinsCell(cells[0]);
        if (!IsPrintableText(marker.Marker) || !IsPrintableText(marker.Panel))
            AddFlaw(marker, 0, "names without control characters");
        if (cells.size() < cellsOfMarker)
        {
            m_shortLine = m_lines.Number();
            return marker.Flaws.push_back({m_read.File,
                                           m_shortLine,
                                           {},
                                           "The line ends before the length of the repeat unit"});
        }
        marker.Color = BinsCell(m_lines.Cell(1));
        if (marker.Color.empty())
            AddFlaw(marker, 1, "the colour of a dye");
        marker.RangeStart = Number(marker, 2, "the start of the range");
        marker.RangeEnd = Number(marker, 3, "the end of the range");
        if (marker.Flaws.empty() && marker.RangeStart > marker.RangeEnd)
            AddFlaw(marker, 3, "an end of the range that isn't less than its start");
        const auto repeat = CellWholeNumber(BinsCell(m_lines.Cell(5)));
        if (!repeat)
            AddFlaw(marker, 5, "the length of the repeat unit, a whole number of nt");
        marker.RepeatLength = repeat.value_or(0);

        const auto last = std::find_if(cells.rbegin(), cells.rend(), [](std::string_view cell) {
            return !BinsCell(cell).empty();
        });
        if (static_cast<std::size_t>(cells.rend() - last) > cellsBeforeLadder)
            ladder = *last;
    }

    TableLines m_lines;
    std::string m_panel;
    std::size_t m_shortLine = 0; ///< The last line that ends too early; 0: none.
    PanelsFile m_read;
};

} // namespace

PanelsFile ReadPanelsFile(LineReader& source, const std::string& file)
{
    return PanelsFileReader(source, file).Read();
}

} // namespace Tamrivo
