#pragma once

#include "host/panels/export_plan.h"

#include <ostream>
#include <string_view>

namespace Tamrivo
{

/// Writes the plan as a kit file of OSIRIS, version 2.7. The program's own reader is a search in
/// the text: so there are no comments, no attributes but the root's and no entities.
void WriteOsirisKit(std::ostream& out, const ExportPlan& plan);

/// Whether the text needs no entities.
bool IsPlainXml(std::string_view text);
/// Whether an allele in the ladder has a size that is more than a repeat away from the one that the
/// file gives it by its name.
bool HasSizeFarFromName(const ExportedMarker& marker);
/// Whether two alleles in the ladder would get one name.
bool HasTwoOfOneKitName(const ExportedMarker& marker);

} // namespace Tamrivo
