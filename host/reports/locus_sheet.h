#pragma once

#include "contracts/locus.h"
#include "host/loci/dyes.h"
#include "host/reports/table.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace Tamrivo
{

/// A field of a locus, or a few that belong together, for people.
struct SheetEntry
{
    std::string Label;
    std::string Text; ///< With units; may be empty.
};

/// All that is known of a locus besides its alleles. The entries of every locus are the same ones.
std::vector<SheetEntry> LocusSheet(const Locus& locus, const Dyes& dyes);

/// The alleles of a locus for people. Raises failures of the store.
Table AlleleTable(Locus& locus);

/// The same for programs: the fields by their names and an array "Alleles".
nlohmann::ordered_json LocusJson(Locus& locus);

} // namespace Tamrivo
