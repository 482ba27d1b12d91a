#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/bins/ladder.h"
#include "host/panels/bins/panels_bins.h"
#include "host/panels/import_plan.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

namespace Tamrivo
{

namespace
{

/// "FGA, TH01"; "none" for no names.
template <class Items, class Name = std::identity>
std::string Listed(const Items& items, Name name = {})
{
    std::string list;
    for (const auto& item : items)
        list += (list.empty() ? "" : ", ") + std::invoke(name, item);
    return list.empty() ? "none" : list;
}

/// "FGA, TH01 and 3 more"
std::string SomeOf(const std::vector<const std::string*>& names)
{
    constexpr std::size_t most = 5;
    std::string list;
    for (const std::string* name : std::span(names).first(std::min(names.size(), most)))
        list += (list.empty() ? "" : ", ") + QuotedCell(*name);
    return names.size() > most ? list + " and " + std::to_string(names.size() - most) + " more"
                               : list;
}

/// What a file lacks that others need.
PanelComplaint Gap(const std::string& file, std::size_t line, std::string problem)
{
    return {file, line, {}, std::move(problem), false, 0, true};
}

/// Whether the marker's panel is another than that of the one before; those of a panel stand
/// together.
template <class Marker>
bool BeginsPanel(const Marker& marker, const std::vector<Marker>& markers)
{
    return &marker == &markers.front() || marker.Panel != (&marker - 1)->Panel;
}

class Joiner
{
public:
    Joiner(std::span<PanelsFile> panelsFiles, std::span<BinsFile> binsFiles,
           const std::string& binSet, const std::vector<std::string>& panels)
        : m_panelsFiles(panelsFiles),
          m_binsFiles(binsFiles),
          m_binSet(Trim(binSet)),
          m_panels(panels)
    {}

    PanelReading Join()
    {
        for (PanelsFile& file : m_panelsFiles)
        {
            std::ranges::move(file.Complaints, std::back_inserter(m_reading.Complaints));
            for (const PanelMarker& marker : file.Markers)
            {
                if (!BeginsPanel(marker, file.Markers))
                    continue;
                const std::string key = LookupKey(marker.Panel);
                m_panelsRead.try_emplace(key, PanelOfFile{marker.Panel, &file});
            }
        }
        for (BinsFile& file : m_binsFiles)
            AddBins(file);
        const bool isKnown = std::ranges::any_of(m_reading.BinSets, [this](const auto& name) {
            return EqualNoCase(m_binSet, Trim(name));
        });
        if (!m_binSet.empty() && !isKnown)
            Complain("", "There is no set of bins \"" + m_binSet +
                             "\", but these: " + Listed(m_reading.BinSets));
        if (m_reading.Complaints.empty())
            CheckPairs();
        if (m_reading.Complaints.empty())
        {
            for (PanelsFile& file : m_panelsFiles)
                AddMarkers(file);
            TellOfMissingBins();
            AddBinsWithoutMarker();
        }
        return std::move(m_reading);
    }

private:
    struct PanelOfFile
    {
        std::string Name;
        const PanelsFile* File;
    };

    struct BinsOfPanel
    {
        std::string Name;
        std::set<std::string> BinSets;
        bool IsChosen = false; ///< The set of the choice is among them.
        std::unordered_map<std::string, MarkerBins*> Markers; ///< By key; null once taken.
        const BinsFile* File = nullptr;
        std::vector<std::size_t> Lacking; ///< Markers of the reading that aren't among them.
    };

    void Complain(const std::string& file, std::string problem)
    {
        m_reading.Complaints.push_back({file, 0, {}, std::move(problem)});
    }

    void AddBins(BinsFile& file)
    {
        std::ranges::move(file.Complaints, std::back_inserter(m_reading.Complaints));
        if (std::ranges::find(m_reading.BinSets, file.BinSet) == m_reading.BinSets.end())
            m_reading.BinSets.push_back(file.BinSet);
        BinsOfPanel* bins = nullptr;
        for (MarkerBins& marker : file.Markers)
        {
            if (BeginsPanel(marker, file.Markers))
                bins = BinsToFill(file, marker.Panel);
            if (bins != nullptr)
                AddBinsOf(marker, *bins, file.File);
        }
    }

    /// Where the panel's bins go: those of the chosen set, or of the only one. Null for others.
    BinsOfPanel* BinsToFill(const BinsFile& file, const std::string& panel)
    {
        BinsOfPanel& bins = m_bins[LookupKey(panel)];
        bins.Name = panel;
        bins.BinSets.insert(file.BinSet);
        const bool isChosen = EqualNoCase(m_binSet, Trim(file.BinSet));
        if (isChosen && !bins.IsChosen)
            bins.Markers.clear();
        bins.IsChosen = bins.IsChosen || isChosen;
        if (!isChosen && (bins.IsChosen || bins.BinSets.size() > 1))
            return nullptr;
        bins.File = &file;
        return &bins;
    }

    static void AddBinsOf(MarkerBins& marker, BinsOfPanel& bins, const std::string& file)
    {
        const auto [first, isNew] = bins.Markers.emplace(LookupKey(marker.Marker), &marker);
        if (!isNew)
            first->second->Flaws.push_back(
                {file,
                 marker.Line,
                 {},
                 "The marker " + QuotedCell(marker.Marker) + " has other bins here"});
    }

