#pragma once

#include "host/panels/import_plan.h"

namespace Tamrivo
{

/// Carries out a plan: stores its new loci, the changed ones, and the dyes and projects that they
/// need, in one transaction, all or none. Raises failures of the store, among them
/// `StoreError::NameTaken` when someone else has taken a tag since the plan was made, and
/// `StoreError::Conflict` when a locus or the dyes have been changed.
void CarryOutImport(const ImportPlan& plan, Store& store, const LociProgress& progress = {});

} // namespace Tamrivo
