#pragma once

#include "contracts/locus.h"
#include "host/loci/dyes.h"
#include "host/loci/progress.h"

#include <cstddef>
#include <memory>
#include <ostream>
#include <span>

namespace Tamrivo
{

class Store;

/// Writes loci as a panel table, in their order. Besides the exchanged columns the table has this
/// program's own, so that an import gives loci with the same fields and alleles; only `LocusID`,
/// `ProjectID` and the date are left out. May raise a failure of the store when alleles are loaded.
void WritePanelTable(std::ostream& out, std::span<const std::shared_ptr<BusinessObject>> loci,
                     const Dyes& dyes, const LociProgress& progress = {});

/// Writes all current loci of a store so, in the order of their numbers and in memory that doesn't
/// grow with the store. Gives how many there are.
std::size_t WritePanelTable(std::ostream& out, Store& store, const LociProgress& progress = {});

} // namespace Tamrivo
