#include "host/checks/marker_check.h"

#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/marker_fields.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace Tamrivo
{

namespace
{

/// Markers with the fields that they make.
struct Definitions
{
    std::vector<PanelMarker> Markers;
    std::vector<LocusFields> Fields;
    std::vector<std::vector<AlleleFields>> Alleles;
    std::map<std::string, std::int32_t> DyeOfColor;
    std::map<std::string, std::size_t> Named; ///< Markers of a name.
};

std::string TagOf(const Definitions& definitions, const PanelMarker& marker)
{
    if (!marker.LocusTag.empty())
        return marker.LocusTag;
    return definitions.Named.at(LookupKey(marker.Marker)) == 1
               ? marker.Marker
               : MarkerInPanel(marker.Marker, marker.Panel);
}

CheckedLocus CheckedLocusOf(const Definitions& definitions, std::size_t at)
{
    const PanelMarker& marker = definitions.Markers[at];
    std::vector<const AlleleFields*> alleles;
    for (const AlleleFields& allele : definitions.Alleles[at])
        alleles.push_back(&allele);
    CheckedLocus checked(TagOf(definitions, marker), definitions.Fields[at], std::move(alleles));
    checked.Dye = Trim(marker.Color);
    checked.StatesConvention = std::ranges::any_of(marker.FieldCells, [](const auto& cell) {
        return cell.first->Name == "AlleleNamingConventionTypeID";
    });
    return checked;
}

} // namespace

CheckSource CheckSourceOf(std::vector<PanelMarker> markers)
{
    auto definitions = std::make_shared<Definitions>();
    definitions->Markers = std::move(markers);
    std::map<std::string, CheckSource::Group> panels;
    for (std::size_t at = 0; at < definitions->Markers.size(); ++at)
    {
        PanelMarker& marker = definitions->Markers[at];
        LocusFields fields;
        definitions->Alleles.push_back(AllelesOf(marker));
        marker.Alleles = {};
        ApplyMarker(marker, definitions->Alleles.back(), Dyes(), true, fields);
        ApplyAlleles(definitions->Alleles.back(), marker.Offset, fields);
        fields.DyeIndex = definitions->DyeOfColor
                              .emplace(FoldCase(Trim(marker.Color)), static_cast<std::int32_t>(at))
                              .first->second;
        definitions->Fields.push_back(std::move(fields));
        ++definitions->Named[LookupKey(marker.Marker)];
        auto& panel = panels[LookupKey(marker.Panel)];
        panel.Name = "panel " + marker.Panel;
        panel.Loci.push_back(at);
    }
    CheckSource source;
    source.Count = definitions->Markers.size();
    source.Locus = [definitions](std::size_t at) { return CheckedLocusOf(*definitions, at); };
    for (auto& [key, panel] : panels)
        source.Groups.push_back(std::move(panel));
    return source;
}

} // namespace Tamrivo
