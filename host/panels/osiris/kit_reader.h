#pragma once

#include "host/panels/line_reader.h"
#include "host/panels/panel_marker.h"

namespace Tamrivo
{

/// Reads a kit file of OSIRIS, version 2.0 or 2.7; elements that it doesn't know are passed over.
/// The kit is the panel. Its loci are nominal: sizes are whole, bins reach as far as told, and the
/// range is the outer one of the alleles' and the search regions'.
/// @param interval from a size to either limit of its bin, nt
PanelReading ReadOsirisKit(LineReader& source, double interval);

} // namespace Tamrivo
