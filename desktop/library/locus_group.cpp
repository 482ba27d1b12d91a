#include "desktop/library/locus_group.h"

#include "desktop/common/text.h"
#include "host/library/search.h"

#include <QStringList>

#include <algorithm>
#include <chrono>

namespace Tamrivo
{

namespace
{

constexpr const char* withProblems = "problem:";

/// Tells of a locus whether it was changed within the last days.
auto IsRecent()
{
    return [since = std::chrono::system_clock::now() - std::chrono::days(RecentDays)](
               const LibraryLocus& locus) { return locus.Changed && *locus.Changed >= since; };
}

void AddNames(std::vector<CountedGroup>& groups, LocusGroup::Kind kind, const NameList& names)
{
    std::vector<const NameList::Entry*> ordered;
    for (const NameList::Entry& entry : names.Entries())
        ordered.push_back(&entry);
    std::ranges::sort(ordered, {}, &NameList::Entry::Key);
    for (const NameList::Entry* entry : ordered)
    {
        if (!entry->Key.empty())
            groups.push_back({{kind, ToQString(entry->Name)}, entry->Loci});
    }
}

template <class Belongs>
std::vector<std::uint32_t> Those(const Library& library, Belongs&& belongs)
{
    std::vector<std::uint32_t> positions;
    std::uint32_t position = 0;
    for (const LibraryLocus& locus : library.Loci())
    {
        if (belongs(locus))
            positions.push_back(position);
        ++position;
    }
    return positions;
}

} // namespace

std::vector<CountedGroup> GroupsOf(Library& library, const QStringList& searches)
{
    using Kind = LocusGroup::Kind;
    const auto& loci = library.Loci();
    std::vector<CountedGroup> groups = {
        {{Kind::All, {}}, loci.size()},
        {{Kind::Recent, {}}, static_cast<std::size_t>(std::ranges::count_if(loci, IsRecent()))},
        {{Kind::Problems, {}}, Search(library, withProblems).Loci.size()},
        {{Kind::Deleted, {}}, std::nullopt}};
    AddNames(groups, Kind::Panel, library.Panels());
    std::vector<std::size_t> ofDye(library.LabDyes().All().size());
    for (const LibraryLocus& locus : loci)
    {
        if (locus.DyeIndex >= 0 && locus.DyeIndex < library.LabDyes().Count())
            ++ofDye[static_cast<std::size_t>(locus.DyeIndex)];
    }
    for (std::size_t dye = 0; dye < ofDye.size(); ++dye)
        groups.push_back({{Kind::Dye, ToQString(library.LabDyes().All()[dye].Color)}, ofDye[dye]});
    AddNames(groups, Kind::Project, library.Projects());
    for (const LibraryParameter& parameter : library.Parameters())
        groups.push_back({{Kind::Parameter, ToQString(parameter.Name)}, parameter.Loci.size()});
    for (const QString& search : searches)
        groups.push_back(
            {{Kind::Search, search}, Search(library, FromQString(search)).Loci.size()});
    return groups;
}

std::vector<std::uint32_t> LociOf(Library& library, const LocusGroup& group,
                                  const std::optional<std::unordered_set<std::int32_t>>& selected)
{
    const std::string name = FromQString(group.Name);
    switch (group.What)
    {
    case LocusGroup::Kind::Recent: return Those(library, IsRecent());
    case LocusGroup::Kind::Problems: return Search(library, withProblems).Loci;
    case LocusGroup::Kind::Panel:
        return Those(library, [&](const LibraryLocus& locus) {
            return library.Panels()[locus.Panel].Name == name;
        });
    case LocusGroup::Kind::Project:
        return Those(library, [&](const LibraryLocus& locus) {
            return library.Projects()[locus.Project].Name == name;
        });
    case LocusGroup::Kind::Dye:
    {
        const auto dye = library.LabDyes().OfColor(name);
        return Those(library, [&](const LibraryLocus& locus) { return dye == locus.DyeIndex; });
    }
    case LocusGroup::Kind::Parameter:
    {
        if (selected)
            return Those(library, [&](const LibraryLocus& locus) {
                return selected->contains(locus.LocusID);
            });
        const auto found = std::ranges::find(library.Parameters(), name, &LibraryParameter::Name);
        if (found == library.Parameters().end())
            return {};
        return {found->Loci.begin(), found->Loci.end()};
    }
    default: return Those(library, [](const LibraryLocus&) { return true; });
    }
}

} // namespace Tamrivo
