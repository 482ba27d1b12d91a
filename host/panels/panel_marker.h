#pragma once

#include "contracts/allele.h"
#include "contracts/locus_fields.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// A place in a file that can't be used.
struct PanelComplaint
{
    std::string File;     ///< Empty: there is only one.
    std::size_t Line = 0; ///< From 1; 0: the file as a whole.
    std::string Column;   ///< Empty: the line as a whole.
    std::string Problem;  ///< What stands there and what was expected.
    bool IsLack = false;  ///< Nothing stands there that a locus needs.
    /// The place's first character in the line, from 1, for XML, where `Column` is an element; 0
    /// for tables.
    std::size_t Character = 0;
    /// What a whole file lacks: the same for several markers, and told once for all of them.
    bool IsShared = false;

    /// "kit.txt, line 7, column Size: ...", for XML "kit.xml, line 7, column 12, element BP: ...".
    std::string Text() const;
};

/// What a remark is about.
enum class RemarkKind
{
    Renamed,          ///< The tag isn't the marker's name.
    Lacking,          ///< A marker that its file says too little about.
    Nominal,          ///< A marker whose sizes follow from repeats, without bins of its own.
    SizeOutsideBin,   ///< An allele.
    LadderWithoutBin, ///< An allele of the ladder.
    BinOutsideLadder, ///< A bin that is neither virtual nor of the ladder.
};

/// Something noteworthy about what was read or planned; people get one sentence for all of a kind.
struct PanelRemark
{
    RemarkKind Kind;
    std::string Text; ///< With the place, without a full stop.
};

/// An allele as a file states it.
struct PanelAllele
{
    std::string Name;
    double Size = 0;     ///< nt
    double BinStart = 0; ///< nt
    double BinEnd = 0;   ///< nt
    double Repeats = 0;
    std::int32_t Origin = AlleleOrigin::Imported;
    bool IsVirtual = false; ///< Not in the ladder.
};

/// What the source of a marker says about its alleles besides name, size and bin. An update changes
/// nothing else.
struct StatedOfAlleles
{
    bool Virtual = true;
    bool Repeats = false;
    bool Origin = false;
};

/// A marker with its alleles, as a file of any format states it.
struct PanelMarker
{
    std::string File;     ///< Empty: there is only one.
    std::size_t Line = 0; ///< Its first line, from 1.
    std::string Panel;
    std::string ShortName; ///< Other names of the panel, if it has any.
    std::string FullName;
    std::string Marker;
    std::string LocusTag; ///< Empty: the tag follows from the marker's name.
    std::string Color;
    std::int32_t RepeatLength = 0;
    double RangeStart = 0;
    double RangeEnd = 0;
    std::optional<double> Offset;
    /// Further fields of the locus and the texts of their cells, each of them readable.
    std::vector<std::pair<const LocusField*, std::string>> FieldCells;
    std::vector<PanelAllele> Alleles;
    StatedOfAlleles Stated;
    /// Sizes are whole nt that follow from repeats, and bins, virtual alleles and the range are no
    /// part of the format.
    bool IsNominal = false;
    /// What keeps the marker out.
    std::vector<PanelComplaint> Flaws;
};

/// The tag of a marker whose name isn't unique: "D3S1358 (Panel-17)".
inline std::string MarkerInPanel(const std::string& marker, const std::string& panel)
{
    return marker + " (" + panel + ")";
}

/// What files say.
struct PanelReading
{
    std::vector<PanelMarker> Markers; ///< In the order of their first lines.
    /// Empty for files that could be read. Reading stops after `MaxPanelComplaints`.
    std::vector<PanelComplaint> Complaints;
    std::vector<PanelRemark> Remarks;
    std::vector<std::string> BinSets; ///< Names of the sets of bins, for panels and bins files.
};

inline constexpr std::size_t MaxPanelComplaints = 20;

/// Moves items behind those that are there; a whole vector at once where there are none.
template <class T>
void MoveBehind(std::vector<T>&& from, std::vector<T>& to)
{
    if (to.empty())
        to = std::move(from);
    else
        std::ranges::move(from, std::back_inserter(to));
}

/// The text in quotes, or "nothing"; control characters as "?", a long one cut.
std::string QuotedCell(std::string_view text);

/// The text with "?" for control characters, so that a terminal shows what a file says and nothing
/// else happens.
std::string PrintableText(std::string text);

/// Whether the text has no control characters.
bool IsPrintableText(std::string_view text);

} // namespace Tamrivo
