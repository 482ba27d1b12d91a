#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tamrivo
{

// The panel table is the tab-separated table in which programs exchange marker panels: a header
// that names the columns, then a line an allele. A marker without alleles has one line, with
// nothing in the allele's cells.

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
};

/// What a column is like.
struct PanelColumnRule
{
    std::string_view Name;
    bool IsRequired;
    bool IsOfMarker; ///< All lines of a marker agree.
};

/// In the order of `PanelColumn`, which is the order of the columns in a written table. The last
/// three are this program's own; other programs ignore them. Behind them stand `LocusFieldColumns`.
inline constexpr PanelColumnRule PanelColumnRules[] = {
    {"Panel", true, true},      {"Marker", true, true},        {"Allele", true, false},
    {"Size", true, false},      {"Size.Min", true, false},     {"Size.Max", true, false},
    {"Virtual", false, false},  {"Color", true, true},         {"Repeat", true, true},
    {"Marker.Min", true, true}, {"Marker.Max", true, true},    {"Offset", false, true},
    {"LocusTag", false, true},  {"AlleleReal4", false, false}, {"AlleleInt1", false, false},
};

inline constexpr std::size_t PanelColumnCount = std::size(PanelColumnRules);

/// The tag of a marker whose name isn't unique: "D3S1358 (Panel-17)".
inline std::string MarkerInPanel(const std::string& marker, const std::string& panel)
{
    return marker + " (" + panel + ")";
}

/// A marker with its alleles, as a table states it.
struct PanelMarker
{
    std::size_t Line = 0; ///< Its first line, from 1.
    std::string Panel;
    std::string Marker;
    std::string LocusTag; ///< Empty: the tag follows from the marker's name.
    std::string Color;
    std::int32_t RepeatLength = 0;
    double RangeStart = 0;
    double RangeEnd = 0;
    std::optional<double> Offset;
    /// Further fields of the locus and the texts of their cells, each of them readable.
    std::vector<std::pair<const LocusField*, std::string>> FieldCells;
    std::vector<AlleleFields> Alleles;
};

} // namespace Tamrivo
