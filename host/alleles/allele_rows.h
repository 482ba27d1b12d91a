#pragma once

#include "contracts/locus.h"
#include "host/alleles/allele_problems.h"

namespace Tamrivo
{

/// Also sizes that are no numbers have their place; rows of one size keep their order.
void SortBySize(AlleleRows& rows);

/// The alleles of the locus by size.
AlleleRows RowsOf(Locus& locus);

/// Makes the list hold the rows, in their order.
void Rebuild(ObjectList& list, const AlleleRows& rows);

/// The rows that aren't among the others.
AlleleRows Without(const AlleleRows& rows, const AlleleRows& others);

} // namespace Tamrivo
