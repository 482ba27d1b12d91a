#pragma once

#include "contracts/allele.h"

#include <string>

namespace Tamrivo
{

/// The name of an allele in a kit file of OSIRIS, where names are numbers with at most one digit
/// after the point: X and Q are 1, Y and S are 2, other names that are no such number become the
/// whole size.
std::string KitAlleleName(const AlleleFields& allele);

/// Whether the name has to be another one in a kit file.
bool IsRenamedInKit(const AlleleFields& allele);

} // namespace Tamrivo
