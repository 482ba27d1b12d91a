#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// A format in which loci are exchanged.
enum class PanelFormat
{
    PanelTable, ///< A table of this program's own columns and those that are exchanged.
    KitTable,   ///< Its dialect of the open programs strvalidator and euroformix.
    PanelsBins, ///< Two files that belong together, as makers of kits deliver them.
    OsirisKit,  ///< XML of the open analysis program OSIRIS.
};

struct PanelFormatName
{
    std::string_view Option; ///< On a command line.
    std::string_view Title;  ///< In a sentence.
    std::string_view Suffix; ///< Of a file.
};

/// In the order of `PanelFormat`.
inline constexpr PanelFormatName PanelFormatNames[] = {
    {"panel-table", "panel table", ".tsv"},
    {"kit-table", "kit table", ".txt"},
    {"panels-bins", "panels and bins files", ".txt"},
    {"osiris-kit", "kit file of OSIRIS", ".xml"},
};

inline const PanelFormatName& NameOf(PanelFormat format)
{
    return PanelFormatNames[static_cast<std::size_t>(format)];
}

/// The names for a command line, between them this.
std::string FormatOptions(std::string_view between);

/// The format of the name for a command line, case aside, or none.
std::optional<PanelFormat> FindFormat(std::string_view option);

/// The format of a file by the bytes that it begins with. A text that is none of them counts as a
/// panel table, whose reader says what it expects.
PanelFormat DetectFormat(std::string_view head);

/// Why a file that begins with these bytes is no text of any of the formats, a sentence without a
/// full stop; empty when it may be one.
std::string ProblemOfBytes(std::string_view head);

} // namespace Tamrivo
