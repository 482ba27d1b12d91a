#pragma once

#include "host/panels/line_reader.h"
#include "host/panels/panel_files.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// A line of a table of observed sizes.
struct ObservedLine
{
    std::vector<std::string> Cells; ///< As many as titles.
    std::vector<double> Sizes;      ///< nt; none for an empty cell.
};

/// Sizes that an instrument has shown, as a table states them: one line a peak, with the columns
/// `Sample`, `Marker` and `Size` (nt) in any order and case, separated by tabs or, without tabs in
/// the first line, by commas with quotes around cells that have some. Further columns are carried
/// along. A cell of sizes may hold several with commas between.
///
/// The table is read line by line and not held in memory. Raises `ErrorNumber::InvalidArgument`
/// with the place and what was expected: for an empty file, a column that is missing, a size that
/// is no number of nt above 0 and up to `MostObservedSize`, a line of more cells than titles.
class ObservedReader
{
public:
    /// Reads the titles.
    explicit ObservedReader(PanelFile file);

    const std::string& Name() const { return m_file.Name; }
    const std::vector<std::string>& Titles() const { return m_titles; }
    std::size_t SizeColumn() const { return m_sizeColumn; }
    std::size_t MarkerColumn() const { return m_markerColumn; }

    /// Reads the next line that isn't blank into `line`, which keeps its memory from line to line.
    /// False at the end; a table without any line is refused there.
    bool Next(ObservedLine& line);
    /// Of the line that was read last, from 1 on.
    std::size_t LineNumber() const { return m_number; }

    [[noreturn]] void Refuse(const std::string& why) const;

private:
    bool NextText(std::string_view& text);
    std::size_t Column(std::string_view title) const;
    void ReadSizes(const std::string& cell, std::vector<double>& sizes);
    double SizeOf(const std::string& cell) const;

    PanelFile m_file;
    LineReader m_lines;
    char m_separator = '\t';
    std::vector<std::string> m_titles;
    std::size_t m_sizeColumn = 0;
    std::size_t m_markerColumn = 0;
    std::size_t m_number = 0;
    bool m_hasLines = false;
    std::vector<std::string> m_parts; ///< Of a cell with several sizes.
};

} // namespace Tamrivo
