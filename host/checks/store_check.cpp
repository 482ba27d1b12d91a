#include "host/checks/store_check.h"

#include "core/text.h"
#include "host/loci/dyes.h"
#include "host/loci/keys.h"
#include "host/store/bulk_alleles.h"
#include "host/store/locus_table.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <algorithm>
#include <map>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Tamrivo
{

namespace
{

using Loci = std::vector<std::shared_ptr<Locus>>;

[[noreturn]] void RaiseNotFound(const std::string& what)
{
    throw Failure(StoreError::NotFound, "Check", what);
}

class SourceBuilder
{
public:
    explicit SourceBuilder(Store& store)
        : m_store(store),
          m_parameters(store),
          m_storedIDs(ReadTagIDs(store.SharedDatabase())),
          m_dyes(store.Dyes())
    {
        const auto current = CurrentLoci(store.Manager(), "Name");
        for (const auto& member : current->Members())
        {
            auto locus = As<Locus>(member);
            m_placeOfID.emplace(locus->LocusTagID(), m_loci.size());
            m_placeOfTag.emplace(LookupKey(locus->LocusTag()), m_loci.size());
            const std::string panel = Trim(locus->PrimerSet);
            if (!panel.empty())
            {
                auto& group = m_panels[FoldCase(panel)];
                group.Name = "panel " + panel;
                group.Loci.push_back(m_loci.size());
            }
            m_loci.push_back(std::move(locus));
        }
    }

    CheckSource Build(const CheckScope& scope)
    {
        if (scope.Parameter)
            return SourceOf({GroupOf(*scope.Parameter)});
        if (scope.Panel)
            return SourceOf({PanelNamed(*scope.Panel)});
        std::vector<CheckSource::Group> groups = AllGroups();
        if (!scope.Tags.empty())
            return SourceOfTags(scope.Tags, std::move(groups));
        CheckSource source = SourceOfLoci(m_loci);
        source.Groups = std::move(groups);
        return source;
    }

private:
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
                else if (!m_storedIDs.contains(tagID))
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

    std::vector<CheckSource::Group> AllGroups()
    {
        std::vector<CheckSource::Group> groups;
        for (const auto& [key, group] : m_panels)
            groups.push_back(group);
        for (const std::string& name : m_parameters.Names())
            groups.push_back(GroupOf(name));
        return groups;
    }

    CheckSource SourceOfLoci(Loci loci) const
    {
        CheckSource source;
        source.Count = loci.size();
        source.Locus = [loci = std::move(loci), dyes = m_dyes](std::size_t at) mutable {
            const std::size_t begin = at - at % LociAtOnce;
            const auto* locus = dynamic_cast<const StoredLocus*>(loci[at].get());
            if (locus && !locus->LoadedAlleles())
                LoadAlleles(LociWithoutAlleles(
                    std::span(std::as_const(loci))
                        .subspan(begin, std::min(LociAtOnce, loci.size() - begin))));
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
            const auto place = m_placeOfTag.find(LookupKey(tag));
            if (place == m_placeOfTag.end())
                RaiseNotFound("There is no current locus \"" + tag + "\" in the store");
            wanted.insert(place->second);
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
    ParameterStore m_parameters;
    std::unordered_set<std::int32_t> m_storedIDs;
    Dyes m_dyes;
    Loci m_loci;
    std::unordered_map<std::int32_t, std::size_t> m_placeOfID;
    std::unordered_map<std::string, std::size_t> m_placeOfTag;
    std::map<std::string, CheckSource::Group> m_panels;
    std::vector<std::size_t> m_places; ///< Of the loci of the last `SourceOf`.
};

} // namespace

CheckSource CheckSourceOf(Store& store, const CheckScope& scope)
{
    return SourceBuilder(store).Build(scope);
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
