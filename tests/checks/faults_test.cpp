#include "host/checks/check_run.h"
#include "host/loci/repeat_name.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <set>

namespace Tamrivo
{

namespace
{

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t count)
{
    return random() % count;
}

struct PanelLocus
{
    std::string Tag;
    LocusFields Fields;
    std::vector<AlleleFields> Alleles;
};

using Panel = std::vector<PanelLocus>;

/// A panel as kits have them: four dyes with four loci each, whose sizes drift along the ladder and
/// are measured to a hundredth, with microvariants and bins of unlike width.
Panel SimulatedPanel(Random& random)
{
    std::uniform_real_distribution<double> unit(0, 1);
    Panel panel;
    for (int dye = 0; dye < 4; ++dye)
    {
        double from = 80 + 10 * unit(random);
        for (int number = 0; number < 4; ++number)
        {
            PanelLocus locus{"L" + std::to_string(panel.size()), {}, {}};
            const int repeatLength = Below(random, 8) == 0 ? 5 : 4;
            const double stretch = 0.95 + 0.1 * unit(random);
            const double wave = 0.25 * unit(random);
            const int shortest = 5 + static_cast<int>(Below(random, 20));
            locus.Fields.DyeIndex = dye;
            locus.Fields.RepeatLength = repeatLength;
            locus.Fields.FragStart = static_cast<std::int32_t>(std::floor(from));
            const double start = from + 3 + unit(random);
            for (int step = 0; step < 14 * repeatLength; ++step)
            {
                if (step % repeatLength != 0 && Below(random, 12) > 0)
                    continue;
                AlleleFields allele;
                const RepeatName name{shortest + step / repeatLength, step % repeatLength};
                const double size = start + stretch * step + wave * std::sin(step / 12.0);
                const double half = name.Nucleotides > 0 ? 0.4 : 0.5;
                allele.AlleleText1 = name.Text();
                allele.AlleleReal1 = std::round(100 * size) / 100;
                allele.AlleleReal2 = allele.AlleleReal1 - half;
                allele.AlleleReal3 = allele.AlleleReal1 + half;
                locus.Alleles.push_back(allele);
            }
            locus.Fields.FragEnd =
                static_cast<std::int32_t>(std::ceil(locus.Alleles.back().AlleleReal3 + 2));
            from = locus.Fields.FragEnd + 1.0;
            panel.push_back(std::move(locus));
        }
    }
    return panel;
}

std::set<std::string_view> RulesThatFind(const Panel& panel, const std::string& tag)
{
    CheckSource source;
    source.Count = panel.size();
    source.Locus = [&panel](std::size_t at) {
        std::vector<const AlleleFields*> alleles;
        for (const AlleleFields& allele : panel[at].Alleles)
            alleles.push_back(&allele);
        return CheckedLocus(panel[at].Tag, panel[at].Fields, std::move(alleles));
    };
    source.Groups.push_back({"panel P", {}, {}});
    for (std::size_t at = 0; at < panel.size(); ++at)
        source.Groups.front().Loci.push_back(at);
    CheckRun run(std::move(source), AllCheckRules());
    while (run.Step())
    {}
    std::set<std::string_view> rules;
    for (const Finding& finding : run.Found())
    {
        if (tag.empty() ? finding.Rule->Weight == Severity::Error : finding.Tag == tag)
            rules.insert(finding.Rule->Name);
    }
    return rules;
}

double Sign(Random& random)
{
    return Below(random, 2) == 0 ? -1 : 1;
}

void Move(AlleleFields& allele, double distance)
{
    allele.AlleleReal1 += distance;
    allele.AlleleReal2 += distance;
    allele.AlleleReal3 += distance;
}

/// A mistake that people make, in a locus and an allele of it, and the rules that are right to find
/// it. False: it can't be made there.
struct Fault
{
    const char* What;
    bool (*Make)(Random&, Panel&, PanelLocus&, AlleleFields&);
    std::set<std::string_view> Right;
};

const std::set<std::string_view> nameRules = {"same-name", "size-name", "order"};
const std::set<std::string_view> sizeRules = {"outside-bin", "size-name", "order", "bin-overlap",
                                              "same-bin"};

const Fault faults[] = {
    {"a neighbour's name",
     [](Random&, Panel&, PanelLocus& locus, AlleleFields& allele) {
         AlleleFields& neighbour =
             &allele == &locus.Alleles.front() ? *(&allele + 1) : *(&allele - 1);
         allele.AlleleText1 = neighbour.AlleleText1;
         return true;
     },
     nameRules},
    {"a name one repeat off",
     [](Random& random, Panel&, PanelLocus&, AlleleFields& allele) {
         RepeatName name = *ReadRepeatName(allele.AlleleText1);
         name.Repeats += static_cast<std::int32_t>(Sign(random));
         allele.AlleleText1 = name.Text();
         return true;
     },
     nameRules},
    {"9.3 as 93 or 9",
     [](Random& random, Panel&, PanelLocus&, AlleleFields& allele) {
         const std::size_t point = allele.AlleleText1.find('.');
         if (point == std::string::npos)
             return false;
         allele.AlleleText1.erase(point, Below(random, 2) == 0 ? 1 : std::string::npos);
         return true;
     },
     nameRules},
    {"two digits of a size swapped",
     [](Random& random, Panel&, PanelLocus&, AlleleFields& allele) {
         std::string digits = std::to_string(std::lround(100 * allele.AlleleReal1));
         const std::size_t at = Below(random, digits.size() - 1);
         std::swap(digits[at], digits[at + 1]);
         const double size = std::stod(digits) / 100;
         const bool isFault = std::abs(size - allele.AlleleReal1) > 0.5;
         allele.AlleleReal1 = size;
         return isFault;
     },
     sizeRules},
    {"a size one nt off, its bin with it",
     [](Random& random, Panel&, PanelLocus&, AlleleFields& allele) {
         Move(allele, Sign(random));
         return true;
     },
     sizeRules},
    {"a size one repeat off",
     [](Random& random, Panel&, PanelLocus& locus, AlleleFields& allele) {
         allele.AlleleReal1 += Sign(random) * locus.Fields.RepeatLength;
         return true;
     },
     sizeRules},
    {"a bin limit mistyped",
     [](Random& random, Panel&, PanelLocus&, AlleleFields& allele) {
         double& limit = Below(random, 2) == 0 ? allele.AlleleReal2 : allele.AlleleReal3;
         limit += Sign(random) * (1 + static_cast<double>(Below(random, 9))) *
                  std::pow(10, Below(random, 3));
         return true;
     },
     {"outside-bin", "bin-overlap", "odd-bin"}},
    {"a wrong dye",
     [](Random& random, Panel&, PanelLocus& locus, AlleleFields&) {
         locus.Fields.DyeIndex =
             (locus.Fields.DyeIndex + 1 + static_cast<std::int32_t>(Below(random, 3))) % 4;
         return true;
     },
     {"bin-overlap", "range-overlap"}},
    {"a row doubled",
     [](Random&, Panel&, PanelLocus& locus, AlleleFields& allele) {
         locus.Alleles.push_back(allele);
         return true;
     },
     {"same-name", "same-bin"}},
    {"a row of another locus",
     [](Random& random, Panel& panel, PanelLocus& locus, AlleleFields&) {
         const PanelLocus& other = panel[Below(random, panel.size())];
         locus.Alleles.push_back(other.Alleles[Below(random, other.Alleles.size())]);
         return other.Tag != locus.Tag;
     },
     {"outside-range", "size-name", "order", "same-name", "bin-overlap"}},
};

TEST(Faults, AreFoundByTheRightRuleAndPanelsWithoutThemAreClean)
{
    constexpr int faultCount = 1000;
    Random random(12);
    int made = 0;
    int found = 0;
    std::map<std::string, int> missed;
    std::size_t loci = 0;
    std::size_t falseAlarms = 0;
    while (made < faultCount)
    {
        const Panel clean = SimulatedPanel(random);
        loci += clean.size();
        falseAlarms += RulesThatFind(clean, {}).size();
        for (const Fault& fault : faults)
        {
            Panel panel = clean;
            PanelLocus& locus = panel[Below(random, panel.size())];
            AlleleFields& allele = locus.Alleles[Below(random, locus.Alleles.size())];
            if (!fault.Make(random, panel, locus, allele))
                continue;
            ++made;
            const auto before = RulesThatFind(clean, locus.Tag);
            const auto rules = RulesThatFind(panel, locus.Tag);
            const bool isFound = std::ranges::any_of(fault.Right, [&](std::string_view rule) {
                return rules.contains(rule) && !before.contains(rule);
            });
            found += isFound ? 1 : 0;
            missed[fault.What] += isFound ? 0 : 1;
        }
    }
    EXPECT_GE(found, made * 95 / 100) << "of " << made << "; " << testing::PrintToString(missed);
    EXPECT_LE(falseAlarms, loci / 100) << "in " << loci << " loci";
    RecordProperty("found", found);
    RecordProperty("falseAlarms", static_cast<int>(falseAlarms));
}

} // namespace

} // namespace Tamrivo
