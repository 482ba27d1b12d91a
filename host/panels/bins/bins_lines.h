#pragma once

#include "host/panels/table/table_lines.h"

#include <string_view>
#include <vector>

namespace Tamrivo
{

// Panels and bins files are tab-separated lines, of which some start with a word that says what
// follows. Behind the last cell may stand any number of empty ones.

/// What the first cell of a line says about it.
enum class BinsLine
{
    Version,
    KitType,
    Chemistry,
    BinSet,
    BinsPanel, ///< Of a bins file.
    Marker,    ///< Of a bins file.
    Panel,     ///< Of a panels file.
    Content,   ///< A marker of a panels file or a bin.
};

BinsLine KindOf(std::string_view firstCell);

/// Whether a file that begins with these bytes is a panels or a bins file.
bool IsPanelsOrBins(std::string_view head);
/// Which of the two it is.
bool IsBins(std::string_view head);

/// The cell without blanks and double quotes around it.
std::string_view BinsCell(std::string_view cell);

/// Takes the first name off a list with commas between names; one may stand at its end. Nothing
/// once the list is empty.
std::string_view TakeName(std::string_view& list);

/// The complaint about a file whose last line ends too early.
inline constexpr const char* EndsInLine =
    "The file ends in the middle of this line: it has been cut off. Get the whole file";

} // namespace Tamrivo
