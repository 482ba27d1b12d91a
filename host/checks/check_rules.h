#pragma once

#include "host/checks/checked_locus.h"

#include <bitset>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

class Findings;

enum class Severity
{
    Error,   ///< A mistake, or alleles that an analysis couldn't tell apart.
    Warning, ///< Worth a look.
};

/// What can be wrong with definitions. A rule looks at a locus alone, at loci that are analysed
/// together, or at both.
struct CheckRule
{
    std::string_view Name;
    Severity Weight;
    std::string_view Meaning; ///< A line for people: what the rule finds.
    void (*OfLocus)(const CheckedLocus&, Findings&);
    void (*OfGroup)(const LociTogether&, Findings&);
};

/// Something that a rule has found.
struct Finding
{
    const CheckRule* Rule = nullptr; ///< A row of `CheckRules`.
    std::string Tag;                 ///< Empty: of no stored locus.
    std::string Allele;              ///< Name; empty: the finding is about no single allele.
    std::string Field;               ///< Of the locus; empty: the locus as a whole.
    std::string Message;             ///< One sentence: what is wrong and what would be expected.

    bool operator==(const Finding&) const = default;
};

/// Takes what a rule finds.
class Findings
{
public:
    Findings(const CheckRule& rule, std::vector<Finding>& found) : m_rule(rule), m_found(found) {}

    void OfLocus(const CheckedLocus& locus, std::string message)
    {
        m_found.push_back({&m_rule, locus.Tag, {}, {}, std::move(message)});
    }
    void OfAllele(const CheckedLocus& locus, const AlleleFields& allele, std::string message)
    {
        m_found.push_back({&m_rule, locus.Tag, allele.AlleleText1, {}, std::move(message)});
    }
    void OfField(const CheckedLocus& locus, std::string_view field, std::string message)
    {
        m_found.push_back({&m_rule, locus.Tag, {}, std::string(field), std::move(message)});
    }
    void OfNoLocus(std::string message)
    {
        m_found.push_back({&m_rule, {}, {}, {}, std::move(message)});
    }

private:
    const CheckRule& m_rule;
    std::vector<Finding>& m_found;
};

// bin_rules.cpp: bins, of a locus and between loci.
void CheckBinOverlap(const CheckedLocus& locus, Findings& findings);
void CheckBinOverlapOfLoci(const LociTogether& group, Findings& findings);
void CheckOutsideBin(const CheckedLocus& locus, Findings& findings);
void CheckSameBin(const CheckedLocus& locus, Findings& findings);
void CheckOddBin(const CheckedLocus& locus, Findings& findings);
void CheckNoWidth(const CheckedLocus& locus, Findings& findings);
void CheckBinsTouch(const CheckedLocus& locus, Findings& findings);

// name_rules.cpp: alleles by name and size.
void CheckOrder(const CheckedLocus& locus, Findings& findings);
void CheckSameName(const CheckedLocus& locus, Findings& findings);
void CheckSizeName(const CheckedLocus& locus, Findings& findings);
void CheckLadderGap(const CheckedLocus& locus, Findings& findings);
void CheckConvention(const CheckedLocus& locus, Findings& findings);

// field_rules.cpp: fields of a locus.
void CheckRepeatLength(const CheckedLocus& locus, Findings& findings);
void CheckLetters(const CheckedLocus& locus, Findings& findings);
void CheckUnknownDye(const CheckedLocus& locus, Findings& findings);

// range_rules.cpp: ranges, what lies outside of them and how they overlap.
void CheckRangeOverlap(const LociTogether& group, Findings& findings);
void CheckOutsideRange(const CheckedLocus& locus, Findings& findings);
void CheckStutterRange(const CheckedLocus& locus, Findings& findings);

// group_rules.cpp: loci that are analysed together.
void CheckMissingLocus(const LociTogether& group, Findings& findings);
void CheckSamePrimers(const LociTogether& group, Findings& findings);

/// The rules, errors first. Their order is that of a locus's findings.
inline constexpr CheckRule CheckRules[] = {
    {"bin-overlap", Severity::Error,
     "bins overlap, within a locus or between loci of one dye that are analysed together",
     CheckBinOverlap, CheckBinOverlapOfLoci},
    {"outside-bin", Severity::Error, "an allele's size lies outside its bin", CheckOutsideBin,
     nullptr},
    {"order", Severity::Error, "the order of alleles by size and by name disagree", CheckOrder,
     nullptr},
    {"same-name", Severity::Error, "two alleles of a locus have one name", CheckSameName, nullptr},
    {"same-bin", Severity::Error, "two alleles of a locus have one bin", CheckSameBin, nullptr},
    {"size-name", Severity::Error, "a size doesn't fit the repeats that the name tells",
     CheckSizeName, nullptr},
    {"repeat-length", Severity::Error, "the repeat sequence is longer or shorter than the unit",
     CheckRepeatLength, nullptr},
    {"letters", Severity::Error, "a sequence has letters that are no IUPAC nucleotides",
     CheckLetters, nullptr},
    {"unknown-dye", Severity::Error, "the dye is none of the store's", CheckUnknownDye, nullptr},
    {"missing-locus", Severity::Error, "an analysis parameter names a locus that is gone", nullptr,
     CheckMissingLocus},
    {"range-overlap", Severity::Warning,
     "ranges of one dye overlap by more than 1 nt, or an allele lies in another locus's range",
     nullptr, CheckRangeOverlap},
    {"outside-range", Severity::Warning, "an allele lies outside the range of its locus",
     CheckOutsideRange, nullptr},
    {"stutter-range", Severity::Warning,
     "stutter is searched for, and that of the shortest allele falls below the range",
     CheckStutterRange, nullptr},
    {"ladder-gap", Severity::Warning, "whole repeats are missing between two alleles",
     CheckLadderGap, nullptr},
    {"odd-bin", Severity::Warning, "a bin's width or centre is unlike its neighbours'", CheckOddBin,
     nullptr},
    {"no-width", Severity::Warning, "bins have no width", CheckNoWidth, nullptr},
    {"bins-touch", Severity::Warning, "neighbouring bins touch", CheckBinsTouch, nullptr},
    {"same-primers", Severity::Warning, "loci that are analysed together have the same primers",
     nullptr, CheckSamePrimers},
    {"convention", Severity::Warning, "a name is not one that the naming convention would give",
     CheckConvention, nullptr},
};

inline constexpr std::size_t CheckRuleCount = std::size(CheckRules);

/// The rule with the name, case aside, or none.
const CheckRule* FindCheckRule(std::string_view name);

/// Which of the `CheckRules` are looked at, a bit a row.
using ChosenRules = std::bitset<CheckRuleCount>;

inline ChosenRules AllCheckRules()
{
    return ChosenRules().set();
}

/// Appends what the rules find in the locus by itself. Takes n log n time for n alleles.
void CheckLocus(const CheckedLocus& locus, const ChosenRules& rules, std::vector<Finding>& found);
/// Appends what the rules find in loci that are analysed together. Where many overlap, each is
/// reported with one of the others, so that it takes n log n time for n alleles.
void CheckGroup(const LociTogether& group, const ChosenRules& rules, std::vector<Finding>& found);

} // namespace Tamrivo
