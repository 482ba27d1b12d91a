#pragma once

#include "contracts/locus.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace Tamrivo
{

/// Prints all that is known of a locus for people: fields with units, then the alleles.
void PrintLocusSheet(std::ostream& out, Locus& locus);

/// The same for programs: the fields by their names and an array "Alleles".
nlohmann::ordered_json LocusJson(Locus& locus);

} // namespace Tamrivo
