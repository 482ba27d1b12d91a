#include "core/collection.h"
#include "core/dates.h"
#include "core/error.h"
#include "core/narrowing.h"
#include "core/numbers.h"
#include "core/text.h"
#include "tests/fakes/locales.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Tamrivo
{
namespace
{

/// What `ToInteger` makes of a text: a number or the number of the failure.
std::string IntegerOf(const std::string& text)
{
    try
    {
        return IntegerText(ToInteger(text));
    }
    catch (const Failure& failure)
    {
        return failure.Record().Number == ErrorNumber::OutOfRange ? "out of range" : "no number";
    }
}

struct Reading
{
    const char* Text;
    const char* Integer;
};

void ExpectReadings(std::initializer_list<Reading> readings)
{
    for (const auto& [text, integer] : readings)
    {
        EXPECT_EQ(IntegerOf(text), integer) << '"' << text << '"';
        EXPECT_EQ(IsNumeric(text), std::string(integer) != "no number") << '"' << text << '"';
    }
}

TEST(Numbers, AreReadInTheClassicNotation)
{
    ExpectReadings({
        {"", "no number"},
        {" ", "no number"},
        {".", "no number"},
        {"-", "no number"},
        {"e5", "no number"},
        {"1e", "no number"},
        {"1 2", "no number"},
        {"1,5", "no number"},
        {"0x10", "no number"},
        {"nan", "no number"},
        {"inf", "no number"},
        {"1e999", "no number"},
        {"-1e-400", "0"},
        {"\xE2\x80\x8F"
         "7",
         "no number"},
        {"\t7", "no number"},
        {" +7 ", "7"},
        {"-7.", "-7"},
        {".5", "0"},
        {"1.5", "2"},
        {"2.5", "2"},
        {"-1.5", "-2"},
        {"-2.5", "-2"},
        {"1e3", "1000"},
        {"2147483647.4", "2147483647"},
        {"2147483647.5", "out of range"},
        {"-2147483648.5", "-2147483648"},
        {"99999999999", "out of range"},
    });
}

TEST(Numbers, AreReadAndWrittenWithADecimalCommaAndGroups)
{
    const Fakes::LocaleGuard guard(L',', L'.');
    ExpectReadings({
        {"1,5", "2"},
        {"1.234", "1234"},
        {"1.234,5", "1234"},
        {"12.34", "no number"},
        {"1.2345", "no number"},
        {".5", "no number"},
        {"1234", "1234"},
    });
    EXPECT_EQ(DoubleText(0.25), "0,25");
    EXPECT_EQ(TwoDecimals(1234.5), "1.234,50");
}

TEST(Numbers, TakeAGroupingMarkOfSeveralBytes)
{
    const Fakes::LocaleGuard guard(L',', Fakes::NarrowNoBreakSpace);
    ExpectReadings({{"1\u202F234\u202F567", "1234567"}, {"1\u202F23", "no number"}});
    EXPECT_EQ(TwoDecimals(-1234567.891), "-1\u202F234\u202F567,89");
}

TEST(Numbers, DoublesComeBackFromTheirText)
{
    for (const double value : {0.0, -0.1, 0.95, 1e-300, 1.7976931348623157e308, 1.0 / 3})
    {
        EXPECT_EQ(ToDouble(DoubleText(value)), value);
        const Fakes::LocaleGuard guard(L',', L'.');
        EXPECT_EQ(ToDouble(DoubleText(value)), value);
    }
    const std::pair<double, const char*> texts[] = {
        {0.5, "0.5"}, {-0.0001, "-0.0001"}, {0.00001, "1e-05"}, {100000, "100000"}, {1e15, "1e+15"},
    };
    for (const auto& [value, text] : texts)
        EXPECT_EQ(DoubleText(value), text);
    EXPECT_EQ(TwoDecimals(0.5), "0.50");
}

TEST(Numbers, DontWrapInASmallerType)
{
    EXPECT_EQ(ToInteger(2147483647.4), 2147483647);
    EXPECT_EQ(ToShortInteger(-32768), -32768);
    EXPECT_EQ(ToSingle(-3.4e38), -3.4e38F);
    const double tooLarge[] = {2147483648., -1e300, HUGE_VAL, NAN};
    for (const double value : tooLarge)
        EXPECT_THROW(ToInteger(value), Failure) << value;
    EXPECT_THROW(ToShortInteger(32768), Failure);
    EXPECT_THROW(ToSingle(3.5e38), Failure);
}

TEST(Dates, ComeBackFromTheirTextAndNeverIsEmpty)
{
    const Date date = std::chrono::sys_seconds(std::chrono::seconds(1700000000));
    EXPECT_EQ(DateFromText(DateText(date)), date);
    EXPECT_EQ(DateText(std::nullopt), "");
    EXPECT_EQ(DateFromText("yesterday"), std::nullopt);
}

TEST(Text, OnlyBlanksAreTrimmed)
{
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(TrimRight("  a  "), "  a");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(TrimRight("a\u00A0"), "a\u00A0");
}

TEST(Text, CaseDoesNotCount)
{
    const std::pair<const char*, const char*> equal[] = {
        {"tpox", "TPOX"}, {"É", "é"}, {"Σ", "ς"},       {"Ǆ", "ǆ"},
        {"ẞ", "ß"},       {"𐐀", "𐐨"}, {"\xFF", "\xFF"},
    };
    for (const auto& [left, right] : equal)
        EXPECT_TRUE(EqualNoCase(left, right)) << left;
    EXPECT_FALSE(EqualNoCase("a", "a "));
    EXPECT_FALSE(EqualNoCase("ß", "ss"));
    EXPECT_FALSE(EqualNoCase("\xFF", "\xFE"));
    EXPECT_LT(CompareNoCase("a", "B"), 0);
    EXPECT_LT(CompareNoCase("A", "ab"), 0);
}

TEST(Collection, FindsItemsByKeyAndKeepsTheirOrder)
{
    Collection<int> items;
    const std::pair<const char*, int> entries[] = {{"É", 1}, {"b", 2}, {"", 3}, {"A", 4}, {"", 5}};
    for (const auto& [key, item] : entries)
        items.Add(item, key);
    EXPECT_THROW(items.Add(6, "B"), Failure);
    items.Remove("B");
    EXPECT_EQ(items.Item("é") * 10 + items.Item("a"), 14);
    EXPECT_EQ(std::vector<int>(items.begin(), items.end()), (std::vector<int>{1, 3, 4, 5}));
    EXPECT_EQ(items.Keys(), (std::vector<std::string>{"A", "É"}));
    EXPECT_FALSE(items.KeyExists("b"));
    EXPECT_THROW(items.Item("b"), Failure);
}

TEST(Text, CharactersAreCodePointsAndBadBytesSurvive)
{
    const std::string text = "a\u00E9\u202F\U0001F9EC\xC3";
    EXPECT_EQ(CharacterCount(text), 5U);
    EXPECT_EQ(Characters(text, 1, 3), "\u00E9\u202F\U0001F9EC");
    EXPECT_EQ(Encode(Decode(text)), text);
    EXPECT_FALSE(IsUtf8(text));
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(IsUtf8("\xC0\xAF"));
}

} // namespace
} // namespace Tamrivo
