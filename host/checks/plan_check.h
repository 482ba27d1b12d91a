#pragma once

#include "host/checks/check_run.h"
#include "host/panels/import_plan.h"

#include <vector>

namespace Tamrivo
{

/// The loci that an import would leave in the store, as a check looks at them: those of a panel
/// together. Whatever it finds keeps nothing from coming in. The plan must outlive the check, and
/// stay as it is.
CheckSource CheckSourceOf(const ImportPlan& plan);

/// What the rules find in them.
std::vector<Finding> FindingsOf(const ImportPlan& plan);

} // namespace Tamrivo
