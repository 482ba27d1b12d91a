#pragma once

#include "host/checks/check_run.h"

#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

class Dyes;
class Locus;
class Store;

/// Which of the current loci of a store are checked; at most one member says so.
struct CheckScope
{
    std::optional<std::string> Parameter; ///< Those of this analysis parameter, together.
    std::optional<std::string> Panel;     ///< Those of this panel, together.
    std::vector<std::string> Tags;        ///< These, beside those that they are analysed with.
};

/// The current loci as a check looks at them: those of a panel (`LocusFields::PrimerSet`) and those
/// of an analysis parameter together. Alleles are read as the check comes to them.
///
/// Raises `StoreError::NotFound` for a parameter, panel or tag that the store doesn't have, and
/// failures of the store.
CheckSource CheckSourceOf(Store& store, const CheckScope& scope = {});

/// A locus of the store, which keeps what the result points to.
CheckedLocus CheckedLocusOf(Locus& locus, const Dyes& dyes);

} // namespace Tamrivo
