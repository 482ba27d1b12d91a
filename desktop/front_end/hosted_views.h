#pragma once

#include "desktop/forms/control_view.h"
#include "host/loci/dyes.h"

namespace Tamrivo
{

/// Makes the views of the controls that this program's host brings along: grids, and the allele
/// pane of the locus editor.
/// @param dyes those of the lab, in whose colours bins are drawn
HostedViewFactory HostedViews(const Dyes& dyes);

} // namespace Tamrivo
