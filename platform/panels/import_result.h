#pragma once

#include "platform/panels/import_plan.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// What the carried out plan has done, a sentence each: tags that differ from the marker's name,
/// then "Imported 17 loci with 223 alleles.", and what was there already or was left out.
/// @param source what the markers were read from
std::vector<std::string> ResultOf(const ImportPlan& plan, const std::string& source);

} // namespace Tamrivo
