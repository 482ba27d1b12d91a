#pragma once

#include "platform/panels/import_plan.h"

#include <cstddef>
#include <functional>

namespace Tamrivo
{

/// Told of the loci stored so far and of all that are to be.
using ImportProgress = std::function<void(std::size_t done, std::size_t total)>;

/// Stores the plan's new loci, and the projects that they need, in one transaction: all or none.
/// Raises failures of the store, among them `StoreError::NameTaken` when someone else has taken a
/// tag since the plan was made.
void CarryOutImport(const ImportPlan& plan, Store& store, const ImportProgress& progress = {});

} // namespace Tamrivo
