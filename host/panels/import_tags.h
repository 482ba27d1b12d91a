#pragma once

#include "host/panels/panel_marker.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace Tamrivo
{

class Locus;
class Store;

/// Which tags the markers of an import get, and which loci the store has under them.
class ImportTags
{
public:
    /// @param markers those that are to come in
    ImportTags(const std::vector<const PanelMarker*>& markers, Store& store);

    /// Chooses the tag, and gives the locus that the store has under it. A locus of the marker's
    /// own panel is found again under either tag, with whatever else it came in.
    std::shared_ptr<Locus> Find(const PanelMarker& marker, std::string& tag);

    /// Why the tag can't be had, sentences without full stops. A tag counts as taken from then on.
    std::vector<std::string> Take(const PanelMarker& marker, const std::string& tag);

private:
    /// The stored locus with the tag. Few of the tags of a table are stored, as a rule.
    std::shared_ptr<Locus> Stored(const std::string& tag);

    Store& m_store;
    std::unordered_set<std::string> m_storedKeys;
    std::map<std::string, std::size_t> m_markersNamed; ///< By key.
    std::map<std::string, std::size_t> m_lineOfTag;    ///< By key.
};

} // namespace Tamrivo
