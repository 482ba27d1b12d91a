#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

// Cells of a tab-separated table. Programs exchange such tables, so numbers have a decimal point
// in every locale.

/// Splits a line at its tabs into `cells`, which keeps its memory from line to line.
void SplitCells(std::string_view line, std::vector<std::string_view>& cells);

/// The text as a cell: tab, line feed, carriage return and backslash as "\t", "\n", "\r", "\\".
std::string EscapeCell(std::string_view text);
/// The text of a cell. A backslash before any other character stands for itself.
std::string UnescapeCell(std::string_view cell);

/// The text of a cell in double quotes, in which a quote stands behind a backslash or twice; any
/// other cell as it is.
std::string UnquotedCell(std::string_view cell);

/// The cell as a finite number, or none. Blanks around it don't count.
std::optional<double> CellNumber(std::string_view cell);
/// The cell as a whole number of 32 bits, or none. "4.0" is whole.
std::optional<std::int32_t> CellWholeNumber(std::string_view cell);

/// The shortest text that reads back as the same number.
std::string NumberCell(double value);

} // namespace Tamrivo
