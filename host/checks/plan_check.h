#pragma once

#include "host/checks/check_run.h"
#include "host/panels/import_plan.h"

#include <vector>

namespace Tamrivo
{

/// What a check finds in the loci that an import would leave in the store, those of a panel looked
/// at together. Whatever it finds keeps nothing from coming in.
std::vector<Finding> FindingsOf(const ImportPlan& plan);

} // namespace Tamrivo
