#pragma once

#include "host/panels/import_plan.h"

#include <vector>

namespace Tamrivo
{

/// The markers that are meant by the choice. Raises `ErrorNumber::InvalidArgument` for a panel that
/// isn't among them.
std::vector<const PanelMarker*> ChosenMarkers(const std::vector<PanelMarker>& markers,
                                              const ImportChoice& choice);

} // namespace Tamrivo
