#include "host/panels/osiris/kit_writer.h"

#include "core/text.h"
#include "host/panels/cells.h"
#include "host/panels/osiris/kit_names.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cmath>
#include <set>

namespace Tamrivo
{

namespace
{

std::string UpperCase(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    return text;
}

void Add(pugi::xml_node node, const char* name, const std::string& text)
{
    node.append_child(name).text().set(text.c_str());
}

void Add(pugi::xml_node node, const char* name, double value)
{
    Add(node, name, NumberCell(value));
}

/// "9.3" as repeats and nucleotides.
struct Repeats
{
    double Whole;
    double Digit;
};

Repeats RepeatsOf(const AlleleFields& allele)
{
    const double number = CellNumber(KitAlleleName(allele)).value_or(0);
    return {std::floor(number), std::round(10 * (number - std::floor(number)))};
}

/// A locus as the kit file has it: whole sizes that follow from repeats.
class KitLocus
{
public:
    explicit KitLocus(const ExportedMarker& marker) : m_marker(marker), m_ladder(marker.Ladder())
    {
        std::ranges::sort(m_ladder, {}, &AlleleFields::AlleleReal1);
        const AlleleFields& first = *m_ladder.front();
        const AlleleFields& last = *m_ladder.back();
        const bool isNamedBySize = std::ranges::any_of(m_ladder, &IsNamedBySize);
        m_isExtended = m_ladder.size() > 2 && !isNamedBySize;
        m_core = m_ladder.size() == 2
                     ? std::max(1.0, std::round(last.AlleleReal1 - first.AlleleReal1))
                     : marker.Source->RepeatLength;
        MinGrid = first.AlleleReal1 - (m_core - 1);
        MaxGrid = last.AlleleReal1 + (m_core - 1);
    }

    const ExportedMarker& Marker() const { return m_marker; }
    double FirstSize() const { return m_ladder.front()->AlleleReal1; }
    double LastSize() const { return m_ladder.back()->AlleleReal1; }

    bool HasSizeFarFromName() const
    {
        return std::ranges::any_of(m_ladder, [this](const AlleleFields* allele) {
            return std::abs(BasePairs(*allele) - allele->AlleleReal1) > m_core + 0.5;
        });
    }

    double MinGrid; ///< nt
    double MaxGrid; ///< nt

    void AddTo(pugi::xml_node set, const std::vector<std::string>& sizeStandards) const
    {
        pugi::xml_node locus = set.append_child("Locus");
        Add(locus, "Name", m_marker.Marker);
        Add(locus, "Channel", m_marker.Channel);
        if (!m_isExtended)
            Add(locus, "NoExtension", "true");
        const auto bySize = [](const AlleleFields* one, const AlleleFields* other) {
            return one->AlleleReal1 < other->AlleleReal1;
        };
        const auto [smallest, largest] = std::ranges::minmax_element(m_marker.Alleles, bySize);
        Add(locus, "MinBP", BasePairs(**smallest));
        Add(locus, "MaxBP", BasePairs(**largest));
        pugi::xml_node regions = locus.append_child("SearchRegions");
        for (const std::string& name : sizeStandards)
        {
            pugi::xml_node region = regions.append_child("Region");
            Add(region, "ILSName", Trim(name));
            Add(region, "MinGrid", std::round(MinGrid * 100) / 100);
            Add(region, "MaxGrid", std::round(MaxGrid * 100) / 100);
        }
        Add(locus, "CoreRepeatNumber", m_core);
        AddKind(locus);
        AddLadder(locus.append_child("LadderAlleles"));
    }

private:
    static bool IsNamedBySize(const AlleleFields* allele)
    {
        return IsRenamedInKit(*allele) && !CellNumber(allele->AlleleText1) &&
               KitAlleleName(*allele) == NumberCell(std::round(allele->AlleleReal1));
    }

    double BasePairs(const AlleleFields& allele) const
    {
        const AlleleFields& first = *m_ladder.front();
        const double start = std::round(first.AlleleReal1);
        if (m_ladder.size() == 2 && &allele == m_ladder.back())
            return start + m_core;
        if (!m_isExtended || IsNamedBySize(&allele))
            return std::round(allele.AlleleReal1);
        const Repeats from = RepeatsOf(first);
        const Repeats to = RepeatsOf(allele);
        return start + m_core * (to.Whole - from.Whole) + to.Digit - from.Digit;
    }

    void AddKind(pugi::xml_node locus) const
    {
        const std::string name = UpperCase(m_marker.Marker);
        if (name.starts_with("DY") || name.starts_with("Y-"))
            Add(locus, "YLinked", "true");
        if (name.starts_with("QS"))
            Add(locus, "QualityLocus", "true");
    }

