#pragma once

#include "host/panels/import_plan.h"

#include <QStringList>

#include <vector>

namespace Tamrivo
{

// What a person is told of an import, before and after.

/// The formats of files by their names, in the order of `PanelFormat`.
QStringList FormatTitles();

/// Why a locus can't come in, or what is noteworthy about it, in sentences; may be empty.
QString RemarksOn(const PlannedLocus& locus);

/// What can't come in, line by line; past a number that nobody reads the rest is only counted.
QStringList ReasonsAgainst(const std::vector<PanelComplaint>& complaints, const ImportPlan& plan);

/// What carrying out the plan would do, in sentences; empty for an empty plan.
QString OutlookOf(const ImportPlan& plan);

/// The choice to import only part of the plan, with its access key.
QString OfferToLeaveOut(const ImportPlan& plan);

/// What has come in: "Imported 17 loci with 223 alleles."
QString ResultOf(const ImportPlan& plan);

} // namespace Tamrivo
