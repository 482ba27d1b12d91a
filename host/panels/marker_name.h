#pragma once

#include "contracts/locus.h"

#include <string>

namespace Tamrivo
{

/// The name by which files know the locus. Import chooses the tag from it again.
std::string MarkerOf(const Locus& locus);

} // namespace Tamrivo
