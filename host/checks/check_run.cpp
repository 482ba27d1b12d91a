#include "host/checks/check_run.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Tamrivo
{

CheckRun::CheckRun(CheckSource source, const ChosenRules& rules)
    : m_source(std::move(source)),
      m_rules(rules),
      m_uses(m_source.Count, 0),
      m_loci(m_source.Count),
      m_tags(m_source.Count)
{
    Plan();
}

/// Each group after those of its loci that no group had before; what is in none comes last.
void CheckRun::Plan()
{
    for (std::size_t number = 0; number < m_source.Groups.size(); ++number)
    {
        for (const std::size_t locus : m_source.Groups[number].Loci)
        {
            if (m_uses[locus]++ == 0)
                m_steps.push_back({false, locus});
        }
        m_steps.push_back({true, number});
    }
    for (std::size_t locus = 0; locus < m_source.Count; ++locus)
    {
        if (m_uses[locus] == 0)
            m_steps.push_back({false, locus});
    }
}

bool CheckRun::Step()
{
    if (m_done == Total())
        return false;
    const auto [isGroup, number] = m_steps[m_done];
    if (isGroup)
        CheckTogether(m_source.Groups[number]);
    else
        CheckOne(number);
    ++m_done;
    if (m_done == Total())
        Finish();
    return m_done < Total();
}

void CheckRun::CheckOne(std::size_t number)
{
    CheckedLocus& locus = m_loci[number].emplace(m_source.Locus(number));
    m_tags[number] = locus.Tag;
    if (IsWanted(number))
        CheckLocus(locus, m_rules, m_found);
    if (m_uses[number] == 0)
        m_loci[number].reset();
}

void CheckRun::CheckTogether(const CheckSource::Group& group)
{
    LociTogether together{group.Name, {}, group.MissingTagIDs};
    for (const std::size_t locus : group.Loci)
        together.Loci.push_back(&*m_loci[locus]);
    CheckGroup(together, m_rules, m_found);
    for (const std::size_t locus : group.Loci)
    {
        if (--m_uses[locus] == 0)
            m_loci[locus].reset();
    }
}

bool CheckRun::IsWanted(std::size_t locus) const
{
    return m_source.IsWanted.empty() || m_source.IsWanted[locus];
}

void CheckRun::Finish()
{
    std::unordered_map<std::string_view, std::size_t> places;
    for (std::size_t at = 0; at < m_tags.size(); ++at)
        places.emplace(m_tags[at], at);
    std::vector<std::pair<std::size_t, Finding>> placed;
    for (Finding& finding : m_found)
    {
        const auto found = places.find(finding.Tag);
        const std::size_t place = found == places.end() ? m_tags.size() : found->second;
        if (place == m_tags.size() || IsWanted(place))
            placed.emplace_back(place, std::move(finding));
    }
    std::ranges::stable_sort(placed, {}, [](const auto& finding) {
        return std::pair(finding.first, finding.second.Rule);
    });
    // Two loci of one panel that an analysis parameter uses as well are looked at twice.
    placed.erase(std::unique(placed.begin(), placed.end()), placed.end());
    m_found.clear();
    for (auto& [place, finding] : placed)
        m_found.push_back(std::move(finding));
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
