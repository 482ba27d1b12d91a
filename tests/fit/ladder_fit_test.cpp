#include "core/error.h"
#include "host/fit/observed_sizes.h"
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

TEST(ObservedTable, IsReadOrRefusedWithThePlace)
{
    const ObservedTable table = ReadObservedTable(
        "\xEF\xBB\xBFMarker,size,Sample,Dye\r\n\"TH01\",\"120.5, 124\",S1,\"a \"\"b\"\"\"\r\n",
        "t");
    ASSERT_THAT(table.Lines, testing::SizeIs(1));
    EXPECT_THAT(table.Lines[0].Sizes, testing::ElementsAre(120.5, 124));
    EXPECT_EQ(table.Lines[0].Cells[3], "a \"b\"");

    const std::string titles = "Sample\tMarker\tSize\n";
    for (const std::string& text :
         {std::string(), std::string("Sample\tMarker\nS\tM\n"), titles, titles + "S\tM\t12a\n",
          titles + "S\tM\t-1\n", titles + "S\tM\t1e308\n", titles + "S\tM\tnan\n",
          titles + "S\tM\t1\t2\n", titles + std::string(MostObservedLines + 1, '\n')})
        EXPECT_THROW(ReadObservedTable(text, "t"), Failure) << text.substr(0, 40);
}

} // namespace

} // namespace Tamrivo
