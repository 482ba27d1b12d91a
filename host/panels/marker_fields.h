#pragma once

#include "host/loci/dyes.h"
#include "host/panels/panel_marker.h"

namespace Tamrivo
{

/// The marker's alleles as a locus has them.
std::vector<AlleleFields> AllelesOf(const PanelMarker& marker);

/// Writes what a file states about the marker into the fields of its locus: the range rounded
/// outward, the panel as primer set. A colour that is no dye changes nothing. A kit file's range
/// counts only where `isNew`, and so does what follows from the alleles.
void ApplyMarker(const PanelMarker& marker, const std::vector<AlleleFields>& alleles,
                 const Dyes& dyes, bool isNew, LocusFields& fields);

/// Writes what follows from the alleles: size of the shortest one, its repeats, and the naming
/// convention with its start. It is Numeric when the alleles are named by numbers, Alphabetic for
/// letters and NominalSize for sizes; names of another kind leave it alone. A list that is
/// generated anew then has the same names for whole repeats.
/// @param offset the marker's, from which repeats follow that the alleles don't state
void ApplyAlleles(const std::vector<AlleleFields>& alleles, const std::optional<double>& offset,
                  LocusFields& fields);

/// Whether shortest allele and repeats in it are those that these alleles give.
bool FollowsAlleles(const LocusFields& fields, const std::vector<AlleleFields>& alleles);
/// Writes shortest allele and repeats in it.
void FollowAlleles(LocusFields& fields, const std::vector<AlleleFields>& alleles);

} // namespace Tamrivo
