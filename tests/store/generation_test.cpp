#include "core/error.h"
#include "host/loci/allele_generation.h"
#include "host/loci/start_at.h"

#include <gtest/gtest.h>

#include <functional>

namespace Tamrivo::Testing
{
namespace
{

TEST(StartAt, StepsLettersAtTheEnd)
{
    struct Case
    {
        const char* Text;
        const char* Next;
        const char* Previous;
    };
    for (const auto& [text, next, previous] : {
             Case{"A", "B", "A"},
             Case{"Z", "AA", "Y"},
             Case{"AZ", "BA", "AY"},
             Case{"AA", "AB", "Z"},
             Case{"ZZ", "AAA", "ZY"},
             Case{"BA", "BB", "AZ"},
             Case{"AAA", "AAB", "ZZ"},
             Case{"a", "b", "a"},
             Case{"z", "aa", "y"},
             Case{"aZ", "bA", "aY"},
             Case{"", "A", ""},
             Case{"9", "9A", "9"},
             Case{".", ".A", "."},
             Case{"9Z", "9AA", "9Y"},
             Case{"9A", "9B", "9A"},
             Case{"9AA", "9AB", "9Z"},
             Case{"\xC3\x89",
                  "\xC3\x89"
                  "A",
                  "\xC3\x89"},
         })
    {
        EXPECT_EQ(NextStartAt(text), next) << text;
        EXPECT_EQ(PreviousStartAt(text), previous) << text;
    }
}

LocusFields Definition()
{
    LocusFields locus;
    locus.FragEnd = 112;
    locus.ShortestAlleleSize = 100;
    locus.RepeatsInShortestAllele = "7.2";
    locus.ConfInt = 0.25;
    return locus;
}

TEST(GenerateAlleleRows, HasARowForEachRepeat)
{
    LocusFields locus = Definition();
    const auto rows = GenerateAlleleRows(locus);
    ASSERT_EQ(rows.size(), 4U);
    const AlleleFields& last = rows.back();
    EXPECT_EQ(last.AlleleText1, "112");
    EXPECT_EQ(last.AlleleReal1, 112);
    EXPECT_EQ(last.AlleleReal2, 111.5);
    EXPECT_EQ(last.AlleleReal3, 112.5);
    EXPECT_DOUBLE_EQ(last.AlleleReal4, 10.2);
    EXPECT_EQ(last.AlleleInt1, AlleleOrigin::Generated);

    locus.UserSpecifiedConfInt = 1;
    EXPECT_EQ(GenerateAlleleRows(locus).front().AlleleReal2, 99.75);
}

TEST(GenerateAlleleRows, NamesByConventionAndStopsAtTheRange)
{
    const auto lastName = [](const std::function<void(LocusFields&)>& change) {
        LocusFields locus = Definition();
        change(locus);
        const auto rows = GenerateAlleleRows(locus);
        return rows.empty() ? "none" : rows.back().AlleleText1;
    };
    const auto alphabetic = [](LocusFields& locus) {
        locus.AlleleNamingConventionTypeID = AlleleNamingConvention::Alphabetic;
        locus.StartAtAlphanumeric = "Y";
    };
    const auto numeric = [](LocusFields& locus) {
        locus.AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
        locus.StartAtNumeric = 98;
    };
    EXPECT_EQ(lastName(alphabetic), "AB");
    EXPECT_EQ(lastName(numeric), "101");
    EXPECT_EQ(lastName([](LocusFields& locus) { locus.FragEnd = 111; }), "108");
    EXPECT_EQ(lastName([](LocusFields& locus) { locus.FragEnd = 100; }), "100");
    EXPECT_EQ(lastName([](LocusFields& locus) { locus.FragEnd = 99; }), "none");
}

TEST(GenerateAlleleRows, RefusesWhatCannotBeGenerated)
{
    struct Case
    {
        std::int32_t Number;
        void (*Change)(LocusFields&);
    };
    for (const auto& [number, change] : {
             Case{ErrorNumber::InvalidArgument, [](LocusFields& l) { l.RepeatLength = 0; }},
             Case{ErrorNumber::InvalidArgument, [](LocusFields& l) { l.RepeatLength = -4; }},
             Case{ErrorNumber::NotANumber, [](LocusFields& l) { l.RepeatsInShortestAllele = "x"; }},
             Case{ErrorNumber::NotANumber, [](LocusFields& l) { l.RepeatsInShortestAllele = ""; }},
             Case{ErrorNumber::InvalidArgument,
                  [](LocusFields& l) { l.AlleleNamingConventionTypeID = 1003; }},
             Case{ErrorNumber::InvalidArgument,
                  [](LocusFields& l) {
                      l.FragEnd = INT32_MAX;
                      l.ShortestAlleleSize = INT32_MIN;
                  }},
             Case{ErrorNumber::OutOfRange,
                  [](LocusFields& l) {
                      l.AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
                      l.StartAtNumeric = INT32_MAX;
                  }},
         })
    {
        LocusFields locus = Definition();
        change(locus);
        try
        {
            GenerateAlleleRows(locus);
            ADD_FAILURE() << "generated, not refused with " << number;
        }
        catch (const Failure& failure)
        {
            EXPECT_EQ(failure.Record().Number, number) << failure.what();
        }
    }
}

} // namespace
} // namespace Tamrivo::Testing
