#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>

namespace Tamrivo
{

// The panel table is the tab-separated table in which programs exchange marker panels: a header
// that names the columns, then a line an allele. A marker without alleles has one line, with
// nothing in the allele's cells. Nothing and "NA" both mean that a value is missing.

/// Columns with a meaning of their own.
enum class PanelColumn
{
    Panel,
    Marker,
    Allele,      ///< Name.
    Size,        ///< nt
    SizeMin,     ///< Start of the bin, nt.
    SizeMax,     ///< End of the bin, nt.
    Virtual,     ///< 1: not in the ladder; 0 or nothing: in it.
    Color,       ///< Of the dye.
    Repeat,      ///< Length of the repeat unit, nt.
    MarkerMin,   ///< Start of the marker's range, nt.
    MarkerMax,   ///< End of the marker's range, nt.
    Offset,      ///< Size less repeats, nt: what the primers add around the repeats.
    LocusTag,    ///< The tag, where it isn't the marker's name.
    AlleleReal4, ///< `AlleleFields::AlleleReal4`, the number of repeats.
    AlleleInt1,  ///< `AlleleFields::AlleleInt1`, how the allele came about.
    ShortName,   ///< Of the panel, by which analysis programs select it.
    FullName,    ///< Of the panel.
};

/// What a column is like.
struct PanelColumnRule
{
    std::string_view Name;
    bool IsRequired;
    bool IsOfMarker; ///< The lines of a marker, which has one panel, name and tag, must agree.
};

/// In the order of `PanelColumn`. The columns before the last two are written in this order; of
/// those, the last three are this program's own, and others ignore them. Behind them stand
/// `LocusFieldColumns`. `Short.Name` and `Full.Name` are of the kit table, the dialect of open
/// programs that analyse.
inline constexpr PanelColumnRule PanelColumnRules[] = {
    {"Panel", true, false},      {"Marker", true, false},       {"Allele", true, false},
    {"Size", true, false},       {"Size.Min", true, false},     {"Size.Max", true, false},
    {"Virtual", false, false},   {"Color", true, true},         {"Repeat", true, true},
    {"Marker.Min", true, true},  {"Marker.Max", true, true},    {"Offset", false, true},
    {"LocusTag", false, false},  {"AlleleReal4", false, false}, {"AlleleInt1", false, false},
    {"Short.Name", false, true}, {"Full.Name", false, true},
};

inline constexpr std::size_t PanelColumnCount = std::size(PanelColumnRules);
/// The columns of a panel table that is written.
inline constexpr std::size_t WrittenColumnCount = PanelColumnCount - 2;

} // namespace Tamrivo
