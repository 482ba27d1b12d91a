#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <optional>

namespace Tamrivo
{

/// A row for the locus's shortest allele, still without a name; its bin as wide as the confidence
/// interval that counts.
AlleleFields FirstFields(const LocusFields& locus);

/// A row that follows another one: a repeat unit longer, or half-way to the next, whichever is
/// nearer.
AlleleFields FieldsAfter(const AlleleFields& row, std::optional<double> nextSize,
                         const LocusFields& locus);

/// Marks a row as edited and gives it the number of repeats that follows from its name and size.
void Derive(AlleleFields& fields, const LocusFields& locus);

} // namespace Tamrivo
