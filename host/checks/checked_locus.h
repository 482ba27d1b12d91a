#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Tamrivo
{

/// A locus as the rules look at it, wherever it comes from: the store, a file or the editor. What
/// it points to stays where it is during the check.
struct CheckedLocus
{
    CheckedLocus(std::string tag, const LocusFields& fields,
                 std::vector<const AlleleFields*> alleles);

    std::string Tag;
    const LocusFields& Fields;
    std::vector<const AlleleFields*> Alleles; ///< By size.
    std::string Dye;                          ///< As people call it.
    bool HasKnownDye = true;
    bool StatesConvention = true;      ///< Whether anyone has chosen the naming convention.
    std::shared_ptr<const void> Owner; ///< Keeps what the members point to, where nobody else does.
};

/// Loci that are analysed together: those of a panel or of an analysis parameter.
struct LociTogether
{
    std::string Name; ///< "panel Panel-17", "analysis parameter Casework"
    std::vector<const CheckedLocus*> Loci;
    std::vector<std::int32_t> MissingTagIDs; ///< `Locus::LocusTagID`s that nothing stored has.
};

} // namespace Tamrivo
