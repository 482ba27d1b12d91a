#include "host/database/database.h"
#include "host/loci/dyes.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <cmath>
#include <fstream>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

const Dyes fiveDyes({{"blue", ""}, {"Green", ""}, {"yellow", ""}, {"red", ""}, {"purple", "Dye5"}});

TEST_F(StoreTest, TheStoreOfAnEarlierVersionComesForwardWithoutLoss)
{
    std::ifstream file(VERSION_1_SQL);
    const std::string sql{std::istreambuf_iterator<char>(file), {}};
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(Path().c_str(), &database), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);

    Store store(Path());
    EXPECT_EQ(store.Dyes(), Dyes());
    EXPECT_THAT(store.LociByDye(), ElementsAre(1U, 0U, 1U, 1U));
    EXPECT_THAT(Loci(store), ElementsAre("AMEL", "D3S1358", "FGA"));
    const auto locus = store.FindLocus("d3s1358");
    EXPECT_EQ(locus->ProjectName, "Casework");
    EXPECT_EQ(locus->FragEnd, 149);
    EXPECT_EQ(locus->LocusTagID(), 3);
    ASSERT_EQ(locus->Alleles().Count(), 2);
    EXPECT_EQ(As<Allele>(locus->Alleles().Item(2))->AlleleReal4, 9.3);
    EXPECT_EQ(store.FindLocus("FGA")->DyeIndex, 2);
}

TEST_F(StoreTest, DyesThatLociHaveStayUnlessToldOtherwise)
{
    {
        Store store(Path());
        EXPECT_EQ(store.Dyes(), Dyes());
        store.SetDyes(fiveDyes);
        const auto locus = NewLocus(store, "SE33");
        locus->DyeIndex = 4;
        store.Manager().Save(*locus, true);
    }
    Store store(Path());
    EXPECT_EQ(store.Dyes(), fiveDyes);
    EXPECT_EQ(store.Dyes().All()[1].Color, "green");
    EXPECT_EQ(store.Dyes().TitleOf(4), "purple (Dye5)");
    EXPECT_THAT(FailureOf([&] { store.SetDyes({}); }).Description, HasSubstr("SE33"));
    const Dyes recolored({{"green", ""}, {"blue", ""}, {"yellow", ""}, {"red", ""}, {"cyan", ""}});
    EXPECT_THAT(FailureOf([&] { store.SetDyes(recolored); }).Description,
                AllOf(HasSubstr("SE33"), HasSubstr("--recolour")));
    EXPECT_EQ(store.Dyes(), fiveDyes);
    store.SetDyes(recolored, true);
    EXPECT_EQ(store.Dyes(), recolored);
    store.DeleteLocus("SE33");
    store.SetDyes({});
    EXPECT_EQ(store.Dyes(), Dyes());
}

TEST(Dyes, ThatCantBeAreRefused)
{
    const Dye three[] = {{"blue", "A"}, {"green", ""}, {"yellow", ""}};
    for (const auto& [last, reason] : {
             std::pair<Dye, const char*>{{"pink", ""}, "\"pink\" is none of the colours blue"},
             {{"BLUE ", ""}, "two of them are blue"},
             {{"red", "a"}, "two of them are named a"},
             {{"red", "a\x1B[1m"}, "control character"},
         })
    {
        std::vector<Dye> dyes(std::begin(three), std::end(three));
        EXPECT_THAT(FailureOf([&] { Dyes{dyes}; }).Description, HasSubstr("would be 3"));
        dyes.push_back(last);
        EXPECT_THAT(FailureOf([&] { Dyes{dyes}; }).Description, HasSubstr(reason));
    }
}

/// Relative luminance of WCAG 2.1.
double Luminance(std::uint32_t color)
{
    const auto part = [color](int shift) {
        const double value = ((color >> shift) & 255U) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

TEST(Dyes, HaveShadesThatStandOutOnBothThemes)
{
    const double dark = Luminance(0x2A2A2E);
    for (const KnownColor& color : KnownColors)
    {
        EXPECT_GE(1.05 / (Luminance(color.OnLight) + 0.05), 3) << color.Name;
        EXPECT_GE((Luminance(color.OnDark) + 0.05) / (dark + 0.05), 3) << color.Name;
    }
}

} // namespace
} // namespace Tamrivo::Testing
