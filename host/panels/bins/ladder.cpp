#include "host/panels/bins/ladder.h"

#include "host/loci/keys.h"
#include "host/panels/bins/bins_lines.h"
#include "host/panels/cells.h"

#include <set>

namespace Tamrivo
{

namespace
{

std::string KeyOfAllele(std::string_view name)
{
    const auto number = CellNumber(name);
    return number ? NumberCell(*number) : LookupKey(name);
}

/// Whether the ladder is the alleles that aren't virtual, name by name, as a rule.
bool IsLadderOf(const PanelMarker& marker, std::string_view ladder)
{
    for (const PanelAllele& allele : marker.Alleles)
    {
        if (!allele.IsVirtual && TakeName(ladder) != allele.Name)
            return false;
    }
    return TakeName(ladder).empty();
}

} // namespace

void RemarkOnLadder(const PanelMarker& marker, std::string_view ladder,
                    std::vector<PanelRemark>& remarks)
{
    if (IsLadderOf(marker, ladder))
        return;
    const std::string place =
        marker.File + ", line " + std::to_string(marker.Line) + ": " + marker.Marker + ", allele ";
    std::set<std::string> names;
    for (const PanelAllele& allele : marker.Alleles)
        names.insert(KeyOfAllele(allele.Name));
    std::set<std::string> ladderNames;
    for (std::string_view name = TakeName(ladder); !name.empty(); name = TakeName(ladder))
    {
        const auto [key, isNew] = ladderNames.insert(KeyOfAllele(name));
        if (!names.contains(*key))
            remarks.push_back({RemarkKind::LadderWithoutBin, place + std::string(name)});
    }
    for (const PanelAllele& allele : marker.Alleles)
    {
        if (!allele.IsVirtual && !ladderNames.empty() &&
            !ladderNames.contains(KeyOfAllele(allele.Name)))
            remarks.push_back({RemarkKind::BinOutsideLadder, place + allele.Name});
    }
}

} // namespace Tamrivo
