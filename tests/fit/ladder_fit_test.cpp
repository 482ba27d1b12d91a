#include "core/error.h"
#include "host/fit/marker_sizes.h"
#include "host/fit/observed_reader.h"
#include "host/fit/proposal.h"
#include "host/loci/repeat_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace Tamrivo
{

namespace
{

using Random = std::mt19937;

/// A locus whose alleles and their sizes are known.
struct Simulated
{
    LocusFields Fields;
    double Period = 0;
    double Deviation = 0;
    std::vector<double> Sizes;
    std::vector<RepeatName> Names; ///< Of each size.
};

enum class Variants
{
    None,
    TwoApart, ///< Half repeats, of units of 4 nt on.
    OneApart, ///< Any nucleotide.
};

Simulated Simulate(Random& random, double deviation, Variants variants)
{
    std::uniform_real_distribution<double> unit(0, 1);
    std::normal_distribution<double> noise(0, deviation);
    const auto below = [&random](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    const int length = variants == Variants::OneApart ? 2 + below(5) : 3 + below(4);
    const int first = 5 + below(10);
    const double start = 100 + 20 * unit(random);
    const double period = length * (0.93 + 0.12 * unit(random));
    std::vector<RepeatName> names;
    std::vector<double> weights;
    const auto add = [&](RepeatName name, double weight) {
        names.push_back(name);
        weights.push_back((0.15 + unit(random)) * weight);
    };
    for (int count = 4 + below(12), at = 0; at < count; ++at)
    {
        add({first + at, 0}, 1);
        if (variants == Variants::OneApart && below(4) == 0)
            add({first + at, 1 + below(length - 1)}, 0.5);
        if (variants == Variants::TwoApart && length >= 4 && below(4) == 0)
            add({first + at, 2}, 0.5);
    }
    Simulated locus;
    std::discrete_distribution<std::size_t> choose(weights.begin(), weights.end());
    const int fewest = deviation > 0.2 ? 50 : 20;
    for (int count = fewest + below(501 - fewest); count > 0; --count)
    {
        locus.Names.push_back(names[choose(random)]);
        locus.Sizes.push_back(start + period / length * locus.Names.back().Length(length) +
                              noise(random));
    }
    locus.Period = period;
    locus.Deviation = deviation;
    locus.Fields.RepeatLength = length;
    locus.Fields.AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
    locus.Fields.StartAtNumeric = first;
    locus.Fields.RepeatsInShortestAllele = std::to_string(first);
    locus.Fields.ShortestAlleleSize =
        static_cast<std::int32_t>(std::lround(start + period * first));
    return locus;
}

/// The standard error that least squares give the period when all names are known.
double LeastError(const Simulated& locus)
{
    const double count = static_cast<double>(locus.Names.size());
    double sum = 0;
    double squares = 0;
    for (const RepeatName& name : locus.Names)
    {
        const double repeats = name.Length(locus.Fields.RepeatLength) / locus.Fields.RepeatLength;
        sum += repeats;
        squares += repeats * repeats;
    }
    return locus.Deviation / std::sqrt(squares - sum * sum / count);
}

TEST(LadderFit, GivesTheTrueNamesAndPeriodOfSimulatedLoci)
{
    const struct
    {
        double Deviation;
        Variants Which;
        double RightNames;
    } cases[] = {
        {0.05, Variants::None, 0.99},     {0.05, Variants::TwoApart, 0.99},
        {0.05, Variants::OneApart, 0.99}, {0.15, Variants::None, 0.99},
        {0.15, Variants::TwoApart, 0.99}, {0.15, Variants::OneApart, 0.99},
        {0.25, Variants::None, 0.95},     {0.25, Variants::TwoApart, 0.95},
        {0.25, Variants::OneApart, 0.90},
    };
    Random random(12);
    int loci = 0;
    int periodsWithinErrors = 0;
    int errorsNearLimit = 0;
    for (const auto& [deviation, variants, rightNames] : cases)
    {
        std::size_t right = 0;
        std::size_t all = 0;
        for (int turn = 0; turn < 150; ++turn, ++loci)
        {
            const Simulated locus = Simulate(random, deviation, variants);
            const LadderFit fit = FitLadder(locus.Fields, {}, locus.Sizes);
            for (std::size_t at = 0; at < locus.Sizes.size(); ++at, ++all)
            {
                const ProposedAllele* const called = CallSize(fit, locus.Sizes[at]);
                if (called != nullptr && called->Fields.AlleleText1 == locus.Names[at].Text())
                    ++right;
            }
            if (fit.IsProposed && std::abs(fit.Period - locus.Period) <= 3 * fit.PeriodError)
                ++periodsWithinErrors;
            if (fit.IsProposed && fit.PeriodError <= 1.5 * LeastError(locus))
                ++errorsNearLimit;
        }
        EXPECT_GE(static_cast<double>(right), rightNames * static_cast<double>(all))
            << deviation << ' ' << static_cast<int>(variants);
    }
    EXPECT_GE(periodsWithinErrors, loci * 99 / 100);
    EXPECT_GE(errorsNearLimit, loci * 99 / 100);
    RecordProperty("periodsWithinErrors", periodsWithinErrors);
    RecordProperty("errorsNearLimit", errorsNearLimit);
}

TEST(LadderFit, ProposesNothingForRandomSizes)
{
    constexpr int turns = 400;
    Random random(12);
    std::uniform_real_distribution<double> size(100, 180);
    int proposals = 0;
    for (int turn = 0; turn < turns; ++turn)
    {
        LocusFields fields;
        fields.RepeatLength = 2 + static_cast<int>(random() % 5);
        std::vector<double> sizes(20 + random() % 480);
        std::ranges::generate(sizes, [&] { return size(random); });
        const LadderFit fit = FitLadder(fields, {}, sizes);
        proposals += fit.IsProposed ? 1 : 0;
        EXPECT_EQ(fit.IsProposed, fit.Reason.empty());
    }
    EXPECT_LE(proposals, turns * 5 / 100);
}

TEST(LadderFit, FollowsTheNamesThatTheLocusHasAndKeepsWhatWasNotSeen)
{
    LocusFields fields;
    fields.ConfInt = 0.7;
    fields.UserSpecifiedConfInt = 1;
    AlleleFields known;
    known.AlleleText1 = "9.3";
    known.AlleleReal1 = 121;
    known.AlleleInt2 = 1;
    AlleleFields unseen = known;
    unseen.AlleleText1 = "20";
    unseen.AlleleReal1 = unseen.AlleleReal2 = unseen.AlleleReal3 = 162;
    const AlleleFields* const alleles[] = {&known, &unseen};
    const double sizes[] = {110.0, 110.1, 114.0, 114.1, 118.0, 118.1, 121.0, 121.1,
                            121.9, 122.0, 126.0, 126.1, 130.0, 130.1, 123.95};
    const LadderFit fit = FitLadder(fields, alleles, sizes);
    ASSERT_TRUE(fit.IsProposed) << fit.Reason;
    std::vector<std::string> names;
    for (const AlleleFields& allele : WithProposal(alleles, fit))
    {
        names.push_back(allele.AlleleText1);
        EXPECT_EQ(allele.AlleleInt2 == 1,
                  allele.AlleleText1 == "9.3" || allele.AlleleText1 == "20");
    }
    EXPECT_THAT(names, testing::ElementsAre("7", "8", "9", "9.3", "10", "10.2", "11", "12", "20"));
    EXPECT_NEAR(fit.Alleles[0].Fields.AlleleReal2, 110.05 - 0.7, 1e-9);
    EXPECT_EQ(fit.Alleles[3].Fields.AlleleReal3, fit.Alleles[4].Fields.AlleleReal2);

    EXPECT_THAT(FitLadder(fields, {}, {}).Reason, testing::StartsWith("Too few sizes"));
    EXPECT_THAT(FitLadder(fields, {}, std::vector<double>(20, 110)).Reason,
                testing::StartsWith("Too few names"));
}

TEST(LadderFit, WarnsOfNamesThatDisagreeAndOfAllelesOutsideTheRange)
{
    const auto ladder = [](int first, double start) {
        std::vector<AlleleFields> alleles(9);
        for (std::size_t at = 0; at < alleles.size(); ++at)
        {
            alleles[at].AlleleText1 = std::to_string(first + static_cast<int>(at));
            alleles[at].AlleleReal1 = start + 4.0 * static_cast<double>(at);
            alleles[at].AlleleReal2 = alleles[at].AlleleReal1 - 0.7;
            alleles[at].AlleleReal3 = alleles[at].AlleleReal1 + 0.7;
        }
        return alleles;
    };
    // Alleles 9 to 12 of a kit with 9 at 118 nt.
    const double sizes[] = {118.0, 118.1, 122.0, 122.1, 126.0, 126.1, 130.0, 130.1};
    const struct
    {
        double Start;
        std::int32_t RangeEnd;
        std::vector<std::string> Cautions;
    } cases[] = {
        {110, 200, {}},
        {110.4, 200, {}},
        {110.6, 200, {"The locus has other names where the sizes are: 8.3 at 118.05 nt is 9, "}},
        {107, 200, {"The locus has 0 of the 4 proposed names; new are 9.3 at 118.05 nt, "}},
        {110, 128, {"Outside the range of 100 to 128 nt: 12 at 130.05 nt. "}},
    };
    for (const auto& [start, rangeEnd, expected] : cases)
    {
        const std::vector<AlleleFields> alleles = ladder(7, start);
        std::vector<const AlleleFields*> known;
        for (const AlleleFields& allele : alleles)
            known.push_back(&allele);
        LocusFields fields;
        fields.FragStart = 100;
        fields.FragEnd = rangeEnd;
        const LadderFit fit = FitLadder(fields, known, sizes);
        ASSERT_TRUE(fit.IsProposed) << fit.Reason;
        std::vector<testing::Matcher<std::string>> starts;
        for (const std::string& text : expected)
            starts.push_back(testing::StartsWith(text));
        EXPECT_THAT(fit.Cautions, testing::ElementsAreArray(starts)) << start;
    }
}

ObservedReader ReaderOf(const std::string& text)
{
    return ObservedReader(PanelFileOf("t", text));
}

TEST(ObservedReader, ReadsOrRefusesWithThePlace)
{
    ObservedReader table = ReaderOf("\xEF\xBB\xBFMarker,size,Sample,Dye\r\n\r\n"
                                    "\"TH01\",\"120.5, 124\",S1,\"a \"\"b\"\"\"\r\n"
                                    "FGA,,S2");
    ObservedLine line;
    ASSERT_TRUE(table.Next(line));
    EXPECT_THAT(line.Sizes, testing::ElementsAre(120.5, 124));
    EXPECT_EQ(line.Cells[3], "a \"b\"");
    ASSERT_TRUE(table.Next(line));
    EXPECT_THAT(line.Sizes, testing::IsEmpty());
    EXPECT_THAT(line.Cells, testing::ElementsAre("FGA", "", "S2", ""));
    EXPECT_FALSE(table.Next(line));

    const std::string titles = "Sample\tMarker\tSize\n";
    for (const std::string& text :
         {std::string(), std::string("Sample\tMarker\nS\tM\n"), titles, titles + "S\tM\t12a\n",
          titles + "S\tM\t-1\n", titles + "S\tM\t1e308\n", titles + "S\tM\tnan\n",
          titles + "S\tM\t1\t2\n", titles + std::string(LineReader::LongestLine + 1, '1')})
        EXPECT_THROW(
            {
                ObservedReader refused = ReaderOf(text);
                while (refused.Next(line))
                {}
            },
            Failure)
            << text.substr(0, 40);
}

TEST(MarkerSizes, AreThoseOfTheTagElseOfTheNameAndNotTooMany)
{
    const std::string lines = "Sample\tMarker\tSize\nS\tD3\t1,2\nS\td3 \t3\nS\tX\t4\nS\t\t5\n";
    ObservedReader table = ReaderOf(lines);
    const MarkerSizes some(table, {"D3 (P)", "D3", ""});
    EXPECT_THAT(some.Of("D3 (P)", "D3")->second.Sizes, testing::ElementsAre(1, 2, 3));
    EXPECT_EQ(some.Of("D3 (P)", ""), nullptr);
    EXPECT_THAT(some.All(), testing::Not(testing::Contains(testing::Key("X"))));
    EXPECT_EQ(some.LineCount(), 4U);

    std::string many = "Sample\tMarker\tSize\nS\tX\t1";
    for (std::size_t size = 0; size < MarkerSizes::MostOfMarker / 2; ++size)
        many += "\nS\tX\t1,2";
    ObservedReader unwanted = ReaderOf(many);
    EXPECT_EQ(MarkerSizes(unwanted, {"D3"}).LineCount(), MarkerSizes::MostOfMarker / 2 + 1);
    ObservedReader wanted = ReaderOf(many);
    EXPECT_THROW(MarkerSizes(wanted, {"x"}), Failure);
}

} // namespace

} // namespace Tamrivo
