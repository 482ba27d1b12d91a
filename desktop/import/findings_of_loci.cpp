#include "desktop/import/findings_of_loci.h"

#include <QStringList>

#include <algorithm>

namespace Tamrivo
{

void FindingCounts::Add(std::span<const Finding> found)
{
    const auto errors = static_cast<std::size_t>(std::ranges::count_if(
        found, [](const Finding& finding) { return finding.Rule->Weight == Severity::Error; }));
    Errors += errors;
    Warnings += found.size() - errors;
}

QString FindingCounts::Text() const
{
    QStringList parts;
    for (const auto& [count, what] : {std::pair(Errors, "error"), std::pair(Warnings, "warning")})
    {
        if (count > 0)
            parts.append(QString("%L1 %2%3").arg(count).arg(what, count == 1 ? "" : "s"));
    }
    return parts.join(", ");
}

FindingsOfLoci::FindingsOfLoci(std::vector<Finding> found) : m_found(std::move(found))
{
    for (std::size_t at = 0; at < m_found.size(); ++at)
    {
        auto& [begin, end] = m_rangeOfTag.try_emplace(m_found[at].Tag, at, at).first->second;
        end = at + 1;
    }
}

std::span<const Finding> FindingsOfLoci::Of(const std::string& tag) const
{
    const auto range = m_rangeOfTag.find(tag);
    if (range == m_rangeOfTag.end())
        return {};
    const auto [begin, end] = range->second;
    return std::span(m_found).subspan(begin, end - begin);
}

} // namespace Tamrivo
