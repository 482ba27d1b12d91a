#include "host/checks/check_rules.h"

#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

const CheckRule* FindCheckRule(std::string_view name)
{
    const auto* const found = std::ranges::find_if(
        CheckRules, [name](const CheckRule& rule) { return EqualNoCase(rule.Name, name); });
    return found == std::end(CheckRules) ? nullptr : found;
}

void CheckLocus(const CheckedLocus& locus, const ChosenRules& rules, std::vector<Finding>& found)
{
    for (std::size_t at = 0; at < CheckRuleCount; ++at)
    {
        Findings findings(CheckRules[at], found);
        if (rules[at] && CheckRules[at].OfLocus != nullptr)
            CheckRules[at].OfLocus(locus, findings);
    }
}

void CheckGroup(const LociTogether& group, const ChosenRules& rules, std::vector<Finding>& found)
{
    for (std::size_t at = 0; at < CheckRuleCount; ++at)
    {
        Findings findings(CheckRules[at], found);
        if (rules[at] && CheckRules[at].OfGroup != nullptr)
            CheckRules[at].OfGroup(group, findings);
    }
}

} // namespace Tamrivo
