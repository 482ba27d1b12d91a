#include "host/fit/observed_reader.h"

#include "core/error.h"
#include "core/text.h"
#include "host/fit/ladder_fit.h"
#include "host/panels/cells.h"

#include <algorithm>
#include <utility>

namespace Tamrivo
{

namespace
{

/// Cells between separators; one in double quotes may hold the separator, and quotes doubled.
void SplitQuoted(std::string_view line, char separator, std::vector<std::string>& cells)
{
    std::size_t count = 0;
    const auto begin = [&]() -> std::string& {
        if (count == cells.size())
            cells.emplace_back();
        cells[count].clear();
        return cells[count++];
    };
    std::string* cell = &begin();
    bool isQuoted = false;
    for (std::size_t at = 0; at < line.size(); ++at)
    {
        if (line[at] == '"' && (isQuoted || cell->empty()))
        {
            const bool isDoubled = isQuoted && at + 1 < line.size() && line[at + 1] == '"';
            if (isDoubled)
                *cell += line[++at];
            else
                isQuoted = !isQuoted;
        }
        else if (line[at] == separator && !isQuoted)
            cell = &begin();
        else
            *cell += line[at];
    }
    cells.resize(count);
}

} // namespace

ObservedReader::ObservedReader(PanelFile file) : m_file(std::move(file)), m_lines(*m_file.Bytes)
{
    std::string_view text;
    if (!NextText(text) || Trim(text).empty())
        Refuse(" is empty; expected a table with the columns Sample, Marker and Size");
    m_separator = text.find('\t') != std::string_view::npos ? '\t' : ',';
    SplitQuoted(text, m_separator, m_titles);
    Column("Sample");
    m_markerColumn = Column("Marker");
    m_sizeColumn = Column("Size");
}

bool ObservedReader::Next(ObservedLine& line)
{
    std::string_view text;
    do
    {
        if (!NextText(text))
        {
            if (!m_hasLines)
                Refuse(" has no lines below its titles; expected one line a peak");
            return false;
        }
    } while (text.find_first_not_of(" \t") == std::string_view::npos);
    m_hasLines = true;
    SplitQuoted(text, m_separator, line.Cells);
    if (line.Cells.size() > m_titles.size())
        Refuse(", line " + std::to_string(m_number) + " has " + std::to_string(line.Cells.size()) +
               " cells; expected " + std::to_string(m_titles.size()));
    line.Cells.resize(m_titles.size());
    ReadSizes(line.Cells[m_sizeColumn], line.Sizes);
    return true;
}

void ObservedReader::Refuse(const std::string& why) const
{
    throw Failure(ErrorNumber::InvalidArgument, "ObservedReader", m_file.Name + why);
}

bool ObservedReader::NextText(std::string_view& text)
{
    ++m_number;
    if (!m_lines.Next(text))
    {
        if (m_lines.IsTooLong())
            Refuse(", line " + std::to_string(m_number) + " has more than " +
                   std::to_string(LineReader::LongestLine) + " bytes; expected one line a peak");
        return false;
    }
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    return true;
}

std::size_t ObservedReader::Column(std::string_view title) const
{
    const auto found = std::ranges::find_if(
        m_titles, [title](const std::string& cell) { return EqualNoCase(Trim(cell), title); });
    if (found == m_titles.end())
        Refuse(" has no column " + std::string(title) + "; expected Sample, Marker and Size");
    return static_cast<std::size_t>(found - m_titles.begin());
}

void ObservedReader::ReadSizes(const std::string& cell, std::vector<double>& sizes)
{
    sizes.clear();
    if (cell.find(',') == std::string::npos)
    {
        if (!Trim(cell).empty())
            sizes.push_back(SizeOf(cell));
        return;
    }
    SplitQuoted(cell, ',', m_parts);
    for (const std::string& part : m_parts)
        sizes.push_back(SizeOf(part));
}

double ObservedReader::SizeOf(const std::string& cell) const
{
    const auto size = CellNumber(cell);
    if (!size || !(*size > 0 && *size <= MostObservedSize))
        Refuse(", line " + std::to_string(m_number) + ", column Size: \"" +
               Characters(Trim(cell), 0, 40) +
               "\" stands there; expected a size above 0 and up to 10000 nt");
    return *size;
}

} // namespace Tamrivo
