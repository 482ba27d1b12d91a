#include "host/checks/store_check.h"

#include "core/text.h"
#include "host/loci/dyes.h"
#include "host/loci/keys.h"
#include "host/store/bulk_alleles.h"
#include "host/store/locus_table.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"
#include "host/store/tag_order.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Tamrivo
{

namespace
{

using Loci = std::vector<std::shared_ptr<StoredLocus>>;

[[noreturn]] void RaiseNotFound(const std::string& what)
{
    throw Failure(StoreError::NotFound, "Check", what);
}

} // namespace

class CheckReading::Builder
{
public:
    Builder(Store& store, CheckScope scope)
        : m_store(store), m_scope(std::move(scope)), m_parameters(store), m_dyes(store.Dyes())
    {}

    bool Step()
    {
        if (!m_isRead)
            ReadLoci();
        else if (m_placed < m_loci.size())
            PlaceLoci();
        else if (m_ofParameters.size() < m_names.size())
            m_ofParameters.push_back(GroupOf(m_names[m_ofParameters.size()]));
        else
            return false;
        return true;
    }

    CheckSource Source()
    {
        if (m_scope.Parameter)
            return SourceOf(std::move(m_ofParameters));
        if (m_scope.Panel)
            return SourceOf({PanelNamed(*m_scope.Panel)});
        std::vector<CheckSource::Group> groups;
        for (auto& [key, group] : m_panels)
            groups.push_back(std::move(group));
        std::ranges::move(m_ofParameters, std::back_inserter(groups));
        if (!m_scope.Tags.empty())
            return SourceOfTags(m_scope.Tags, std::move(groups));
        CheckSource source = SourceOfLoci(std::move(m_loci));
        source.Groups = std::move(groups);
        return source;
    }

private:
    void ReadLoci()
    {
        const std::int32_t last = m_loci.empty() ? 0 : m_loci.back()->LocusID();
        auto some = m_store.CurrentLociAfter(last, LociAtOnce);
        m_isRead = some.size() < LociAtOnce;
        std::ranges::move(some, std::back_inserter(m_loci));
        if (!m_isRead)
            return;
        SortByTag(m_loci);
        if (m_scope.Parameter)
            m_names = {*m_scope.Parameter};
        else if (!m_scope.Panel)
            m_names = m_parameters.Names();
    }

    void PlaceLoci()
    {
        const std::size_t end = std::min(m_loci.size(), m_placed + LociAtOnce);
        for (; m_placed < end; ++m_placed)
        {
            const StoredLocus& locus = *m_loci[m_placed];
            m_placeOfID.emplace(locus.LocusTagID(), m_placed);
            const std::string panel = Trim(locus.PrimerSet);
            if (panel.empty())
                continue;
            auto& group = m_panels[FoldCase(panel)];
            group.Name = "panel " + panel;
            group.Loci.push_back(m_placed);
        }
    }

    /// Whether the store has a locus with the number, current or not.
    bool IsStored(std::int32_t tagID)
    {
        if (!m_storedIDs)
            m_storedIDs = ReadTagIDs(m_store.SharedDatabase());
        return m_storedIDs->contains(tagID);
    }

    CheckSource::Group GroupOf(const std::string& parameterName)
    {
        const auto parameter = m_parameters.Open(parameterName);
        CheckSource::Group group{"analysis parameter " + parameter->Name(), {}, {}};
        if (const auto& tagList = parameter->FragAnalysisParam().TagList)
        {
            for (const auto& entry : tagList->Entries())
            {
                const std::int32_t tagID = entry->TagID(0);
                const auto place = m_placeOfID.find(tagID);
                if (place != m_placeOfID.end())
                    group.Loci.push_back(place->second);
                else if (!IsStored(tagID))
                    group.MissingTagIDs.push_back(tagID);
            }
        }
        return group;
    }

    const CheckSource::Group& PanelNamed(const std::string& name) const
    {
        const auto panel = m_panels.find(FoldCase(Trim(name)));
        if (panel == m_panels.end())
            RaiseNotFound("No current locus is of the panel \"" + name +
                          "\"; list shows the loci, show their primer sets");
        return panel->second;
    }

    CheckSource SourceOfLoci(Loci loci) const
    {
        CheckSource source;
        source.Count = loci.size();
        source.Locus = [loci = std::move(loci), dyes = m_dyes](std::size_t at) mutable {
            // As many as take a few milliseconds.
            constexpr std::size_t portion = 100;
            const std::size_t begin = at - at % portion;
            if (!loci[at]->LoadedAlleles())
                LoadAlleles(LociWithoutAlleles(
                    std::span(std::as_const(loci))
                        .subspan(begin, std::min(portion, loci.size() - begin))));
            CheckedLocus checked = CheckedLocusOf(*loci[at], dyes);
            checked.Owner = std::move(loci[at]);
            return checked;
        };
        return source;
    }

    /// The loci of the groups alone, which get new numbers.
    CheckSource SourceOf(std::vector<CheckSource::Group> groups,
                         std::vector<std::size_t> alone = {})
    {
        std::vector<std::size_t> places = std::move(alone);
        for (const auto& group : groups)
            places.insert(places.end(), group.Loci.begin(), group.Loci.end());
        std::ranges::sort(places);
        places.erase(std::unique(places.begin(), places.end()), places.end());

        Loci loci;
        for (const std::size_t place : places)
            loci.push_back(m_loci[place]);
        for (auto& group : groups)
        {
            for (std::size_t& place : group.Loci)
                place = static_cast<std::size_t>(std::ranges::lower_bound(places, place) -
                                                 places.begin());
        }
        CheckSource source = SourceOfLoci(std::move(loci));
        source.Groups = std::move(groups);
        m_places = std::move(places);
        return source;
    }

    CheckSource SourceOfTags(const std::vector<std::string>& tags,
                             std::vector<CheckSource::Group> groups)
    {
        std::unordered_set<std::size_t> wanted;
        for (const std::string& tag : tags)
        {
            const std::string key = LookupKey(tag);
            const auto place = std::ranges::lower_bound(
                m_loci, key, {},
                [](const auto& locus) -> const std::string& { return locus->TagKey(); });
            if (place == m_loci.end() || (*place)->TagKey() != key)
                RaiseNotFound("There is no current locus \"" + tag + "\" in the store");
            wanted.insert(static_cast<std::size_t>(place - m_loci.begin()));
        }
        const auto isWanted = [&wanted](std::size_t place) { return wanted.contains(place); };
        std::erase_if(groups, [&isWanted](const CheckSource::Group& group) {
            return std::ranges::none_of(group.Loci, isWanted);
        });
        for (auto& group : groups)
            group.MissingTagIDs.clear();
        CheckSource source = SourceOf(std::move(groups), {wanted.begin(), wanted.end()});
        for (const std::size_t place : m_places)
            source.IsWanted.push_back(isWanted(place));
        return source;
    }

    Store& m_store;
    CheckScope m_scope;
    ParameterStore m_parameters;
    Dyes m_dyes;
    Loci m_loci; ///< By number, then by tag.
    bool m_isRead = false;
    std::size_t m_placed = 0;         ///< Of the loci.
    std::vector<std::string> m_names; ///< Of the parameters that are looked at.
    std::vector<CheckSource::Group> m_ofParameters;
    std::optional<std::unordered_set<std::int32_t>> m_storedIDs;
    std::unordered_map<std::int32_t, std::size_t> m_placeOfID;
    std::map<std::string, CheckSource::Group> m_panels;
    std::vector<std::size_t> m_places; ///< Of the loci of the last `SourceOf`.
};

CheckReading::CheckReading(Store& store, CheckScope scope)
    : m_builder(std::make_unique<Builder>(store, std::move(scope)))
{}

CheckReading::~CheckReading() = default;

bool CheckReading::Step()
{
    return m_builder->Step();
}

CheckSource CheckReading::Source()
{
    return m_builder->Source();
}

CheckSource CheckSourceOf(Store& store, const CheckScope& scope)
{
    CheckReading reading(store, scope);
    while (reading.Step())
    {}
    return reading.Source();
}

CheckedLocus CheckedLocusOf(Locus& locus, const Dyes& dyes)
{
    std::vector<const AlleleFields*> alleles;
    for (const auto& member : locus.Alleles().Members())
        alleles.push_back(As<Allele>(member).get());
    CheckedLocus checked(locus.LocusTag(), locus, std::move(alleles));
    checked.Dye = dyes.TitleOf(locus.DyeIndex);
    checked.HasKnownDye = locus.DyeIndex >= 0 && locus.DyeIndex < dyes.Count();
    return checked;
}

} // namespace Tamrivo
