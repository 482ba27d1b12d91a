#pragma once

#include "host/panels/line_reader.h"
#include "host/panels/panel_marker.h"

#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

// What panels files and bins files state, before the two are put together.

/// A marker of a panels file, without sizes.
struct PanelsMarker
{
    PanelMarker Marker;
    std::vector<std::string> Ladder; ///< Names of the alleles in the ladder.
};

struct PanelsFile
{
    std::string File;
    std::vector<PanelsMarker> Markers;
    std::vector<PanelComplaint> Complaints;
};

/// The bins of a marker.
struct MarkerBins
{
    std::string Panel;
    std::string Marker;
    std::size_t Line = 0;
    std::vector<AlleleFields> Alleles;
    std::vector<PanelComplaint> Flaws;
};

struct BinsFile
{
    std::string File;
    std::string BinSet;
    std::vector<MarkerBins> Markers;
    std::vector<PanelComplaint> Complaints;
};

PanelsFile ReadPanelsFile(LineReader& source, const std::string& file);
BinsFile ReadBinsFile(LineReader& source, const std::string& file);

/// Puts the bins to the panels of their names. Complains about bins of panels that aren't there,
/// panels without bins, and panels with several sets of bins of which none is chosen.
/// @param binSet the name of the set of bins to take; empty: there is one only
/// @param panels names of the panels that are wanted; empty: all
PanelReading JoinPanelsAndBins(std::span<PanelsFile> panelsFiles, std::span<BinsFile> binsFiles,
                               const std::string& binSet, const std::vector<std::string>& panels);

} // namespace Tamrivo
