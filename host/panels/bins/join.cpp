#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/bins/panels_bins.h"
#include "host/panels/cells.h"
#include "host/panels/import_plan.h"

#include <algorithm>
#include <map>
#include <set>

namespace Tamrivo
{

namespace
{

std::string KeyOfAllele(const std::string& name)
{
    const auto number = CellNumber(name);
    return number ? NumberCell(*number) : LookupKey(name);
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
            for (const PanelsMarker& marker : file.Markers)
                m_panelNames.try_emplace(LookupKey(marker.Marker.Panel), marker.Marker.Panel);
        }
        for (BinsFile& file : m_binsFiles)
            AddBins(file);
        if (!m_binSet.empty() && !m_isBinSetKnown)
            Complain("",
                     "There is no set of bins \"" + m_binSet + "\", but these: " + BinSetNames());
        if (m_reading.Complaints.empty())
            CheckPairs();
        if (m_reading.Complaints.empty())
        {
            for (PanelsFile& file : m_panelsFiles)
            {
                for (PanelsMarker& marker : file.Markers)
                    AddMarker(marker);
            }
            AddBinsWithoutMarker();
        }
        return std::move(m_reading);
    }

private:
    struct BinsOfPanel
    {
        std::string Name;
        std::set<std::string> BinSets;
        std::map<std::string, MarkerBins*> Markers; ///< By key.
        std::string File;
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
        const bool isWanted = m_binSet.empty() || EqualNoCase(m_binSet, Trim(file.BinSet));
        m_isBinSetKnown = m_isBinSetKnown || isWanted;
        for (MarkerBins& marker : file.Markers)
        {
            m_binsPanelNames.try_emplace(LookupKey(marker.Panel), marker.Panel);
            if (!isWanted)
                continue;
            BinsOfPanel& bins = m_bins[LookupKey(marker.Panel)];
            bins.Name = marker.Panel;
            bins.File = file.File;
            bins.BinSets.insert(file.BinSet);
            if (bins.BinSets.size() == 1 &&
                !bins.Markers.emplace(LookupKey(marker.Marker), &marker).second)
                marker.Flaws.push_back({file.File,
                                        marker.Line,
                                        {},
                                        "The marker " + marker.Marker + " has bins further up"});
        }
    }

    std::string BinSetNames() const
    {
        std::string names;
        for (const std::string& name : m_reading.BinSets)
            names += (names.empty() ? "" : ", ") + name;
        return names;
    }

    static std::string Listed(const std::map<std::string, std::string>& names)
    {
        std::string list;
        for (const auto& [key, name] : names)
            list += (list.empty() ? "" : ", ") + name;
        return list.empty() ? "none" : list;
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
        for (const auto& [key, name] : m_panelNames)
        {
            const auto bins = m_bins.find(key);
            isAny = isAny || m_binsPanelNames.contains(key);
            if (bins != m_bins.end() && bins->second.BinSets.size() > 1 && IsWanted(name))
            {
                std::string sets;
                for (const std::string& set : bins->second.BinSets)
                    sets += (sets.empty() ? "" : ", ") + set;
                Complain("", "The panel " + name + " has several sets of bins: " + sets +
                                 ". Choose one by its name (--bins NAME)");
            }
        }
        if (!isAny)
            Complain("", "The files don't belong together: the panels are " + Listed(m_panelNames) +
                             ", and the bins are of " + Listed(m_binsPanelNames));
    }

    void AddMarker(PanelsMarker& read)
    {
        PanelMarker& marker = m_reading.Markers.emplace_back(std::move(read.Marker));
        const auto bins = m_bins.find(LookupKey(marker.Panel));
        MarkerBins* found = nullptr;
        if (bins != m_bins.end())
        {
            const auto place = bins->second.Markers.find(LookupKey(marker.Marker));
            found = place == bins->second.Markers.end() ? nullptr : place->second;
        }
        if (found == nullptr)
        {
            marker.Flaws.push_back(
                {marker.File, marker.Line, {}, "The bins file has no bins of this marker"});
            return;
        }
        m_used.insert(found);
        marker.Alleles = std::move(found->Alleles);
        std::ranges::move(found->Flaws, std::back_inserter(marker.Flaws));
        RemarkOnLadder(marker, read.Ladder);
    }

    /// Whether the ladder is the alleles that aren't virtual, name by name, as a rule.
    static bool IsLadderOf(const PanelMarker& marker, const std::vector<std::string>& ladder)
    {
        auto name = ladder.begin();
        for (const AlleleFields& allele : marker.Alleles)
        {
            if (allele.AlleleInt2 == 0 && (name == ladder.end() || *name++ != allele.AlleleText1))
                return false;
        }
        return name == ladder.end();
    }

    void RemarkOnLadder(const PanelMarker& marker, const std::vector<std::string>& ladder)
    {
        if (IsLadderOf(marker, ladder))
            return;
        const std::string place = marker.File + ", line " + std::to_string(marker.Line) + ": " +
                                  marker.Marker + ", allele ";
        std::set<std::string> names;
        for (const AlleleFields& allele : marker.Alleles)
            names.insert(KeyOfAllele(allele.AlleleText1));
        std::set<std::string> ladderNames;
        for (const std::string& name : ladder)
        {
            ladderNames.insert(KeyOfAllele(name));
            if (!names.contains(KeyOfAllele(name)))
                m_reading.Remarks.push_back({RemarkKind::LadderWithoutBin, place + name});
        }
        for (const AlleleFields& allele : marker.Alleles)
        {
            if (allele.AlleleInt2 == 0 && !ladder.empty() &&
                !ladderNames.contains(KeyOfAllele(allele.AlleleText1)))
                m_reading.Remarks.push_back(
                    {RemarkKind::BinOutsideLadder, place + allele.AlleleText1});
        }
    }

    /// Bins of markers that their panel doesn't have keep nothing else out.
    void AddBinsWithoutMarker()
    {
        for (const auto& [key, bins] : m_bins)
        {
            if (!m_panelNames.contains(key))
                continue;
            for (const auto& [name, read] : bins.Markers)
            {
                if (m_used.contains(read))
                    continue;
                PanelMarker& marker = m_reading.Markers.emplace_back();
                marker.File = bins.File;
                marker.Line = read->Line;
                marker.Panel = bins.Name;
                marker.Marker = read->Marker;
                marker.Flaws.push_back({bins.File,
                                        read->Line,
                                        {},
                                        "The panels file has no marker of this name; it may have "
                                        "been cut off"});
            }
        }
    }

    std::span<PanelsFile> m_panelsFiles;
    std::span<BinsFile> m_binsFiles;
    std::string m_binSet;
    const std::vector<std::string>& m_panels;
    bool m_isBinSetKnown = false;
    std::map<std::string, std::string> m_panelNames;     ///< By key.
    std::map<std::string, std::string> m_binsPanelNames; ///< By key.
    std::map<std::string, BinsOfPanel> m_bins;           ///< By the panel's key.
    std::set<const MarkerBins*> m_used;
    PanelReading m_reading;
};

} // namespace

PanelReading JoinPanelsAndBins(std::span<PanelsFile> panelsFiles, std::span<BinsFile> binsFiles,
                               const std::string& binSet, const std::vector<std::string>& panels)
{
    return Joiner(panelsFiles, binsFiles, binSet, panels).Join();
}

} // namespace Tamrivo
