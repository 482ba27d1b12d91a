#pragma once

#include "host/panels/panel_marker.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// A value that a stored locus has and its file states otherwise.
struct Difference
{
    std::string Field;  ///< Name of the field, or of the allele's column in a panel table.
    std::string Allele; ///< Name of the allele; empty: a field of the locus.
    std::string Stored;
    std::string File;
};

/// What becomes of a locus's alleles, and what about them changes.
struct AlleleUpdate
{
    std::vector<AlleleFields> Alleles;
    std::vector<Difference> Differences;
};

/// Brings stored alleles to the stated ones of the marker, those of `AllelesOf`. Alleles are the
/// same when their names are, "9.3" and "9.30" too, or, for a kit file, when the stored name would
/// stand there as the marker's. What the file can't carry stays as it is stored: of an allele that
/// a kit file knows its size, bin and name, and alleles that aren't in the ladder.
AlleleUpdate UpdateAlleles(const std::vector<AlleleFields>& stored,
                           const std::vector<AlleleFields>& stated, const PanelMarker& marker);

} // namespace Tamrivo
