// tamrivo_server_load_test [SECONDS] [RESTARTS]
//
// Twelve writers on one server save, delete, restore, store copies and import at random. Then the
// server is killed and started while they do, and at last a standby takes its place. Each time
// every acknowledged change must be in the history, and the store must be as the history says. The
// status is 1 when that isn't so, or when a writer is told anything but that someone else was first
// or that the store can't be reached.

#include "host/database/database.h"
#include "host/library/changes.h"
#include "host/panels/import.h"
#include "host/store/history.h"
#include "host/store/integrity.h"
#include "host/store/stored_locus.h"
#include "tests/faults/sample.h"
#include "tests/panels/read_table.h"
#include "tests/server/scratch_server.h"

#include <soci/postgresql/soci-postgresql.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <future>
#include <map>
#include <random>
#include <set>
#include <thread>

namespace Tamrivo::Testing
{
namespace
{

constexpr int Writers = 12;
constexpr int SharedLoci = 20;

/// What one writer was told.
struct Told
{
    std::set<std::pair<std::int32_t, std::int32_t>> Stored; ///< Numbers and revisions of loci.
    std::map<std::int32_t, int> Failures;                   ///< By number.
    std::vector<std::string> Unexpected;
    int Imports = 0;
};

class Writer
{
public:
    Writer(const std::string& address, int number)
        : m_store(address), m_number(number), m_random(static_cast<unsigned>(number))
    {}

    Told WorkUntil(const std::atomic<bool>& isOver)
    {
        while (!isOver)
        {
            try
            {
                DoOne();
            }
            catch (const Failure& failure)
            {
                const ErrorRecord& error = failure.Record();
                ++m_told.Failures[error.Number];
                if (!IsExpected(error.Number))
                    m_told.Unexpected.push_back(error.Description);
            }
        }
        return std::move(m_told);
    }

private:
    static bool IsExpected(std::int32_t number)
    {
        constexpr std::int32_t expected[] = {StoreError::Conflict, StoreError::NotFound,
                                             StoreError::NameTaken, StoreError::Unreachable,
                                             StoreError::Unknown};
        return std::ranges::find(expected, number) != std::end(expected);
    }

    std::string RandomTag() { return "L" + std::to_string(m_random() % SharedLoci); }

    void DoOne()
    {
        const auto chosen = m_random() % 100;
        if (chosen < 80)
            SaveOne();
        else if (chosen < 87)
            m_store.DeleteLocus(RandomTag());
        else if (chosen < 94)
            DuplicateOrRestore();
        else
            Import();
    }

    void SaveOne()
    {
        const auto locus = m_store.FindLocus(RandomTag());
        if (!locus)
            return;
        SetEverywhere(*locus, static_cast<int>(m_random() % 1'000'000));
        m_store.Manager().Save(*locus, true);
        const LocusIdentity& identity = dynamic_cast<StoredLocus&>(*locus).Identity();
        m_told.Stored.emplace(identity.LocusID, identity.Revision);
    }

    void DuplicateOrRestore()
    {
        const std::string tag = RandomTag();
        if (m_store.FindLocus(tag))
            DuplicateLocus(m_store, tag, "C" + std::to_string(m_random() % 1'000'000));
        else
            m_store.RestoreLocus(tag, "1", "");
    }

    void Import()
    {
        const std::string prefix =
            "W" + std::to_string(m_number) + "_" + std::to_string(m_told.Imports + 1) + "_";
        CarryOutImport(PlanImport(ReadTable(PanelOf(prefix)).Markers, {}, m_store), m_store);
        ++m_told.Imports;
    }

