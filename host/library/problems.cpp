#include "host/checks/store_check.h"
#include "host/database/database.h"
#include "host/library/library.h"
#include "host/store/store.h"

#include <algorithm>
#include <unordered_map>

namespace Tamrivo
{

const FoldedTexts& Library::Problems()
{
    if (m_problems)
        return *m_problems;
    CheckRun run(CheckSourceOf(m_store), AllCheckRules());
    while (run.Step())
        m_store.SharedDatabase().Progress();
    TakeFindings(run.Found());
    return *m_problems;
}

void Library::TakeFindings(const std::vector<Finding>& found)
{
    std::unordered_map<std::string_view, std::vector<std::string_view>> rulesOfTag;
    for (const Finding& finding : found)
    {
        auto& rules = rulesOfTag[finding.Tag];
        if (std::ranges::find(rules, finding.Rule->Name) == rules.end())
            rules.push_back(finding.Rule->Name);
    }
    FoldedTexts problems;
    for (const LibraryLocus& locus : m_loci)
    {
        problems.AddLocus();
        if (rulesOfTag.empty())
            continue;
        const auto rules = rulesOfTag.find(locus.Tag);
        if (rules == rulesOfTag.end())
            continue;
        for (const std::string_view rule : rules->second)
            problems.AddPart(rule);
    }
    m_problems = std::move(problems);
}

} // namespace Tamrivo
