#include "host/fit/observed_sizes.h"

#include "core/error.h"
#include "core/text.h"
#include "host/fit/ladder_fit.h"
#include "host/loci/keys.h"
#include "host/panels/cells.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& name, const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "ObservedSizes", name + why);
}

std::string_view TakeLine(std::string_view& rest)
{
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

/// Cells between separators; one in double quotes may hold the separator, and quotes doubled.
std::vector<std::string> SplitLine(std::string_view line, char separator)
{
    std::vector<std::string> cells(1);
    bool isQuoted = false;
    for (std::size_t at = 0; at < line.size(); ++at)
    {
        if (line[at] == '"' && (isQuoted || cells.back().empty()))
        {
            const bool isDoubled = isQuoted && at + 1 < line.size() && line[at + 1] == '"';
            if (isDoubled)
                cells.back() += line[++at];
            else
                isQuoted = !isQuoted;
        }
        else if (line[at] == separator && !isQuoted)
            cells.emplace_back();
        else
            cells.back() += line[at];
    }
    return cells;
}

class Reader
{
public:
    Reader(std::string_view text, const std::string& name) : m_rest(text), m_name(name) {}

    ObservedTable Read()
    {
        constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
        if (m_rest.starts_with(byteOrderMark))
            m_rest.remove_prefix(byteOrderMark.size());
        const auto lines = static_cast<std::size_t>(std::ranges::count(m_rest, '\n'));
        if (lines > MostObservedLines)
            Refuse(m_name, " has " + std::to_string(lines) + " lines; at most " +
                               std::to_string(MostObservedLines) + " are read");
        ReadTitles();
        for (std::size_t number = 2; !m_rest.empty(); ++number)
            ReadLine(number);
        if (m_table.Lines.empty())
            Refuse(m_name, " has no lines below its titles; expected one line a peak");
        return std::move(m_table);
    }

private:
    void ReadTitles()
    {
        const std::string_view line = TakeLine(m_rest);
        if (Trim(line).empty())
            Refuse(m_name, " is empty; expected a table with the columns Sample, Marker and Size");
        m_separator = line.find('\t') != std::string_view::npos ? '\t' : ',';
        m_table.Titles = SplitLine(line, m_separator);
        Column("Sample");
        m_table.MarkerColumn = Column("Marker");
        m_table.SizeColumn = Column("Size");
    }

    std::size_t Column(std::string_view title) const
    {
        const auto found = std::ranges::find_if(m_table.Titles, [title](const std::string& cell) {
            return EqualNoCase(Trim(cell), title);
        });
        if (found == m_table.Titles.end())
            Refuse(m_name,
                   " has no column " + std::string(title) + "; expected Sample, Marker and Size");
        return static_cast<std::size_t>(found - m_table.Titles.begin());
    }

    void ReadLine(std::size_t number)
    {
        const std::string_view text = TakeLine(m_rest);
        if (Trim(text).empty())
            return;
        ObservedTable::Line line{SplitLine(text, m_separator), {}};
        if (line.Cells.size() > m_table.Titles.size())
            Refuse(m_name, ", line " + std::to_string(number) + " has " +
                               std::to_string(line.Cells.size()) + " cells; expected " +
                               std::to_string(m_table.Titles.size()));
        line.Cells.resize(m_table.Titles.size());
        const std::string& cell = line.Cells[m_table.SizeColumn];
        if (!Trim(cell).empty())
        {
            for (const std::string& size : SplitLine(cell, ','))
                line.Sizes.push_back(SizeOf(size, number));
        }
        m_table.Lines.push_back(std::move(line));
    }

    double SizeOf(const std::string& cell, std::size_t number) const
    {
        const auto size = CellNumber(cell);
        if (!size || !(*size > 0 && *size <= MostObservedSize))
            Refuse(m_name, ", line " + std::to_string(number) + ", column Size: \"" +
                               Characters(Trim(cell), 0, 40) +
                               "\" stands there; expected a size above 0 and up to 10000 nt");
        return *size;
    }

    std::string_view m_rest;
    const std::string& m_name;
    char m_separator = '\t';
    ObservedTable m_table;
};

} // namespace

std::vector<double> ObservedTable::SizesIn(std::span<const std::size_t> lines) const
{
    std::vector<double> sizes;
    for (const std::size_t line : lines)
        sizes.insert(sizes.end(), Lines[line].Sizes.begin(), Lines[line].Sizes.end());
    return sizes;
}

MarkerLines::MarkerLines(const ObservedTable& table)
{
    for (std::size_t at = 0; at < table.Lines.size(); ++at)
        m_lines[LookupKey(table.Lines[at].Cells[table.MarkerColumn])].push_back(at);
}

std::vector<std::size_t> MarkerLines::Of(const std::string& tag, const std::string& name) const
{
    for (const std::string& marker : {tag, name})
    {
        const auto lines = m_lines.find(LookupKey(marker));
        if (lines != m_lines.end())
            return lines->second;
    }
    return {};
}

ObservedTable ReadObservedTable(std::string_view text, const std::string& name)
{
    return Reader(text, name).Read();
}

} // namespace Tamrivo
