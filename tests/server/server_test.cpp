#include "contracts/allele.h"
#include "host/database/backend.h"
#include "host/database/database.h"
#include "host/store/history.h"
#include "host/store/store.h"
#include "tests/server/scratch_server.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>
#include <soci/postgresql/soci-postgresql.h>

#include <fstream>
#include <future>
#include <sstream>
#include <thread>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::AnyOf;
using ::testing::HasSubstr;

class ServerTest : public StoreTest
{
protected:
    static void Sql(const std::string& address, const std::string& statement)
    {
        // A connection of its own, without the store's transactions.
        const std::string database = address.substr(address.find("@/") + 2);
        const std::size_t mark = database.find("?host=");
        soci::session(*soci::factory_postgresql(),
                      "user=keeper dbname=" + database.substr(0, mark) + " host='" +
                          database.substr(mark + 6) + "'")
            << statement;
    }

    static int Count(Store& store, const std::string& query)
    {
        return store.SharedDatabase().Run("", [&](soci::session& session) {
            int count = 0;
            session << query, soci::into(count);
            return count;
        });
    }

    ScratchServer& m_server = ScratchServer::Get();
    std::string m_address = m_server.NewDatabase();
    Store m_store{m_address};
};

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
        bool isFirstTry = true;
        store.Together([&] {
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
    EXPECT_EQ(Loci(m_store).size(), 2U);
}

TEST_F(ServerTest, ALineLostAtTheCommitIsFoundOutAbout)
{
    const auto locus = Save(m_store, "A");
    // Not stored: the connection ends as the COMMIT begins, once.
    Sql(m_address, "CREATE SEQUENCE Cuts");
    Sql(m_address, "CREATE FUNCTION Cut() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN "
                   "IF nextval(''Cuts'') = 1 THEN PERFORM pg_terminate_backend(pg_backend_pid()); "
                   "END IF; RETURN NULL; END'");
    Sql(m_address, "CREATE CONSTRAINT TRIGGER Cut AFTER INSERT ON History "
                   "DEFERRABLE INITIALLY DEFERRED FOR EACH ROW EXECUTE FUNCTION Cut()");
    locus->FragEnd = 300;
    m_store.Manager().Save(*locus, true);
    EXPECT_EQ(m_store.FindLocus("A")->FragEnd, 300);

    // Stored, but not acknowledged: the COMMIT waits for a standby that isn't there.
    Sql(m_address, "ALTER SYSTEM SET synchronous_standby_names = 'nobody'");
    Sql(m_address, "SELECT pg_reload_conf()");
    Store other(m_address);
    int end = 400;
    std::future<ErrorRecord> saving;
    // The server takes its time to notice the setting; until then a save just works.
    for (bool isWaiting = false; !isWaiting; ++end)
    {
        saving = std::async(std::launch::async, [&, end] {
            locus->FragEnd = end;
            return FailureOf([&] { m_store.Manager().Save(*locus, true); });
        });
        while (!isWaiting &&
               saving.wait_for(std::chrono::milliseconds(10)) != std::future_status::ready)
            isWaiting = Count(other, "SELECT COUNT(*) FROM pg_stat_activity "
                                     "WHERE wait_event = 'SyncRep'") > 0;
    }
    Sql(m_address, "SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
                   "WHERE wait_event = 'SyncRep'");
    Sql(m_address, "ALTER SYSTEM RESET synchronous_standby_names");
    Sql(m_address, "SELECT pg_reload_conf()");
    EXPECT_EQ(saving.get().Description, "");
    EXPECT_EQ(other.FindLocus("A")->FragEnd, end - 1);
    locus->FragEnd = 500;
    m_store.Manager().Save(*locus, true);
    EXPECT_EQ(other.FindLocus("A")->FragEnd, 500);
    EXPECT_EQ(Count(other, "SELECT COUNT(*) FROM History WHERE Kind = 'Locus'"), 3 + end - 400);
}

TEST_F(ServerTest, AServerThatIsKilledLosesNothingThatWasAcknowledged)
{
    const auto locus = Save(m_store, "A", {"1"});
    m_server.Kill();
    locus->FragEnd = 300;
    const ErrorRecord error = FailureOf([&] { m_store.Manager().Save(*locus, true); });
    EXPECT_EQ(error.Number, StoreError::Unreachable);
    EXPECT_THAT(error.Description, HasSubstr("can't be reached"));
    m_server.Start();
    m_store.Manager().Save(*locus, true);
    EXPECT_EQ(Store(m_address).FindLocus("A")->FragEnd, 300);
    EXPECT_EQ(History(m_store.SharedDatabase()).Verify().Number, 0);
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
}

TEST(ServerVersion, BelowTheOldestIsRefused)
{
    EXPECT_NO_THROW(RequireServerVersion(150000));
    EXPECT_THAT(FailureOf([] { RequireServerVersion(140011); }).Description, HasSubstr("14.11"));
}

} // namespace
} // namespace Tamrivo::Testing
