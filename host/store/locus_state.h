#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <string>
#include <vector>

namespace Tamrivo
{

class StoredLocus;

/// All that a locus is besides its identity.
struct LocusState
{
    std::string Tag;
    bool IsCurrent = true;
    LocusFields Fields;
    std::vector<AlleleFields> Alleles;

    bool operator==(const LocusState&) const = default;
};

/// The state of the locus as it is in memory, without alleles if they are not loaded.
LocusState StateOf(const StoredLocus& locus);

/// Gives each number of `state` that equals the stored one, but for having been through 32 bits,
/// the stored value.
void KeepStoredPrecision(LocusState& state, const LocusState& stored);

} // namespace Tamrivo
