#pragma once

#include "contracts/locus_fields.h"
#include "contracts/locus_limits.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// The fields of a locus that the panel table states in a further column of the field's own name:
/// all but those that another column states and `ProjectID`, which means nothing in another store.
std::span<const LocusField* const> LocusFieldColumns();

/// The field as a cell, not escaped.
std::string FieldCell(const LocusFields& fields, const LocusField& field);
/// Writes a cell's text into the field. Gives what was expected when the cell can't be read, and
/// then leaves the field alone; else an empty text. An empty cell of a number says nothing about
/// the field.
std::string_view SetField(LocusFields& fields, const LocusField& field, const std::string& cell);

/// What the editor's fields couldn't hold, a sentence each: numbers past their range and texts past
/// their length.
std::vector<std::string> MisfitsOf(const LocusFields& fields);

/// The most characters that a tag may have.
inline constexpr std::size_t MaxTagLength = Limit::LocusTag;

} // namespace Tamrivo
