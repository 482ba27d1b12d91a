#pragma once

#include "host/library/library.h"

#include <QString>

#include <optional>
#include <unordered_set>
#include <vector>

namespace Tamrivo
{

/// Some of a library's loci under one heading.
struct LocusGroup
{
    enum class Kind
    {
        All,
        Recent,   ///< Changed within the last days.
        Problems, ///< In which a check finds something.
        Deleted,  ///< No longer among the loci; they have a window of their own.
        Panel,
        Dye,
        Project,
        Parameter,
        Search, ///< What a kept search finds; the name is the search.
    };

    Kind What = Kind::All;
    QString Name; ///< Of the panel and so on; of a dye its colour.

    bool operator==(const LocusGroup&) const = default;
};

inline constexpr int RecentDays = 7;

/// A group with the number of its loci.
struct CountedGroup
{
    LocusGroup Group;
    std::optional<std::size_t> Loci; ///< None for what isn't counted.
};

/// The groups that the library has, in the order in which they are shown; those of each kind by
/// name, dyes as the lab has them.
std::vector<CountedGroup> GroupsOf(Library& library, const QStringList& searches);

/// Positions of the group's loci. Those of a search are all: it is the search that narrows them.
/// @param selected numbers of the loci that the group's parameter has at present, if it is open
std::vector<std::uint32_t> LociOf(Library& library, const LocusGroup& group,
                                  const std::optional<std::unordered_set<std::int32_t>>& selected);

} // namespace Tamrivo
