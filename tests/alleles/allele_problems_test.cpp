#include "host/alleles/allele_problems.h"
#include "tests/fakes/fake_objects.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tamrivo
{

namespace
{

struct Row
{
    std::string Name;
    double Size;
    double From;
    double To;
};

std::vector<std::string> ProblemsOf(const std::vector<Row>& rows)
{
    AlleleRows alleles;
    for (const Row& row : rows)
    {
        auto allele = std::make_shared<Fakes::FakeAllele>();
        allele->AlleleText1 = row.Name;
        allele->AlleleReal1 = row.Size;
        allele->AlleleReal2 = row.From;
        allele->AlleleReal3 = row.To;
        alleles.push_back(allele);
    }
    std::vector<std::string> problems;
    for (const auto& [number, reason] : AlleleProblems(alleles))
        problems.push_back(std::to_string(number) + ": " + reason);
    return problems;
}

TEST(AlleleProblems, TellsTheRowsAtFaultAndWhy)
{
    struct Case
    {
        std::vector<Row> Rows;
        std::vector<std::string> Expected;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Case cases[] = {
        {{}, {}},
        {{{"8", 94, 93.5, 94.5}, {"9", 98, 97.5, 98.5}}, {}},
        // Bins that touch, as with a confidence interval of half the repeat unit.
        {{{"8", 60, 59.5, 60.5}, {"9", 61, 60.5, 61.5}}, {}},
        {{{"8", 59.5, 59.5, 60.5}, {"9", 61.5, 60.5, 61.5}}, {}},
        {{{"", 60, 59, 61}, {"  ", 70, 69, 71}},
         {"1: The name is missing", "2: The name is missing"}},
        {{{"ol", 60, 59, 61}, {"OL ", 70, 69, 71}, {"x", 75, 74, 76}, {"Ol", 80, 79, 81}},
         {"1: The name is the same as in row 2", "2: The name is the same as in row 1",
          "4: The name is the same as in row 1"}},
        {{{"ärger", 60, 59, 61}, {"ÄRGER", 70, 69, 71}},
         {"1: The name is the same as in row 2", "2: The name is the same as in row 1"}},
        {{{"8", 58.9, 59, 61}, {"9", 71.1, 69, 71}, {"10", 80, 81, 79}, {"11", nan, 90, 91}},
         {"1: The size lies outside the bin", "2: The size lies outside the bin",
          "3: The size lies outside the bin", "4: The size lies outside the bin"}},
        {{{"8", 60, 59, 61}, {"9", 61, 60.9, 62}},
         {"1: The bin overlaps that of row 2", "2: The bin overlaps that of row 1"}},
        // A wide bin reaches over its neighbour to a row further on.
        {{{"8", 60, 50, 90}, {"9", 70, 69, 71}, {"10", 80, 79, 81}},
         {"1: The bin overlaps that of row 2", "1: The bin overlaps that of row 3",
          "2: The bin overlaps that of row 1", "3: The bin overlaps that of row 1"}},
        // Bins without extent.
        {{{"8", 60, 60, 60}, {"9", 61, 61, 61}, {"10", 61, 61, 62}}, {}},
        {{{"8", 60, 59, 60}, {"9", 60, 60, 60}, {"10", 60, 60, 60}},
         {"2: The bin overlaps that of row 3", "3: The bin overlaps that of row 2"}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ProblemsOf(c.Rows), c.Expected);
}

} // namespace

} // namespace Tamrivo
