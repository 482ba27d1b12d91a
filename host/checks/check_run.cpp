#include "host/checks/check_run.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Tamrivo
{

namespace
{

constexpr std::size_t lociOfPortion = 500;

} // namespace

CheckRun::CheckRun(CheckSource source, const ChosenRules& rules)
    : m_source(std::move(source)),
      m_rules(rules),
      m_uses(m_source.Count, 0),
      m_loci(m_source.Count),
      m_foundIn(m_source.Count),
      m_portions(m_source.Count / lociOfPortion + 1)
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
    if (m_done >= m_steps.size())
        Gather(m_done - m_steps.size());
    else if (const auto [isGroup, number] = m_steps[m_done]; isGroup)
        CheckTogether(m_source.Groups[number]);
    else
        CheckOne(number);
    ++m_done;
    return m_done < Total();
}

void CheckRun::CheckOne(std::size_t number)
{
    CheckedLocus& locus = m_loci[number].emplace(m_source.Locus(number));
    if (IsWanted(number))
        CheckLocus(locus, m_rules, m_foundIn[number]);
    if (m_uses[number] == 0)
        m_loci[number].reset();
}

void CheckRun::CheckTogether(const CheckSource::Group& group)
{
    LociTogether together{group.Name, {}, group.MissingTagIDs};
    std::unordered_map<std::string_view, std::size_t> places;
    for (const std::size_t locus : group.Loci)
    {
        together.Loci.push_back(&*m_loci[locus]);
        places.emplace(m_loci[locus]->Tag, locus);
    }
    std::vector<Finding> found;
    CheckGroup(together, m_rules, found);
    for (Finding& finding : found)
    {
        const auto place = places.find(finding.Tag);
        auto& where = place == places.end() ? m_foundElsewhere : m_foundIn[place->second];
        where.push_back(std::move(finding));
    }
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

void CheckRun::Gather(std::size_t portion)
{
    if (portion == 0)
    {
        std::size_t count = m_foundElsewhere.size();
        for (const auto& found : m_foundIn)
            count += found.size();
        m_found.reserve(count);
    }
    const std::size_t begin = portion * lociOfPortion;
    const std::size_t end = std::min(m_source.Count, begin + lociOfPortion);
    for (std::size_t locus = begin; locus < end; ++locus)
    {
        if (IsWanted(locus))
            Gather(m_foundIn[locus]);
    }
    if (portion + 1 == m_portions)
        Gather(m_foundElsewhere);
}

void CheckRun::Gather(std::vector<Finding>& found)
{
    std::ranges::stable_sort(found, {}, &Finding::Rule);
    // Two loci of one panel that an analysis parameter uses as well are looked at twice.
    const auto end = std::unique(found.begin(), found.end());
    std::move(found.begin(), end, std::back_inserter(m_found));
    found = std::vector<Finding>(); // Gives the memory back.
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
