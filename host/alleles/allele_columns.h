#pragma once

#include "contracts/allele.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Tamrivo
{

enum class CellKind
{
    Text,
    Number,
    Truth,
};

/// What a person sees of an allele, and edits unless it follows from the rest.
struct AlleleColumn
{
    std::string_view Name;  ///< One word, for scripts.
    std::string_view Title; ///< Heading, with the unit.
    CellKind Kind;
    std::string (*Text)(const AlleleFields&);
    /// Null: the value follows from others.
    void (*SetText)(AlleleFields&, std::string_view text);
};

// Numbers are shown in the shortest form that reads back as the same value. Setting a text raises
// `User::Refusal` for one that is no number in a column of numbers, neither "true" nor "false" in
// one of truth values, and for a name that is longer than `MaxAlleleName` or holds a control
// character. Blanks around a text don't count.

/// The columns of the allele pane, from left to right.
extern const AlleleColumn AlleleColumns[7];

// Where the ends of the bin stand among them.
inline constexpr std::size_t BinFromColumn = 2;
inline constexpr std::size_t BinToColumn = 3;

/// How many of the columns scripts read: name, size and bin.
inline constexpr std::size_t ListedColumns = 4;

/// Most characters of an allele name that a person can enter.
inline constexpr std::size_t MaxAlleleName = 128;

/// The word for an `AlleleOrigin`: "generated", "edited" or "imported".
std::string OriginText(std::int32_t origin);

} // namespace Tamrivo
