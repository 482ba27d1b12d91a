#pragma once

#include "host/panels/line_reader.h"
#include "host/panels/panel_marker.h"

#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

// What panels files and bins files state, before the two are put together.

struct PanelsFile
{
    std::string File;
    std::vector<PanelMarker> Markers; ///< Without alleles.
    /// Of each marker the names of the alleles in its ladder, with commas between.
    std::vector<std::string> Ladders;
    std::size_t LastLine = 0; ///< Its number.
    std::vector<PanelComplaint> Complaints;
};

/// The bins of a marker.
struct MarkerBins
{
    std::string Panel;
    std::string Marker;
    std::size_t Line = 0;
    std::vector<PanelAllele> Alleles;
    std::vector<PanelComplaint> Flaws;
};

struct BinsFile
{
    std::string File;
    std::string BinSet;
    std::vector<MarkerBins> Markers;
    std::size_t LastLine = 0; ///< Its number.
    std::vector<PanelComplaint> Complaints;
};

PanelsFile ReadPanelsFile(LineReader& source, const std::string& file);
BinsFile ReadBinsFile(LineReader& source, const std::string& file);

/// Puts the bins to the panels of their names. Complains about bins of panels that aren't there,
/// panels without bins, and panels with several sets of bins of which none is chosen. What one of
/// the files lacks is a shared flaw of the markers that miss it.
/// @param binSet the name of the set of bins to take for a panel that has several
/// @param panels names of the panels that are wanted; empty: all
PanelReading JoinPanelsAndBins(std::span<PanelsFile> panelsFiles, std::span<BinsFile> binsFiles,
                               const std::string& binSet, const std::vector<std::string>& panels);

} // namespace Tamrivo
