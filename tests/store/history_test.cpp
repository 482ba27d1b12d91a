#include "host/database/database.h"
#include "host/store/content_difference.h"
#include "host/store/history.h"
#include "host/store/history_content.h"
#include "host/store/parameter_store.h"
#include "host/store/stored_locus.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>

#include <chrono>
#include <limits>
#include <thread>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class HistoryTest : public StoreTest
{
protected:
    static std::vector<HistoryRecord> Records(Store& store, const HistoryFilter& filter = {})
    {
        std::vector<HistoryRecord> records;
        History(store.SharedDatabase()).ForEach(filter, [&](const HistoryRecord& record) {
            records.push_back(record);
        });
        return records;
    }

    /// "OPERATION KIND NAME REVISION" of each record after the first ones.
    static std::vector<std::string> Lines(Store& store)
    {
        std::vector<std::string> lines;
        for (const HistoryRecord& record : Records(store))
        {
            if (record.Operation != HistoryOperation::Found)
                lines.push_back(record.Operation + " " + record.Kind + " " + record.Name + " " +
                                std::to_string(record.Revision));
        }
        return lines;
    }

    static void Sql(Store& store, const std::string& statement)
    {
        store.SharedDatabase().Run("", [&](soci::session& session) { session << statement; });
    }
};

TEST_F(HistoryTest, EveryChangeLeavesARecord)
{
    Store store(Address());
    store.SetReason("why not");
    const auto locus = Save(store, "A", {"1", "2"});
    locus->FragEnd = 300;
    store.Manager().Save(*locus, true);
    store.Manager().Save(*locus, true);
    store.ProjectNamed("P");
    ParameterStore parameters(store);
    parameters.Create("Run", TagLists::OneEmpty);
    parameters.Rename("Run", "Run 2");
    parameters.Duplicate("Run 2", "Run 3");
    parameters.Delete("Run 3");
    store.SetDyes(store.Dyes(), false);
    store.DeleteLocus("a");
    {
        auto lost = store.Begin();
        Save(store, "lost");
    }
    EXPECT_THAT(Lines(store),
                ElementsAre("made Locus A 1", "changed Locus A 2", "made Project P 1",
                            "made AnalysisParameter Run 1", "changed AnalysisParameter Run 2 2",
                            "made AnalysisParameter Run 3 1", "deleted AnalysisParameter Run 3 2",
                            "changed Dyes Dyes 2", "deleted Locus A 3"));
    const auto records =
        Records(store, {.Kind = HistoryKind::Locus, .Name = "a ", .Since = {}, .By = {}});
    ASSERT_THAT(records, SizeIs(3));
    EXPECT_FALSE(records[0].Who.empty());
    EXPECT_THAT(records[0].Program, HasSubstr("store_test"));
    EXPECT_EQ(records[0].Reason, "why not");
    const auto differences = ContentDifferences(records[0].Content, records[1].Content);
    ASSERT_THAT(differences, SizeIs(1));
    EXPECT_EQ(differences[0].What + differences[0].Before + differences[0].After, "FragEnd640300");
    EXPECT_THAT(Records(store, {.Kind = {}, .Name = {}, .Since = {}, .By = "nobody at all"}),
                IsEmpty());
}

TEST(ContentDifferences, TakeAFieldThatAnOlderRecordLacksForInitial)
{
    const std::string older = R"({"Format":1,"FragEnd":300})";
    EXPECT_THAT(ContentDifferences(older, R"({"Format":2,"FragEnd":300,"Note":"","Score":0})"),
                IsEmpty());
    EXPECT_THAT(ContentDifferences(older, R"({"Format":2,"FragEnd":300,"Note":"n"})"), SizeIs(1));
    EXPECT_THAT(ContentDifferences("", older), SizeIs(1));
    EXPECT_THAT(ContentDifferences("", R"({"DyeIndex":0})"), SizeIs(1)) << "a locus that is made";
}

