#include "tests/server/server_test.h"

#include "console/program.h"
#include "contracts/allele.h"
#include "host/database/backend.h"
#include "host/store/history.h"
#include "host/store/integrity.h"

#include <gmock/gmock.h>

#include <fstream>
#include <future>
#include <sstream>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;

TEST_F(ServerTest, WritersOfDifferentLociAllGetThrough)
{
    constexpr int writers = 6;
    constexpr int saves = 15;
    std::vector<std::future<void>> done;
    for (int writer = 0; writer < writers; ++writer)
    {
        done.push_back(std::async(std::launch::async, [this, writer] {
            Store store(m_address);
            const auto locus = Save(store, "L" + std::to_string(writer), {"1", "2"});
            for (int end = 1; end < saves; ++end)
            {
                locus->FragEnd = end;
                store.Manager().Save(*locus, true);
            }
        }));
    }
    for (auto& each : done)
        EXPECT_NO_THROW(each.get());
    EXPECT_EQ(Count(m_store, "SELECT COUNT(*) FROM History WHERE Kind = 'Locus'"), writers * saves);
    EXPECT_EQ(History(m_store.SharedDatabase()).Verify().Number, 0);
}

TEST_F(ServerTest, OfTwoWritersOfOneLocusOneIsTold)
{
    Save(m_store, "A");
    std::vector<std::future<int>> results;
    for (int writer = 1; writer <= 2; ++writer)
    {
        results.push_back(std::async(std::launch::async, [this, writer] {
            Store store(m_address);
            int stored = 0;
            for (int round = 0; round < 20; ++round)
            {
                const auto locus = store.FindLocus("A");
                locus->FragEnd = 1000 * writer + round;
                const auto error = FailureOf([&] { store.Manager().Save(*locus, true); });
                EXPECT_THAT(error.Number, AnyOf(0, StoreError::Conflict)) << error.Description;
                stored += error.Number == 0 ? 1 : 0;
            }
            return stored;
        }));
    }
    const int stored = results[0].get() + results[1].get();
    EXPECT_EQ(Count(m_store, "SELECT Revision FROM Locus WHERE LocusTag = 'A'"), 1 + stored);
    EXPECT_EQ(Count(m_store, "SELECT COUNT(*) FROM History WHERE Kind = 'Locus'"), 1 + stored);
}

TEST_F(ServerTest, ADeadlockReachesNobody)
{
    std::promise<void> first;
    std::promise<void> second;
    const auto cross = [&](const char* one, const char* other, std::promise<void>& mine,
                           std::shared_future<void> theirs) {
        Store store(m_address);
        const auto own = NewLocus(store, one + std::string(" own"));
        bool isFirstTry = true;
        store.Together([&] {
            store.Manager().Save(*own, true);
            Save(store, one);
            if (std::exchange(isFirstTry, false))
            {
                mine.set_value();
                theirs.wait();
            }
            if (!store.FindLocus(other))
                Save(store, other);
        });
    };
    const auto one = std::async(std::launch::async, [&] {
        return FailureOf([&] { cross("A", "B", first, second.get_future().share()); });
    });
    const ErrorRecord two = FailureOf([&] { cross("B", "A", second, first.get_future().share()); });
    one.wait();
    // One of them finds that the other has both names by now; a deadlock it is told of by nobody.
    EXPECT_THAT(two.Number, AnyOf(0, StoreError::NameTaken)) << two.Description;
    EXPECT_THAT(Loci(m_store), IsSupersetOf({"A", "B"}));
}

TEST_F(ServerTest, OfTwoWhoRestoreADeletedLocusAtOnceNoneIsHindered)
{
    for (int round = 0; round < 10; ++round)
    {
        const std::string tag = "A" + std::to_string(round);
        const auto locus = NewLocus(m_store, tag, {"1", "2"});
        locus->ProjectName = "P" + std::to_string(round);
        m_store.Manager().Save(*locus, true);
        m_store.DeleteLocus(tag);
        std::vector<std::future<ErrorRecord>> results;
        for (int person = 0; person < 3; ++person)
        {
            results.push_back(std::async(std::launch::async, [&] {
                Store store(m_address);
                return FailureOf([&] { store.RestoreLocus(tag, "1", ""); });
            }));
        }
        for (auto& result : results)
            EXPECT_EQ(result.get().Description, "");
        EXPECT_THAT(Names(m_store.FindLocus(tag)->Alleles()), ElementsAre("1", "2"));
        EXPECT_EQ(m_store.LocusAt(tag, "5")->LocusID(), locus->LocusID());
    }
}

