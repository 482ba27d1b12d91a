#pragma once

#include "host/panels/panel_format.h"
#include "host/panels/panel_marker.h"

#include <istream>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// What a file holds.
struct PanelText
{
    std::string Name; ///< As people know the file.
    std::string Text;
};

/// Reads the bytes of a file. Raises `ErrorNumber::InvalidArgument` when it can't be read.
PanelText LoadPanelFile(const std::string& path);
/// Reads a stream to its end. Raises `ErrorNumber::InvalidArgument` when it can't be read.
PanelText LoadPanelStream(std::istream& in, const std::string& name);

/// How files are read.
struct ReadChoice
{
    std::optional<PanelFormat> Format = {}; ///< None: each file's is known from its content.
    std::string BinSet = {}; ///< Which set of bins to take where there are several, by its name.
    /// From a size to either limit of its bin where a format has no bins, nt.
    double Interval = 0.5;
    std::vector<std::string> Panels = {}; ///< Those that are wanted; empty: all.
};

/// Reads the markers of files of any formats, one after the other; panels files and bins files are
/// put together. Places of what was read name the file where there are several.
PanelReading ReadPanels(std::span<const PanelText> texts, const ReadChoice& choice = {});

} // namespace Tamrivo
