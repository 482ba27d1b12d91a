#include "host/checks/check_run.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace Tamrivo
{

CheckRun::CheckRun(CheckSource source, const ChosenRules& rules)
    : m_source(std::move(source)), m_rules(rules)
{}

bool CheckRun::Step()
{
    if (m_done == Total())
        return false;
    if (m_done < m_source.Count)
        CheckNextLocus();
    else
        CheckNextGroup(m_source.Groups[m_done - m_source.Count]);
    ++m_done;
    if (m_done == Total())
        Finish();
    return m_done < Total();
}

void CheckRun::CheckNextLocus()
{
    m_loci.push_back(m_source.Locus(m_done));
    if (IsWanted(m_done))
        CheckLocus(m_loci.back(), m_rules, m_found);
}

void CheckRun::CheckNextGroup(const CheckSource::Group& group)
{
    LocusGroup together{group.Name, {}, group.MissingTagIDs};
    for (const std::size_t locus : group.Loci)
        together.Loci.push_back(&m_loci[locus]);
    CheckGroup(together, m_rules, m_found);
}

bool CheckRun::IsWanted(std::size_t locus) const
{
    return m_source.IsWanted.empty() || m_source.IsWanted[locus];
}

void CheckRun::Finish()
{
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t at = 0; at < m_loci.size(); ++at)
        places.emplace(m_loci[at].Tag, at);
    const auto placeOf = [&](const Finding& finding) {
        const auto place = places.find(finding.Tag);
        return place == places.end() ? m_loci.size() : place->second;
    };
    std::erase_if(m_found, [&](const Finding& finding) {
        const std::size_t place = placeOf(finding);
        return place < m_loci.size() && !IsWanted(place);
    });
    std::ranges::stable_sort(m_found, {}, [&](const Finding& finding) {
        return std::pair(placeOf(finding), finding.Rule);
    });
    // Two loci of one panel that an analysis parameter uses as well are looked at twice.
    m_found.erase(std::unique(m_found.begin(), m_found.end()), m_found.end());
}

std::size_t CountOfErrors(const std::vector<Finding>& found)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        found, [](const Finding& finding) { return finding.Rule->Weight == Severity::Error; }));
}

std::string CountOfFindings(const std::vector<Finding>& found)
{
    const auto counted = [](std::size_t count, const char* what) {
        return (count == 0 ? "no" : std::to_string(count)) + " " + what + (count == 1 ? "" : "s");
    };
    const std::size_t errors = CountOfErrors(found);
    return counted(errors, "error") + " and " + counted(found.size() - errors, "warning");
}

} // namespace Tamrivo
