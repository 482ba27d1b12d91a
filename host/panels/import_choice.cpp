#include "host/panels/import_choice.h"

#include "core/error.h"
#include "core/text.h"

#include <algorithm>
#include <map>

namespace Tamrivo
{

namespace
{

void RequirePanels(const std::vector<PanelMarker>& markers, const std::vector<std::string>& wanted)
{
    for (const std::string& panel : wanted)
    {
        const std::vector<std::string> one{panel};
        if (std::ranges::any_of(
                markers, [&one](const PanelMarker& marker) { return IsOfPanels(marker, one); }))
            continue;
        std::map<std::string, std::string> panels;
        for (const PanelMarker& marker : markers)
            panels.emplace(FoldCase(Trim(marker.Panel)), marker.Panel);
        std::string names;
        for (const auto& [key, name] : panels)
            names += (names.empty() ? "" : ", ") + name;
        throw Failure(ErrorNumber::InvalidArgument, "PlanImport",
                      "There is no panel \"" + panel + "\" in what was read, but " +
                          (names.empty() ? "none at all" : "these: " + names));
    }
}

} // namespace

bool IsOfPanels(const PanelMarker& marker, const std::vector<std::string>& panels)
{
    return std::ranges::any_of(panels, [&marker](const std::string& name) {
        const std::string wanted = Trim(name);
        return EqualNoCase(wanted, Trim(marker.Panel)) ||
               EqualNoCase(wanted, Trim(marker.ShortName)) ||
               EqualNoCase(wanted, Trim(marker.FullName));
    });
}

std::vector<const PanelMarker*> ChosenMarkers(const std::vector<PanelMarker>& markers,
                                              const ImportChoice& choice)
{
    RequirePanels(markers, choice.Panels);
    std::vector<const PanelMarker*> chosen;
    for (std::size_t index = 0; index < markers.size(); ++index)
    {
        const bool isChosen =
            choice.Markers ? std::ranges::binary_search(*choice.Markers, index)
                           : choice.Panels.empty() || IsOfPanels(markers[index], choice.Panels);
        if (isChosen)
            chosen.push_back(&markers[index]);
    }
    return chosen;
}

} // namespace Tamrivo