    void AddLadder(pugi::xml_node list) const
    {
        int curve = 0;
        for (const AlleleFields* allele : m_ladder)
        {
            pugi::xml_node node = list.append_child("Allele");
            Add(node, "Name", KitAlleleName(*allele));
            Add(node, "CurveNo", ++curve);
            Add(node, "BP", BasePairs(*allele));
        }
    }

    const ExportedMarker& m_marker;
    std::vector<const AlleleFields*> m_ladder; ///< By size.
    double m_core = 4;                         ///< nt
    bool m_isExtended = true;
};

/// Where the search regions of two neighbours of a dye would meet, the border is the middle of the
/// gap between their alleles.
void SeparateNeighbours(std::vector<KitLocus>& loci)
{
    std::vector<KitLocus*> order;
    for (KitLocus& locus : loci)
        order.push_back(&locus);
    std::ranges::stable_sort(order, {}, [](const KitLocus* locus) {
        return std::pair(locus->Marker().Channel, locus->FirstSize());
    });
    for (std::size_t at = 1; at < order.size(); ++at)
    {
        KitLocus& left = *order[at - 1];
        KitLocus& right = *order[at];
        if (left.Marker().Channel != right.Marker().Channel || left.MaxGrid < right.MinGrid)
            continue;
        left.MaxGrid = right.MinGrid = (left.LastSize() + right.FirstSize()) / 2;
    }
}

void AddChannels(pugi::xml_node set, const ExportPlan& plan, std::int32_t loci)
{
    pugi::xml_node map = set.append_child("FsaChannelMap");
    const auto add = [&map](std::int32_t number, const std::string& color) {
        pugi::xml_node channel = map.append_child("Channel");
        Add(channel, "KitChannelNumber", number);
        Add(channel, "fsaChannelNumber", number);
        Add(channel, "Color", UpperCase(color));
        Add(channel, "DyeName", UpperCase(color));
    };
    bool hasOrange = false;
    for (std::int32_t channel = 1; channel <= loci; ++channel)
    {
        const std::string color = plan.OfStore.ColorOf(channel - 1);
        hasOrange = hasOrange || color == "orange";
        add(channel, color);
    }
    add(loci + 1, hasOrange ? "red" : "orange");
}

} // namespace

bool IsPlainXml(std::string_view text)
{
    return text.find_first_of("&<>") == std::string_view::npos;
}

bool HasTwoOfOneKitName(const ExportedMarker& marker)
{
    std::set<std::string> names;
    return std::ranges::any_of(marker.Ladder(), [&names](const AlleleFields* allele) {
        return !names.insert(KitAlleleName(*allele)).second;
    });
}

bool HasSizeFarFromName(const ExportedMarker& marker)
{
    return KitLocus(marker).HasSizeFarFromName();
}

void WriteOsirisKit(std::ostream& out, const ExportPlan& plan)
{
    std::vector<KitLocus> loci(plan.Markers.begin(), plan.Markers.end());
    SeparateNeighbours(loci);
    std::int32_t channels = 0;
    for (const ExportedMarker& marker : plan.Markers)
        channels = std::max(channels, marker.Channel);
    const std::string kit =
        plan.Choice.Kit.empty() && !loci.empty() ? plan.Markers.front().Panel : plan.Choice.Kit;

    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    pugi::xml_node root = document.append_child("KitData");
    root.append_attribute("xmlns:xsi") = "http://www.w3.org/2001/XMLSchema-instance";
    root.append_attribute("xsi:noNamespaceSchemaLocation") = "MarkerSet.xsd";
    Add(root, "Version", "2.7");
    pugi::xml_node set = root.append_child("Kits").append_child("Set");
    Add(set, "Name", Trim(kit));
    Add(set, "NChannels", channels + 1);
    pugi::xml_node standard = set.append_child("ILS");
    pugi::xml_node names = standard.append_child("LSBases");
    for (const std::string& name : plan.Choice.SizeStandards)
        Add(names, "ILSName", Trim(name));
    Add(standard, "ChannelNo", channels + 1);
    for (const char* element : {"FileNameSuffix", "GenotypeSuffix", "DirectorySearchString"})
        Add(set, element, Trim(kit));
    AddChannels(set, plan, channels);
    for (const KitLocus& locus : loci)
        locus.AddTo(set, plan.Choice.SizeStandards);
    document.save(out, "  ", pugi::format_indent, pugi::encoding_utf8);
}

} // namespace Tamrivo
