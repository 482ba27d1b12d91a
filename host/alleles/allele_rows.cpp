#include "host/alleles/allele_rows.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <unordered_set>

namespace Tamrivo
{

namespace
{

std::unordered_set<const BusinessObject*> SetOf(const AlleleRows& rows)
{
    std::unordered_set<const BusinessObject*> set;
    for (const auto& row : rows)
        set.insert(row.get());
    return set;
}

} // namespace

void SortBySize(AlleleRows& rows)
{
    std::ranges::stable_sort(
        rows, [](double left, double right) { return std::is_lt(std::weak_order(left, right)); },
        [](const std::shared_ptr<Allele>& allele) { return allele->AlleleReal1; });
}

AlleleRows RowsOf(Locus& locus)
{
    AlleleRows rows;
    for (const auto& member : locus.Alleles().Members())
        rows.push_back(As<Allele>(member));
    SortBySize(rows);
    return rows;
}

void Rebuild(ObjectList& list, const AlleleRows& rows)
{
    while (list.Count() > 0)
        list.Remove(list.Count());
    for (const auto& row : rows)
        list.Add(row);
}

AlleleRows Without(const AlleleRows& rows, const AlleleRows& others)
{
    AlleleRows rest;
    std::ranges::remove_copy_if(rows, std::back_inserter(rest),
                                [others = SetOf(others)](const std::shared_ptr<Allele>& row) {
                                    return others.contains(row.get());
                                });
    return rest;
}

} // namespace Tamrivo