TEST_F(HistoryTest, ASaveWithoutADifferenceWritesNothing)
{
    Store store(Address());
    auto locus = Save(store, "A", {"1", "2"});
    locus->ConfInt = 0.3;
    As<Allele>(locus->Alleles().Item(1))->AlleleReal1 = 100.1;
    store.Manager().Save(*locus, true);
    const Date saved = locus->DateLastModified();
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));

    locus = store.FindLocus("A");
    locus->ConfInt = static_cast<double>(0.3F);
    As<Allele>(locus->Alleles().Item(1))->AlleleReal1 = static_cast<double>(100.1F);
    store.Manager().Save(*locus, true);
    EXPECT_EQ(locus->DateLastModified(), saved);
    EXPECT_EQ(store.FindLocus("A")->DateLastModified(), saved);
    EXPECT_THAT(Lines(store), SizeIs(2));

    locus->FragEnd = 1;
    As<Allele>(locus->Alleles().Item(2))->AlleleText1 = "new";
    store.Manager().Save(*locus, true);
    EXPECT_EQ(store.FindLocus("A")->ConfInt, 0.3) << "what isn't changed isn't written";
    EXPECT_THAT(Names(store.FindLocus("A")->Alleles()), ElementsAre("1", "new"));
}

TEST_F(HistoryTest, AnyStateComesBackUnderItsNumber)
{
    Store store(Address());
    LocusState odd;
    odd.Tag = "Odd \xC3\xA9";
    odd.Fields.ConfInt = std::numeric_limits<double>::infinity();
    odd.Fields.LocusName = "not UTF-8: \xFF";
    odd.Alleles.push_back({0.1, 1e-300, 3, 4, 5, "9.2", "\"", "\n", 1, -2, 3});
    HistoryRecord record;
    record.Content = ContentOf(odd);
    EXPECT_TRUE(LocusStateOf(record) == odd);

    auto locus = Save(store, "A", {"1", "2"});
    const std::int32_t number = locus->LocusID();
    locus->SetLocusTag("B");
    locus->Alleles().Remove(1);
    store.Manager().Save(*locus, true);
    store.DeleteLocus("B");
    EXPECT_EQ(store.RestoreLocus("a", "1", ""), "A");
    EXPECT_EQ(store.FindLocus("A")->LocusID(), number);
    EXPECT_THAT(Names(store.FindLocus("A")->Alleles()), ElementsAre("1", "2"));
    EXPECT_EQ(Lines(store).back(), "restored Locus A 4");

    locus = store.FindLocus("A");
    locus->FragEnd = 5;
    store.Manager().Save(*locus, true);
    EXPECT_EQ(store.LocusAt("A", "4")->FragEnd, 640);
    EXPECT_EQ(store.LocusAt("A", IsoTime(store.SharedDatabase().Now()))->FragEnd, 5);

    store.DeleteLocus("A");
    Save(store, "A");
    EXPECT_THAT(FailureOf([&] { store.RestoreLocus("B", "2", "A"); }).Description,
                HasSubstr("--as TAG"));
    EXPECT_EQ(store.RestoreLocus("A", "2", "C"), "C") << "not the one that has the tag now";
    EXPECT_EQ(store.LocusAt("A", "1")->LocusTag(), "A");
    EXPECT_EQ(store.FindLocus("C")->LocusID(), number);
    for (const char* at : {"3", "99", "2001-01-01"})
        EXPECT_EQ(FailureOf([&] { store.LocusAt("B", at); }).Number, StoreError::NotFound) << at;
    for (const char* at : {"", "x", "2001-13-01", "1234567890123"})
        EXPECT_EQ(FailureOf([&] { store.LocusAt("B", at); }).Number, ErrorNumber::InvalidArgument)
            << at;
}

TEST_F(HistoryTest, AClockThatJumpsBackLeavesTheOrderAlone)
{
    Store store(Address());
    std::string time;
    store.SharedDatabase().Now = [&] { return MomentOf("2026-11-23T" + time, OfDay::Beginning); };
    const auto locus = NewLocus(store, "A");
    for (const char* saved : {"10:00", "12:00", "11:00"})
    {
        time = saved;
        ++locus->FragEnd;
        store.Manager().Save(*locus, true);
    }
    const int last = locus->FragEnd;
    EXPECT_EQ(store.FindLocus("A")->FragEnd, last);
    EXPECT_THAT(Lines(store),
                ElementsAre("made Locus A 1", "changed Locus A 2", "changed Locus A 3"));
    struct Case
    {
        const char* At;
        int FragEnd;
    };
    for (const auto& [at, end] :
         {Case{"2026-11-23T10:30", last - 2}, Case{"2026-11-23T11:30", last},
          Case{"2026-11-23T12:30", last}, Case{"2", last - 1}})
        EXPECT_EQ(store.LocusAt("A", at)->FragEnd, end) << at;
    EXPECT_EQ(History(store.SharedDatabase()).Verify().Number, 0);
}

