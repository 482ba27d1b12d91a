#pragma once

#include "contracts/locus_fields.h"
#include "host/alleles/allele_problems.h"

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

/// A row of a size, nt, among those that there are: its bin as wide as the confidence interval that
/// counts where the bins beside it leave that room, its number of repeats counted from the nearest
/// row. Where that row is named by its repeats, the new one is too, unless another has the name.
AlleleFields FieldsOfSize(double size, const AlleleRows& rows, const LocusFields& locus);

/// Marks a row as edited and gives it the number of repeats that follows from its name and size.
void Derive(AlleleFields& fields, const LocusFields& locus);

} // namespace Tamrivo