/// Every command that stores something says before it tries that this person may not.
void ExpectToldFirst(const std::string& reader)
{
    const std::string panels = ::testing::TempDir() + "/reader.tsv";
    std::ofstream(panels) << "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tColor\tRepeat"
                             "\tMarker.Min\tMarker.Max\n"
                             "P\tM\t8\t94\t93.5\t94.5\tblue\t4\t92\t148\n";
    const std::vector<std::vector<std::string>> commands = {
        {"rename", "A", "B"},
        {"duplicate", "A", "B"},
        {"set", "A", "--dye", "red"},
        {"delete", "A"},
        {"restore", "A", "--at", "1"},
        {"dyes", "set", "blue", "green", "yellow", "red"},
        {"import", panels},
        {"settings", "reason", "required"},
        {"parameters", "add", "P"},
        {"projects", "delete", "Default"},
        {"copy", "--from", reader, "--to", reader},
    };
    for (std::vector<std::string> command : commands)
    {
        SCOPED_TRACE(command.front());
        command.insert(command.end(), {"--store", reader});
        std::istringstream in;
        std::ostringstream out;
        EXPECT_EQ(RunProgram(command, in, out, out), 1);
        EXPECT_THAT(out.str(), HasSubstr("Nothing is stored: the store"));
        EXPECT_THAT(out.str(), HasSubstr("\"rita\" has the rights of a reader"));
    }
}

TEST_F(ServerTest, RolesMayWhatTheyAreFor)
{
    Save(m_store, "A", {"1"});
    std::ostringstream roles;
    roles << std::ifstream(SERVER_ROLES_SQL).rdbuf();
    Sql(m_address, roles.str());
    // Roles belong to the server, and a run may come here more than once.
    Sql(m_address, "DROP ROLE IF EXISTS rita, edith");
    Sql(m_address, "CREATE ROLE rita LOGIN IN ROLE tamrivo_reader");
    Sql(m_address, "CREATE ROLE edith LOGIN IN ROLE tamrivo_editor");
    const auto as = [&](const std::string& user) {
        return "postgresql://" + user + m_address.substr(m_address.find('@'));
    };
    Store reader(as("rita"));
    EXPECT_TRUE(reader.IsReadOnly());
    EXPECT_THAT(Names(reader.FindLocus("A")->Alleles()), ::testing::ElementsAre("1"));
    EXPECT_EQ(FailureOf([&] { Save(reader, "B"); }).Number, StoreError::ReadOnly);
    EXPECT_THAT(CheckIntegrity(reader), ::testing::IsEmpty());
    ExpectToldFirst(as("rita"));

    {
        Store editor(as("edith"));
        EXPECT_FALSE(editor.IsReadOnly());
        Save(editor, "B", {"1"});
        editor.DeleteLocus("A");
        editor.RestoreLocus("A", "1", "");
        for (const char* statement :
             {"UPDATE History SET Who = 'x'", "DELETE FROM History", "DELETE FROM Seal"})
            EXPECT_EQ(FailureOf([&] {
                          editor.SharedDatabase().Run(
                              "", [&](soci::session& session) { session << statement; });
                      }).Number,
                      StoreError::ReadOnly)
                << statement;
    }
    EXPECT_EQ(Count(m_store, "SELECT COUNT(*) FROM History WHERE ServerUser = 'edith'"), 3);
    EXPECT_EQ(Count(m_store, "SELECT COUNT(*) FROM Unsealed"), 0) << "the editor has sealed";

    Sql(m_address, "UPDATE SchemaVersion SET Version = 3");
    for (const char* user : {"rita", "edith"})
        EXPECT_THAT(FailureOf([&] { Store older(as(user)); }).Description, HasSubstr("keeper"));
}

TEST(ServerVersion, BelowTheOldestIsRefused)
{
    EXPECT_NO_THROW(RequireServerVersion(150000));
    EXPECT_THAT(FailureOf([] { RequireServerVersion(140011); }).Description, HasSubstr("14.11"));
}

} // namespace
} // namespace Tamrivo::Testing
