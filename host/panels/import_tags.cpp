#include "host/panels/import_tags.h"

#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/locus_columns.h"
#include "host/store/store.h"

namespace Tamrivo
{

namespace
{

bool IsOf(const std::string& panel, const std::shared_ptr<Locus>& locus)
{
    return locus && EqualNoCase(locus->PrimerSet, panel);
}

} // namespace

ImportTags::ImportTags(const std::vector<const PanelMarker*>& markers, Store& store)
    : m_store(store), m_storedKeys(store.TagKeys())
{
    for (const PanelMarker* marker : markers)
    {
        if (marker->LocusTag.empty())
            ++m_markersNamed[LookupKey(marker->Marker)];
    }
}

std::shared_ptr<Locus> ImportTags::Stored(const std::string& tag)
{
    return m_storedKeys.contains(LookupKey(tag)) ? m_store.FindLocus(tag) : nullptr;
}

std::shared_ptr<Locus> ImportTags::Find(const PanelMarker& marker, std::string& tag)
{
    tag = marker.LocusTag.empty() ? marker.Marker : marker.LocusTag;
    auto stored = Stored(tag);
    if (!marker.LocusTag.empty() || marker.Panel.empty() || IsOf(marker.Panel, stored))
        return stored;
    const std::string tagInPanel = MarkerInPanel(marker.Marker, marker.Panel);
    auto storedInPanel = Stored(tagInPanel);
    const bool isFree = !stored && m_markersNamed[LookupKey(marker.Marker)] == 1;
    if (isFree && !IsOf(marker.Panel, storedInPanel))
        return nullptr;
    tag = tagInPanel;
    return storedInPanel;
}

std::vector<std::string> ImportTags::Take(const PanelMarker& marker, const std::string& tag)
{
    std::vector<std::string> obstacles;
    if (CharacterCount(tag) > MaxTagLength)
        obstacles.push_back("The tag \"" + tag + "\" is longer than " +
                            std::to_string(MaxTagLength) + " characters");
    const auto [earlier, isFirst] = m_lineOfTag.emplace(LookupKey(tag), marker.Line);
    if (!isFirst)
        obstacles.push_back("The tag \"" + tag + "\" comes from line " +
                            std::to_string(earlier->second) + " already");
    return obstacles;
}

} // namespace Tamrivo
