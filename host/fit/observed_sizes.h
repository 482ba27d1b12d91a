#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Tamrivo
{

/// Sizes that an instrument has shown, as a table states them: one line a peak, with the columns
/// `Sample`, `Marker` and `Size` (nt) in any order and case, separated by tabs or, without tabs in
/// the first line, by commas with quotes around cells that have some. Further columns are carried
/// along. A cell of sizes may hold several with commas between.
struct ObservedTable
{
    struct Line
    {
        std::vector<std::string> Cells; ///< As many as titles.
        std::vector<double> Sizes;      ///< nt; none for an empty cell.
    };

    std::vector<std::string> Titles;
    std::size_t SizeColumn = 0;
    std::size_t MarkerColumn = 0;
    std::vector<Line> Lines;

    std::vector<double> SizesIn(std::span<const std::size_t> lines) const;
};

/// Which lines of a table are of which marker.
class MarkerLines
{
public:
    explicit MarkerLines(const ObservedTable& table);

    /// Numbers of a locus's lines: those whose marker is its tag, else those with its name, case
    /// aside.
    std::vector<std::size_t> Of(const std::string& tag, const std::string& name) const;
    /// Numbers of the lines by the marker's `LookupKey`.
    const std::unordered_map<std::string, std::vector<std::size_t>>& All() const { return m_lines; }

private:
    std::unordered_map<std::string, std::vector<std::size_t>> m_lines;
};

inline constexpr std::size_t MostObservedLines = 2'000'000;

/// Reads the table. Raises `ErrorNumber::InvalidArgument` with the place and what was expected: for
/// an empty text, a column that is missing, a size that is no number of nt above 0 and up to
/// `MostObservedSize`, more than `MostObservedLines` lines.
/// @param name what people know the text by
ObservedTable ReadObservedTable(std::string_view text, const std::string& name);

} // namespace Tamrivo
