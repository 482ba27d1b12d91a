#include "core/text.h"
#include "host/panels/bins/bins_lines.h"
#include "host/panels/bins/panels_bins.h"
#include "host/panels/cells.h"

#include <cmath>

namespace Tamrivo
{

namespace
{

constexpr std::size_t usualAlleles = 32;
constexpr std::size_t lastCell = 3; ///< That a bin needs.

/// A limit of a bin from the allele's size and the distance to it, without the noise of binary
/// fractions: 93.47 - 0.5 is 92.97.
double Limit(double size, double distance)
{
    constexpr double steps = 1e6;
    const double limit = size + distance;
    return std::abs(limit) < 1e6 ? std::round(limit * steps) / steps : limit;
}

class BinsFileReader
{
public:
    BinsFileReader(LineReader& source, const std::string& file) : m_lines(source)
    {
        m_read.File = file;
    }

    BinsFile Read()
    {
        while (m_read.Complaints.size() < MaxPanelComplaints && m_lines.Next())
            ReadLine();
        m_read.LastLine = m_lines.Number();
        if (!m_lines.Problem().empty())
            Complain({}, std::string(m_lines.Problem()));
        else if (m_shortLine == m_read.LastLine && m_shortLine > 0)
            Complain({}, EndsInLine);
        else if (m_read.Markers.empty() && m_read.Complaints.empty())
            Complain({}, "The bins file has no bins; it may have been cut off");
        return std::move(m_read);
    }

private:
    void Complain(std::string column, std::string problem)
    {
        m_read.Complaints.push_back(
            {m_read.File, m_lines.Number(), std::move(column), std::move(problem)});
    }

    void ReadLine()
    {
        const BinsLine kind = KindOf(m_lines.Cell(0));
        const std::string_view value = BinsCell(m_lines.Cell(1));
        if (kind == BinsLine::BinSet)
            m_read.BinSet = value;
        else if (kind == BinsLine::BinsPanel)
            m_panel = value;
        else if (kind == BinsLine::Marker)
        {
            m_read.Markers.push_back({m_panel, std::string(value), m_lines.Number(), {}, {}});
            m_read.Markers.back().Alleles.reserve(usualAlleles);
        }
        else if (kind == BinsLine::Content && !BinsCell(m_lines.Cell(0)).empty())
            ReadBin();
        // The line end between two lines of the header may have been lost.
        constexpr std::string_view binSetWord = "BinSet Name";
        if (kind == BinsLine::Chemistry && value.ends_with(binSetWord))
            m_read.BinSet = BinsCell(m_lines.Cell(2));
    }

    double Number(MarkerBins& marker, std::size_t cell, std::string_view expected) const
    {
        const auto number = CellNumber(BinsCell(m_lines.Cell(cell)));
        if (!number && marker.Flaws.size() < MaxPanelComplaints)
            marker.Flaws.push_back({m_read.File, m_lines.Number(), std::to_string(cell + 1),
                                    QuotedCell(m_lines.Cell(cell)) + " stands there; expected " +
                                        std::string(expected) + " in nt with a decimal point"});
        return number.value_or(0);
    }

    void ReadBin()
    {
        if (m_read.Markers.empty())
            return Complain({}, "A bin stands in front of the line \"Marker Name\"; expected the "
                                "name of its marker first");
        MarkerBins& marker = m_read.Markers.back();
        PanelAllele& allele = marker.Alleles.emplace_back();
        allele.Name = BinsCell(m_lines.Cell(0));
        if (!IsPrintableText(allele.Name))
            marker.Flaws.push_back({m_read.File, m_lines.Number(), "1",
                                    QuotedCell(allele.Name) + " has a control character"});
        if (BinsCell(m_lines.Cell(lastCell)).empty())
        {
            m_shortLine = m_lines.Number();
            return marker.Flaws.push_back({m_read.File,
                                           m_shortLine,
                                           {},
                                           "The line of the allele " + QuotedCell(allele.Name) +
                                               " ends before its size and its limits"});
        }
        allele.Size = Number(marker, 1, "a size");
        allele.BinStart =
            Limit(allele.Size, -Number(marker, 2, "the distance to the bin's left limit"));
        allele.BinEnd =
            Limit(allele.Size, Number(marker, 3, "the distance to the bin's right limit"));
        allele.Repeats = CellNumber(allele.Name).value_or(0);
        // Another word there is the colour of the bin.
        allele.IsVirtual = EqualNoCase(BinsCell(m_lines.Cell(4)), "virtual");
    }

    TableLines m_lines;
    std::string m_panel;
    std::size_t m_shortLine = 0; ///< The last line that ends too early; 0: none.
    BinsFile m_read;
};

} // namespace

BinsFile ReadBinsFile(LineReader& source, const std::string& file)
{
    return BinsFileReader(source, file).Read();
}

} // namespace Tamrivo
