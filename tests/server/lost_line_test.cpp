#include "host/store/history.h"
#include "tests/server/server_test.h"

#include <gmock/gmock.h>

#include <future>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::HasSubstr;

/// Connections that end at the worst moment.
class LostLine : public ServerTest
{
protected:
    /// From now on a COMMIT waits for a standby that isn't there.
    void LetCommitsWait()
    {
        Sql(m_address, "ALTER SYSTEM SET synchronous_standby_names = 'nobody'");
        Sql(m_address, "SELECT pg_reload_conf()");
    }

    void LetCommitsPass()
    {
        Sql(m_address, "ALTER SYSTEM RESET synchronous_standby_names");
        Sql(m_address, "SELECT pg_reload_conf()");
    }

    /// Saves the locus with other ends until a COMMIT waits, which the result is that of. The
    /// server takes its time to notice the setting; until then a save just works.
    std::future<ErrorRecord> SaveUntilItWaits(Locus& locus)
    {
        Store other(m_address);
        std::future<ErrorRecord> saving;
        for (bool isWaiting = false; !isWaiting;)
        {
            saving = std::async(std::launch::async, [&] {
                return FailureOf([&] {
                    m_store.Together([&] {
                        ++locus.FragEnd;
                        m_store.Manager().Save(locus, true);
                    });
                });
            });
            while (!isWaiting &&
                   saving.wait_for(std::chrono::milliseconds(10)) != std::future_status::ready)
                isWaiting = Count(other, "SELECT COUNT(*) FROM pg_stat_activity "
                                         "WHERE wait_event = 'SyncRep'") > 0;
        }
        return saving;
    }

    /// Whether each save of the locus has left its record, and the store has the last one.
    void ExpectEverySaveOnce(const Locus& locus, int firstEnd)
    {
        Store other(m_address);
        EXPECT_EQ(other.FindLocus("A")->FragEnd, locus.FragEnd);
        EXPECT_EQ(Count(other, "SELECT COUNT(*) FROM History WHERE Kind = 'Locus'"),
                  1 + locus.FragEnd - firstEnd);
        EXPECT_EQ(History(other.SharedDatabase()).Verify().Number, 0);
    }
};

TEST_F(LostLine, BeforeTheCommitIsDoneAgain)
{
    const auto locus = Save(m_store, "A");
    // The connection ends as the COMMIT begins, once.
    Sql(m_address, "CREATE SEQUENCE Cuts");
    Sql(m_address, "CREATE FUNCTION Cut() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN "
                   "IF nextval(''Cuts'') = 1 THEN PERFORM pg_terminate_backend(pg_backend_pid()); "
                   "END IF; RETURN NULL; END'");
    Sql(m_address, "CREATE CONSTRAINT TRIGGER Cut AFTER INSERT ON History "
                   "DEFERRABLE INITIALLY DEFERRED FOR EACH ROW EXECUTE FUNCTION Cut()");
    const int before = locus->FragEnd++;
    m_store.Manager().Save(*locus, true);
    ExpectEverySaveOnce(*locus, before);
}

TEST_F(LostLine, AfterTheCommitIsFoundOutAbout)
{
    const auto locus = Save(m_store, "A");
    const int before = locus->FragEnd;
    LetCommitsWait();
    auto saving = SaveUntilItWaits(*locus);
    Sql(m_address, "SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
                   "WHERE wait_event = 'SyncRep'");
    LetCommitsPass();
    EXPECT_EQ(saving.get().Description, "");
    ++locus->FragEnd;
    m_store.Manager().Save(*locus, true);
    ExpectEverySaveOnce(*locus, before);
}

TEST_F(LostLine, AfterTheCommitWithTheServerGoneIsSaidToBeUnknown)
{
    const auto locus = Save(m_store, "A");
    const int before = locus->FragEnd;
    LetCommitsWait();
    auto saving = SaveUntilItWaits(*locus);
    m_server.Kill();
    const ErrorRecord error = saving.get();
    EXPECT_EQ(error.Number, StoreError::Unknown);
    EXPECT_THAT(error.Description, HasSubstr("isn't known"));
    m_server.Start();
    LetCommitsPass();
    ++locus->FragEnd;
    EXPECT_EQ(FailureOf([&] { m_store.Manager().Save(*locus, true); }).Description, "");
    ExpectEverySaveOnce(*locus, before);
}

TEST_F(LostLine, BetweenSavesLosesNothingThatWasAcknowledged)
{
    const auto locus = Save(m_store, "A", {"1"});
    const int before = locus->FragEnd++;
    m_server.Kill();
    const ErrorRecord error = FailureOf([&] { m_store.Manager().Save(*locus, true); });
    EXPECT_EQ(error.Number, StoreError::Unreachable);
    EXPECT_THAT(error.Description, HasSubstr("can't be reached"));
    m_server.Start();
    m_store.Manager().Save(*locus, true);
    ExpectEverySaveOnce(*locus, before);
}

} // namespace
} // namespace Tamrivo::Testing