    Store m_store;
    int m_number;
    std::mt19937 m_random;
    Told m_told;
};

/// Lets twelve writers work while `meanwhile` goes on. Gives what they were told.
std::vector<Told> WorkDuring(const std::string& address, const std::function<void()>& meanwhile)
{
    std::atomic<bool> isOver = false;
    std::vector<std::future<Told>> writers;
    for (int number = 1; number <= Writers; ++number)
        writers.push_back(std::async(
            std::launch::async, [&, number] { return Writer(address, number).WorkUntil(isOver); }));
    meanwhile();
    isOver = true;
    std::vector<Told> told;
    for (auto& writer : writers)
        told.push_back(writer.get());
    return told;
}

void CheckWhatWasTold(const char* what, const std::string& address, const std::vector<Told>& all)
{
    Store store(address);
    std::set<std::pair<std::int32_t, std::int32_t>> recorded;
    History(store.SharedDatabase()).ForEach({}, [&](const HistoryRecord& record) {
        if (record.Kind == HistoryKind::Locus)
            recorded.emplace(record.ObjectNumber, record.Revision);
    });
    std::size_t saves = 0;
    int imports = 0;
    std::map<std::int32_t, int> failures;
    for (const Told& told : all)
    {
        saves += told.Stored.size();
        imports += told.Imports;
        for (const auto& [number, count] : told.Failures)
            failures[number - ErrorNumber::Application] += count;
        for (const std::string& text : told.Unexpected)
            std::printf("told: %s\n", text.c_str());
        Require(told.Unexpected.empty(), "a writer was told what it shouldn't be");
        Require(std::ranges::includes(recorded, told.Stored), "an acknowledged save is lost");
    }
    const std::vector<std::string> faults = CheckIntegrity(store);
    Require(faults.empty(), faults.empty() ? "" : faults.front());
    std::printf(
        "%s: %zu saves and %d imports acknowledged, %zu records, all there; told of others' "
        "changes %d times, of names taken %d, of loci gone %d, of no store %d, of not known "
        "%d\n",
        what, saves, imports, recorded.size(), failures[9], failures[7], failures[8], failures[1],
        failures[11]);
    std::fflush(stdout);
}

void Sleep(double seconds)
{
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

void Fill(const std::string& address)
{
    Store store(address);
    for (int number = 0; number < SharedLoci; ++number)
        SaveSample(store, "L" + std::to_string(number));
}

void PromoteUnderLoad(ScratchServer& primary)
{
    const std::string address = primary.NewDatabase();
    Fill(address);
    const std::string database =
        address.substr(address.find("@/") + 2, address.find('?') - address.find("@/") - 2);
    ScratchServer standby(primary);
    for (const char* statement : {"ALTER SYSTEM SET synchronous_standby_names = '*'",
                                  "SELECT pg_reload_conf()", "SELECT pg_sleep(1)"})
    {
        Store store(address);
        store.SharedDatabase().Run("", [&](soci::session& session) { session << statement; });
    }
    const std::string both = primary.AddressOfBoth(standby, database);
    const auto told = WorkDuring(both, [&] {
        Sleep(5);
        primary.Kill();
        standby.Promote();
        Sleep(5);
    });
    CheckWhatWasTold("a standby promoted", both, told);
}

void Run(double seconds, int restarts)
{
    ScratchServer& server = ScratchServer::Get();
    const std::string address = server.NewDatabase();
    Fill(address);
    CheckWhatWasTold("twelve writers", address, WorkDuring(address, [&] { Sleep(seconds); }));

    CheckWhatWasTold("a server killed", address, WorkDuring(address, [&] {
                         for (int restart = 0; restart < restarts; ++restart)
                         {
                             Sleep(2);
                             server.Kill();
                             server.Start();
                         }
                         Sleep(2);
                     }));
    PromoteUnderLoad(server);
}

} // namespace
} // namespace Tamrivo::Testing

int main(int argc, char** argv)
{
    try
    {
        Tamrivo::Testing::Run(argc > 1 ? std::atof(argv[1]) : 60,
                              argc > 2 ? std::atoi(argv[2]) : 20);
    }
    catch (const std::exception& error)
    {
        std::printf("FAILED: %s\n", error.what());
        return 1;
    }
    return 0;
}
