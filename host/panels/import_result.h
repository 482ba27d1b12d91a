#pragma once

#include "host/panels/import_plan.h"

#include <string>
#include <vector>

namespace Tamrivo
{

/// What the carried out plan has done, a sentence each: "Imported 17 loci with 223 alleles.", what
/// was changed, was there already or was left out, and dyes that were added.
/// @param source what the markers were read from
std::vector<std::string> ResultOf(const ImportPlan& plan, const std::string& source);

/// A sentence for each kind of remark, with their number: "3 loci are stored under a tag with the
/// name of their panel."
std::vector<std::string> SummaryOf(const std::vector<PanelRemark>& remarks);

} // namespace Tamrivo
