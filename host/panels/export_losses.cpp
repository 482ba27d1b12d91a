#include "host/panels/export_losses.h"

#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/bins/bins_lines.h"
#include "host/panels/bins/panels_bins_writer.h"
#include "host/panels/locus_columns.h"
#include "host/panels/marker_fields.h"
#include "host/panels/osiris/kit_names.h"
#include "host/panels/osiris/kit_writer.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace Tamrivo
{

namespace
{

bool IsWhole(double value)
{
    return value == std::floor(value);
}

/// Whether any of the named fields has another value than that of a new locus.
template <class... Members>
bool Differ(const LocusFields& fields, Members... members)
{
    static const LocusFields initial;
    return ((fields.*members != initial.*members) || ...);
}

using F = LocusFields;

bool HasOtherNaming(const ExportedMarker& marker)
{
    std::vector<AlleleFields> alleles;
    for (const AlleleFields* allele : marker.Alleles)
        alleles.push_back(*allele);
    LocusFields derived;
    ApplyAlleles(alleles, {}, derived);
    const Locus& locus = *marker.Source;
    return derived.AlleleNamingConventionTypeID != locus.AlleleNamingConventionTypeID ||
           derived.StartAtNumeric != locus.StartAtNumeric ||
           derived.StartAtAlphanumeric != locus.StartAtAlphanumeric;
}

/// Something that no foreign format, or only a kit file of OSIRIS, can't carry.
struct Loss
{
    std::string_view What;
    bool IsOfKitOnly;
    bool (*IsLost)(const ExportedMarker&);
};

template <auto... Members>
bool HasOther(const ExportedMarker& marker)
{
    return Differ(*marker.Source, Members...);
}

constexpr Loss losses[] = {
    {"repeat sequences", false, HasOther<&F::RepeatUnitSequence>},
    {"primers", false, HasOther<&F::FwdPrimer, &F::RevPrimer, &F::PrimerLabelTypeID>},
    {"GenBank accessions", false, HasOther<&F::GenBank>},
    {"stutter settings", false,
     HasOther<&F::SearchForStutter, &F::DetShortStutter, &F::DetLongStutter, &F::StutterWidth,
              &F::RelStutter>},
    {"plus-A settings", false, HasOther<&F::ApparentSizeIncludesA, &F::DetectA, &F::UseA>},
    {"spurious peak settings", false, HasOther<&F::DetectSpuriousPeaks, &F::MaxSpurHeight>},
    {"naming conventions", false, HasOtherNaming},
    {"ploidies", false, HasOther<&F::Ploidy>},
    {"confidence intervals", false,
     HasOther<&F::ConfInt, &F::SystemConfInt, &F::UserSpecifiedConfInt>},
    {"bins", true, [](const ExportedMarker& marker) { return !marker.Alleles.empty(); }},
    {"fractions of sizes", true,
     [](const ExportedMarker& marker) {
         return !std::ranges::all_of(marker.Alleles, IsWhole, &AlleleFields::AlleleReal1);
     }},
    {"sizes that their names don't give", true, HasSizeFarFromName},
    {"virtual alleles", true,
     [](const ExportedMarker& marker) { return marker.Ladder().size() < marker.Alleles.size(); }},
    {"names that are no numbers", true,
     [](const ExportedMarker& marker) {
         return std::ranges::any_of(
             marker.Alleles, [](const AlleleFields* allele) { return IsRenamedInKit(*allele); });
     }},
};

bool IsNothing(const std::string& name)
{
    return Trim(name).empty() || !IsPrintableText(name);
}

bool IsMissingValue(const std::string& name)
{
    return name == "NA";
}

bool HasSeparator(const std::string& name)
{
    return name.find_first_of(",\"") != std::string::npos;
}

bool IsWordOfBins(const std::string& name)
{
    return KindOf(name) != BinsLine::Content || name.starts_with('#');
}

bool IsOfAnAllele(bool (*test)(const std::string& name), const ExportedMarker& marker)
{
    return std::ranges::any_of(
        marker.Alleles, [test](const AlleleFields* allele) { return test(allele->AlleleText1); });
}

std::string_view ReasonAgainstBins(const ExportedMarker& marker)
{
    if (marker.Ladder().empty())
        return "no alleles in the ladder";
    if (IsOfAnAllele(&HasSeparator, marker))
        return "a comma or a quote in an allele's name";
    if (IsWordOfBins(marker.Marker) || IsOfAnAllele(&IsWordOfBins, marker))
        return "a name that is a word of the format";
    return {};
}

std::string_view ReasonAgainstKit(const ExportedMarker& marker)
{
    if (marker.Ladder().size() < 2)
        return "fewer than two alleles in the ladder";
    if (!IsPlainXml(marker.Marker))
        return "a name with &, < or >";
    return HasTwoOfOneKitName(marker) ? "two alleles that would have one name" : "";
}

/// Why a marker can't be in the format; empty: it can.
std::string_view ReasonToLeaveOut(const ExportedMarker& marker, PanelFormat format)
{
    if (marker.Marker.empty())
        return "no name";
    if (marker.Alleles.empty())
        return "no alleles";
    if (IsOfAnAllele(&IsNothing, marker))
        return "an allele without a name that can be read";
    const bool isMissing = IsMissingValue(marker.Marker) || IsOfAnAllele(&IsMissingValue, marker);
    switch (format)
    {
    case PanelFormat::PanelTable: return {};
    case PanelFormat::KitTable: return isMissing ? "the name NA, which means a missing value" : "";
    case PanelFormat::PanelsBins: return ReasonAgainstBins(marker);
    case PanelFormat::OsirisKit: return ReasonAgainstKit(marker);
    }
    return {};
}

std::string TextOf(const std::map<std::string, std::vector<std::string>>& tagsByReason)
{
    std::string text;
    for (const auto& [reason, tags] : tagsByReason)
    {
        std::string list;
        constexpr std::size_t most = 10;
        for (std::size_t at = 0; at < std::min(tags.size(), most); ++at)
            list += (at == 0 ? "" : ", ") + tags[at];
        if (tags.size() > most)
            list += " and " + std::to_string(tags.size() - most) + " more";
        text += (text.empty() ? "" : "; ") + list + " (" + reason + ")";
    }
    return text;
}

/// "repeat sequences (2), ploidies (1)", by number of loci.
std::string LossesOf(const std::vector<ExportedMarker>& markers, PanelFormat format)
{
    std::string lost;
    for (const Loss& loss : losses)
    {
        if (loss.IsOfKitOnly && format != PanelFormat::OsirisKit)
            continue;
        const auto count = std::ranges::count_if(markers, loss.IsLost);
        if (count > 0)
            lost += (lost.empty() ? "" : ", ") + std::string(loss.What) + " (" +
                    std::to_string(count) + ")";
    }
    return lost;
}

} // namespace

std::string LeaveOut(std::vector<ExportedMarker>& markers, PanelFormat format)
{
    std::map<std::string, std::vector<std::string>> leftOut;
    std::set<std::string> taken;
    std::erase_if(markers, [&](const ExportedMarker& marker) {
        std::string reason(ReasonToLeaveOut(marker, format));
        const bool isOfOneKit = format == PanelFormat::OsirisKit;
        const std::string key =
            (isOfOneKit ? "" : LookupKey(marker.Panel)) + "\n" + LookupKey(marker.Marker);
        if (reason.empty() && !taken.insert(key).second)
            reason = "a name that another locus has";
        if (!reason.empty())
            leftOut[reason].push_back(marker.Source->LocusTag());
        return !reason.empty();
    });

    std::string line;
    const auto add = [&line](const std::string& sentence) {
        line += (line.empty() ? "" : " ") + sentence;
    };
    const bool isPair = format == PanelFormat::PanelsBins;
    if (const std::string lost = LossesOf(markers, format); !lost.empty())
        add((isPair ? "Panels and bins files" : "A " + std::string(NameOf(format).Title)) +
            " can't carry, by number of loci: " + lost + ".");
    const auto tooLong = isPair ? std::ranges::count_if(markers, &IsLongPanelsLine) : 0;
    if (tooLong > 0)
        add(std::to_string(tooLong) + " of the lines have 500 characters or more, and a program "
                                      "that reads them may stop there.");
    if (!leftOut.empty())
        add("Left out: " + TextOf(leftOut) + ".");
    return line;
}

} // namespace Tamrivo
