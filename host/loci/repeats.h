#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <cstdint>
#include <string_view>

namespace Tamrivo
{

// Numbers of repeats in the notation of allele names: 9.3 are nine whole repeats and 3 nt more. 0
// stands for a number that isn't known.

/// Length of a number of repeats, nt, of a unit in nt.
double RepeatsLength(double repeats, std::int32_t unit);

/// The number of repeats in an allele that is longer than one with `repeats`, by a distance in nt;
/// what is left of a unit counts in whole nt. 0 when that number isn't known, when the unit is
/// below 1 nt, or when the distance leaves no whole repeat.
double RepeatsAtDistance(double repeats, double distance, std::int32_t unit);

/// The number of repeats that an allele of the locus has by its name, if that reads as one and as
/// many repeats fit into its size; else by its size, counted from the shortest allele. Names that
/// merely count the alleles (numeric naming that starts at another number than the repeats do) tell
/// nothing of repeats. An allele whose number wasn't known keeps it so until its name tells it.
double RepeatsOf(const AlleleFields& allele, const LocusFields& locus);

} // namespace Tamrivo
