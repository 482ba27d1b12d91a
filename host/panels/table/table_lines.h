#pragma once

#include "host/panels/line_reader.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// Walks the lines of a tab-separated table. Empty lines and carriage returns at the ends are
/// passed over.
class TableLines
{
public:
    /// @param source must outlive this object
    explicit TableLines(LineReader& source) : m_source(source) {}

    /// Goes to the next line that has anything in it. False at the end, and from a line on that
    /// no text file has.
    bool Next();

    std::size_t Number() const { return m_number; } ///< Of the line, from 1.
    /// They stand until the next line is read.
    const std::vector<std::string_view>& Cells() const { return m_cells; }
    /// The cell at a position; nothing past the end of the line.
    std::string_view Cell(std::size_t position) const
    {
        return position < m_cells.size() ? m_cells[position] : std::string_view();
    }
    /// What is wrong with the line at which the walk has ended early; empty at the end.
    std::string_view Problem() const { return m_problem; }

private:
    LineReader& m_source;
    std::size_t m_number = 0;
    std::vector<std::string_view> m_cells;
    std::string_view m_problem;
};

} // namespace Tamrivo
