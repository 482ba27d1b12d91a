#include "host/panels/export_scope.h"

#include "core/text.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <unordered_map>

namespace Tamrivo
{

namespace
{

using StoredLoci = std::vector<std::shared_ptr<BusinessObject>>;

[[noreturn]] void RefuseScope(const std::string& why)
{
    throw Failure(StoreError::NotFound, "Export", "Nothing was exported: " + why);
}

StoredLoci LociOfTags(Store& store, const std::vector<std::string>& tags)
{
    StoredLoci loci;
    for (const std::string& tag : tags)
    {
        loci.push_back(store.FindLocus(tag));
        if (!loci.back())
            RefuseScope("there is no locus with the tag \"" + tag + "\"");
    }
    return loci;
}

StoredLoci LociOfParameter(Store& store, const StoredLoci& current, const std::string& name)
{
    ParameterStore parameters(store);
    const auto parameter = parameters.Open(name);
    StoredLoci loci;
    if (parameter->FragAnalysisParam().LocusTagListCount() == 0)
        return loci;
    std::unordered_map<std::int32_t, std::size_t> places;
    for (std::size_t at = 0; at < current.size(); ++at)
        places.emplace(As<Locus>(current[at])->LocusTagID(), at);
    for (const auto& entry : parameter->FragAnalysisParam().LocusTagList(0).Entries())
    {
        if (const auto place = places.find(entry->TagID(0)); place != places.end())
            loci.push_back(current[place->second]);
    }
    return loci;
}

} // namespace

StoredLoci LociInScope(Store& store, const ExportScope& scope)
{
    if (!scope.Tags.empty())
        return LociOfTags(store, scope.Tags);
    const auto list = CurrentLoci(store.Manager(), "");
    StoredLoci loci(list->Members().begin(), list->Members().end());
    if (!scope.Parameter.empty())
        return LociOfParameter(store, loci, scope.Parameter);
    if (scope.Panel.empty())
        return loci;
    std::erase_if(loci, [&scope](const auto& locus) {
        return !EqualNoCase(Trim(As<Locus>(locus)->PrimerSet), Trim(scope.Panel));
    });
    if (loci.empty())
        RefuseScope("the store has no loci of a panel (primer set) \"" + scope.Panel + "\"");
    return loci;
}

} // namespace Tamrivo
