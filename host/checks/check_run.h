#pragma once

#include "host/checks/check_rules.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// What a check looks at.
struct CheckSource
{
    struct Group
    {
        std::string Name;
        std::vector<std::size_t> Loci; ///< Numbers of the loci, from 0.
        std::vector<std::int32_t> MissingTagIDs;
    };

    std::size_t Count = 0; ///< Of the loci.
    /// The locus with a number; asked for once. May raise failures of the store.
    std::function<CheckedLocus(std::size_t)> Locus;
    std::vector<Group> Groups;
    /// Whether findings about a locus are wanted, or it is only looked at beside others. Empty: all
    /// are wanted.
    std::vector<bool> IsWanted;
};

/// A check that is made in steps, so that others can have their turn in between. A locus is kept
/// for as long as a group that it belongs to is still to be checked.
class CheckRun
{
public:
    CheckRun(CheckSource source, const ChosenRules& rules);
    CheckRun(const CheckRun&) = delete;
    CheckRun& operator=(const CheckRun&) = delete;

    /// Checks one more locus or group, or, behind the last of them, gathers what was found in some
    /// of the loci. False: all is done. Raises what reading the locus raises.
    bool Step();
    /// Steps that have been made, and how many there are.
    std::size_t Done() const { return m_done; }
    std::size_t Total() const { return m_steps.size() + m_portions; }

    /// By locus in the source's order, and by rule; what no locus has comes last. Complete once the
    /// last step is made.
    const std::vector<Finding>& Found() const { return m_found; }
    /// The same, for who needs the run no longer.
    std::vector<Finding> TakeFound() { return std::move(m_found); }

private:
    struct NextStep
    {
        bool IsGroup;
        std::size_t Number;
    };

    void Plan();
    void CheckOne(std::size_t number);
    void CheckTogether(const CheckSource::Group& group);
    bool IsWanted(std::size_t locus) const;
    void Gather(std::size_t portion);
    void Gather(std::vector<Finding>& found);

    CheckSource m_source;
    ChosenRules m_rules;
    std::vector<NextStep> m_steps;
    std::vector<std::size_t> m_uses; ///< Of each locus: groups that are still to be checked.
    std::vector<std::optional<CheckedLocus>> m_loci;
    std::vector<std::vector<Finding>> m_foundIn; ///< Of each locus.
    std::vector<Finding> m_foundElsewhere;       ///< What no locus has.
    std::size_t m_portions;                      ///< Of loci, when the findings are gathered.
    std::size_t m_done = 0;
    std::vector<Finding> m_found;
};

/// Errors among the findings.
std::size_t CountOfErrors(const std::vector<Finding>& found);

/// "2 errors and 1 warning", "no errors".
std::string CountOfFindings(const std::vector<Finding>& found);

} // namespace Tamrivo