    bool IsWanted(const std::string& panel) const
    {
        PanelMarker marker;
        marker.Panel = panel;
        return m_panels.empty() || IsOfPanels(marker, m_panels);
    }

    void CheckPairs()
    {
        if (m_panelsFiles.empty())
            return Complain(m_binsFiles.front().File,
                            "This is a bins file; give the panels file that belongs to it as well");
        if (m_binsFiles.empty())
            return Complain(m_panelsFiles.front().File,
                            "This is a panels file; give the bins file that belongs to it as well");
        bool isAny = false;
        for (const auto& [key, panel] : m_panelsRead)
        {
            const auto bins = m_bins.find(key);
            if (bins == m_bins.end())
                continue;
            isAny = true;
            if (bins->second.BinSets.size() > 1 && !bins->second.IsChosen && IsWanted(panel.Name))
                Complain("", "The panel " + panel.Name +
                                 " has several sets of bins: " + Listed(bins->second.BinSets) +
                                 ". Choose one by its name (--bins NAME)");
        }
        const auto nameOf = [](const auto& panel) { return panel.second.Name; };
        if (!isAny)
            Complain("", "The files don't belong together: the panels are " +
                             Listed(m_panelsRead, nameOf) + ", and the bins are of " +
                             Listed(m_bins, nameOf));
    }

    void AddMarkers(PanelsFile& file)
    {
        const std::size_t first = m_reading.Markers.size();
        MoveBehind(std::move(file.Markers), m_reading.Markers);
        for (std::size_t at = first; at < m_reading.Markers.size(); ++at)
            JoinMarker(at, file.Ladders[at - first]);
    }

    void JoinMarker(std::size_t at, std::string_view ladder)
    {
        PanelMarker& marker = m_reading.Markers[at];
        const auto bins = m_bins.find(LookupKey(marker.Panel));
        if (bins == m_bins.end())
            return marker.Flaws.push_back(
                Gap(marker.File, 0, "The files have no bins of the panel " + marker.Panel));
        const auto found = bins->second.Markers.find(LookupKey(marker.Marker));
        if (found == bins->second.Markers.end())
            return bins->second.Lacking.push_back(at);
        MarkerBins* const read = std::exchange(found->second, nullptr);
        if (read == nullptr)
            return marker.Flaws.push_back(
                {marker.File, marker.Line, {}, "The panel has a marker of this name further up"});
        if (read->Alleles.empty())
            return bins->second.Lacking.push_back(at);
        marker.Alleles = std::move(read->Alleles);
        MoveBehind(std::move(read->Flaws), marker.Flaws);
        RemarkOnLadder(marker, ladder, m_reading.Remarks);
    }

    void TellOfMissingBins()
    {
        for (const auto& [key, bins] : m_bins)
        {
            std::vector<const std::string*> names;
            for (const std::size_t at : bins.Lacking)
                names.push_back(&m_reading.Markers[at].Marker);
            const PanelComplaint flaw = Gap(bins.File->File, bins.File->LastLine,
                                            "The file ends here without bins of " + SomeOf(names) +
                                                "; it may have been cut off. Get the whole file");
            for (const std::size_t at : bins.Lacking)
                m_reading.Markers[at].Flaws.push_back(flaw);
        }
    }

    /// Bins of markers that their panel doesn't have keep nothing else out.
    void AddBinsWithoutMarker()
    {
        for (const auto& [key, bins] : m_bins)
        {
            const auto panel = m_panelsRead.find(key);
            if (panel == m_panelsRead.end())
                continue;
            std::vector<const MarkerBins*> left;
            for (const auto& [name, read] : bins.Markers)
            {
                if (read != nullptr)
                    left.push_back(read);
            }
            std::ranges::sort(left, {}, &MarkerBins::Line);
            std::vector<const std::string*> names;
            for (const MarkerBins* read : left)
                names.push_back(&read->Marker);
            const PanelComplaint flaw =
                Gap(panel->second.File->File, panel->second.File->LastLine,
                    "The file ends here without the markers " + SomeOf(names) +
                        " of the bins; it may have been cut off. Get the whole file");
            for (const MarkerBins* read : left)
            {
                PanelMarker& marker = m_reading.Markers.emplace_back();
                marker.File = bins.File->File;
                marker.Line = read->Line;
                marker.Panel = bins.Name;
                marker.Marker = read->Marker;
                marker.Flaws.push_back(flaw);
            }
        }
    }

    std::span<PanelsFile> m_panelsFiles;
    std::span<BinsFile> m_binsFiles;
    std::string m_binSet;
    const std::vector<std::string>& m_panels;
    std::map<std::string, PanelOfFile> m_panelsRead; ///< By key.
    std::map<std::string, BinsOfPanel> m_bins;       ///< By the panel's key.
    PanelReading m_reading;
};

} // namespace

PanelReading JoinPanelsAndBins(std::span<PanelsFile> panelsFiles, std::span<BinsFile> binsFiles,
                               const std::string& binSet, const std::vector<std::string>& panels)
{
    return Joiner(panelsFiles, binsFiles, binSet, panels).Join();
}

} // namespace Tamrivo
