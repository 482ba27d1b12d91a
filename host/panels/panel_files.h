#pragma once

#include "host/panels/panel_format.h"
#include "host/panels/panel_marker.h"

#include <istream>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// A file that is to be read, once.
struct PanelFile
{
    std::string Name; ///< As people know the file.
    std::shared_ptr<std::istream> Bytes;
};

/// Opens a file. Raises `ErrorNumber::InvalidArgument` when it can't be read.
PanelFile OpenPanelFile(const std::string& path);
/// A text as a file.
PanelFile PanelFileOf(const std::string& name, const std::string& text);

/// What a file holds.
struct PanelText
{
    std::string Name; ///< As people know the file.
    std::string Text;
};

/// Reads the bytes of a file. Raises `ErrorNumber::InvalidArgument` when it can't be read.
PanelText LoadPanelFile(const std::string& path);

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
/// put together. Places of what was read name the file where there are several. Raises
/// `ErrorNumber::InvalidArgument` when reading a file fails.
PanelReading ReadPanels(std::span<const PanelFile> files, const ReadChoice& choice = {});

} // namespace Tamrivo
