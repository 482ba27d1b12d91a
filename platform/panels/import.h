#pragma once

#include "platform/panels/import_plan.h"

namespace Tamrivo
{

/// Stores the plan's new loci, and the projects that they need, in one transaction: all or none.
/// Raises failures of the store, among them `StoreError::NameTaken` when someone else has taken a
/// tag since the plan was made.
void CarryOutImport(const ImportPlan& plan, Store& store, const LociProgress& progress = {});

} // namespace Tamrivo
