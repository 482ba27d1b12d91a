#pragma once

#include "contracts/allele.h"

#include <string>
#include <string_view>
#include <variant>

namespace Tamrivo
{

/// What a person sees and edits of an allele.
struct AlleleColumn
{
    std::string_view Name;  ///< One word, for scripts.
    std::string_view Title; ///< Heading, with the unit.
    std::variant<std::string AlleleFields::*, double AlleleFields::*> Member;
};

/// The columns of the allele pane, from left to right.
inline constexpr AlleleColumn AlleleColumns[] = {
    {"name", "Name", &AlleleFields::AlleleText1},
    {"size", "Size (nt)", &AlleleFields::AlleleReal1},
    {"from", "Bin from (nt)", &AlleleFields::AlleleReal2},
    {"to", "Bin to (nt)", &AlleleFields::AlleleReal3},
};

/// The text of a cell; numbers in the shortest form that reads back as the same value.
std::string CellText(const AlleleFields& allele, const AlleleColumn& column);

/// Gives a cell the value that the text stands for. Blanks around it don't count. Raises
/// `User::Refusal` for a text that is no number in a column of numbers, and for a name that is
/// longer than `MaxAlleleName` or holds a control character.
void SetCellText(AlleleFields& allele, const AlleleColumn& column, std::string_view text);

/// Most characters of an allele name that a person can enter.
inline constexpr std::size_t MaxAlleleName = 128;

} // namespace Tamrivo
