#include "host/library/changes.h"

#include "core/text.h"
#include "host/loci/locus_tag.h"
#include "host/store/store.h"

namespace Tamrivo
{

namespace
{

std::shared_ptr<Locus> Required(Store& store, const std::string& tag)
{
    if (auto locus = store.FindLocus(tag))
        return locus;
    throw Failure(StoreError::NotFound, "Store", "There is no locus \"" + tag + "\" in the store");
}

void SaveUnder(Store& store, Locus& locus, const std::string& tag)
{
    RequireLocusTag(tag);
    locus.SetLocusTag(tag);
    store.Manager().Save(locus, true);
}

template <class Change>
void ChangeEach(Store& store, std::span<const std::string> tags, Change&& change)
{
    auto transaction = store.Begin();
    for (const std::string& tag : tags)
    {
        const auto locus = Required(store, tag);
        change(*locus);
        store.Manager().Save(*locus, true);
    }
    transaction.Commit();
}

} // namespace

void RenameLocus(Store& store, const std::string& tag, const std::string& newTag)
{
    SaveUnder(store, *Required(store, tag), newTag);
}

void DuplicateLocus(Store& store, const std::string& tag, const std::string& newTag)
{
    SaveUnder(store, *Required(store, tag)->Clone(), newTag);
}

std::string TagForCopy(Store& store, const std::string& tag)
{
    const std::string copy = TrimRight(tag) + " copy";
    std::string free = copy;
    for (int number = 2; store.FindLocus(free); ++number)
        free = copy + " " + std::to_string(number);
    return free;
}

void SetDye(Store& store, std::span<const std::string> tags, std::int32_t dyeIndex)
{
    ChangeEach(store, tags, [&](Locus& locus) { locus.DyeIndex = dyeIndex; });
}

void SetProject(Store& store, std::span<const std::string> tags, const std::string& project)
{
    auto transaction = store.Begin();
    const auto stored = store.ProjectNamed(project);
    ChangeEach(store, tags, [&](Locus& locus) {
        locus.ProjectID = stored->ProjectID();
        locus.ProjectName = stored->Name();
    });
    transaction.Commit();
}

void DeleteLoci(Store& store, std::span<const std::string> tags)
{
    auto transaction = store.Begin();
    for (const std::string& tag : tags)
        store.DeleteLocus(tag);
    transaction.Commit();
}

} // namespace Tamrivo