TEST_F(HistoryTest, TamperingShows)
{
    struct Case
    {
        const char* What;
        const char* Statement; ///< NUMBER: of the locus's second record of three.
        int Offset;            ///< Of the record found, from that one.
    };
    for (const auto& [what, statement, offset] : {
             Case{"nothing", "SELECT 1", -100},
             Case{"changed", "UPDATE History SET Who = 'me' WHERE Number = NUMBER", 0},
             Case{"removed", "DELETE FROM History WHERE Number = NUMBER", 0},
             Case{"tail removed", "DELETE FROM History WHERE Number > NUMBER", 1},
             Case{"object removed", "DELETE FROM History WHERE Kind = 'Locus'", -1},
             Case{"seal changed", "UPDATE Seal SET WrittenAt = 1", -100'000},
         })
    {
        SCOPED_TRACE(what);
        const std::string address = Address();
        long long number = 0;
        {
            Store store(address);
            auto locus = Save(store, "A", {"1"});
            for (int end : {300, 400})
            {
                locus->FragEnd = end;
                store.Manager().Save(*locus, true);
            }
            number = Records(store).at(Records(store).size() - 2).Number;
        }
        Store store(address);
        std::string sql = statement;
        if (const auto at = sql.find("NUMBER"); at != std::string::npos)
            sql.replace(at, 6, std::to_string(number));
        Sql(store, sql);
        const HistoryFinding finding = History(store.SharedDatabase()).Verify();
        if (offset == -100)
            EXPECT_EQ(finding.Number, 0) << finding.What;
        else if (offset < -100)
            EXPECT_GT(finding.Number, 0);
        else
            EXPECT_EQ(finding.Number, number + offset) << finding.What;
    }
}

TEST_F(HistoryTest, AStoreMayAskForReasons)
{
    Store store(Address());
    store.SetReasonRequired(true);
    EXPECT_EQ(FailureOf([&] { Save(store, "A"); }).Number, StoreError::NoReason);
    EXPECT_THAT(Loci(store), IsEmpty());
    EXPECT_EQ(FailureOf([&] { store.SetReasonRequired(false); }).Number, StoreError::NoReason);
    EXPECT_EQ(FailureOf([&] { store.SetReason(std::string(1'000'000, 'x')); }).Number,
              ErrorNumber::InvalidArgument);
    store.SetReason("because");
    Save(store, "A");
    store.SetReasonRequired(false);
    EXPECT_EQ(Lines(store).back(), "changed Setting reason 2");
}

TEST_F(HistoryTest, ARecordOfANewerVersionIsListedAndNotRead)
{
    Store store(Address());
    Save(store, "A");
    Sql(store, "UPDATE History SET Content = '{\"Format\":2}' WHERE Kind = 'Locus'");
    EXPECT_THAT(Lines(store), Contains("made Locus A 1"));
    EXPECT_EQ(FailureOf([&] { store.LocusAt("A", "1"); }).Number, StoreError::NewerVersion);
    Sql(store, "UPDATE History SET Content = '{' WHERE Kind = 'Locus'");
    EXPECT_EQ(FailureOf([&] { store.LocusAt("A", "1"); }).Number, StoreError::NotAStore);
}

TEST_F(HistoryTest, WhatIsThereWhenAStoreComesForwardIsTheFirstRecord)
{
    const std::string address = Address();
    {
        Store store(address);
        Save(store, "A", {"1"});
        ParameterStore(store).Create("Run", TagLists::None);
        std::vector<const char*> steps = {"DROP TABLE History", "DROP TABLE Seal",
                                          "DROP TABLE Unsealed", "DROP TABLE Setting",
                                          "UPDATE SchemaVersion SET Version = 2"};
        if (OnServer())
            steps.insert(steps.end(), {"DROP FUNCTION NoteUnsealed", "DROP SEQUENCE ObjectNumber"});
        for (const char* statement : steps)
            Sql(store, statement);
        Sql(store, "UPDATE LastNumber SET Number = 50");
    }
    Store store(address);
    std::vector<std::string> found;
    for (const HistoryRecord& record : Records(store))
        found.push_back(record.Operation + " " + record.Name);
    EXPECT_THAT(found, ElementsAre("found A", "found Run", "found Dyes", "found Default"));
    EXPECT_THAT(Names(store.LocusAt("A", "1")->Alleles()), ElementsAre("1"));
    EXPECT_EQ(Save(store, "B")->LocusID(), 51);
    EXPECT_EQ(store.Identity().size(), 32U);
    EXPECT_NE(store.Identity(), Store(Address()).Identity());
}

} // namespace
} // namespace Tamrivo::Testing
