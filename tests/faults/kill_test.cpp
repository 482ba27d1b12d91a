// tamrivo_kill_test KILLS [SEED]
//
// Ends a process with SIGKILL at random moments while it saves, imports, updates, restores, copies
// and backs up, on both back ends, and looks each time whether what was acknowledged is there, and
// nothing by halves. The status is 1 when it isn't.

#include "contracts/object_manager.h"
#include "host/panels/import.h"
#include "host/store/history_record.h"
#include "host/store/history_writer.h"
#include "host/store/integrity.h"
#include "host/store/store_backup.h"
#include "host/store/store_copy.h"
#include "tests/faults/sample.h"
#include "tests/panels/read_table.h"
#include "tests/server/scratch_server.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>

namespace Tamrivo::Testing
{
namespace
{

namespace fs = std::filesystem;

/// What a process works on, and what is known of it.
struct Scene
{
    std::string Address;
    std::string Target; ///< Of a copy or a backup.
    int Turn = 0;
    int Known = 0; ///< What was found after the last turn.
};

/// Tells the parent what has been acknowledged; a number counts up.
using Tell = std::function<void(int)>;

void SaveOn(const Scene& scene, const Tell& tell)
{
    Store store(scene.Address);
    const auto locus = store.FindLocus("Saved");
    for (int number = scene.Known + 1;; ++number)
    {
        SetEverywhere(*locus, number);
        store.Manager().Save(*locus, true);
        tell(number);
    }
}

/// The number that the locus has everywhere.
int NumberSaved(Scene& scene, int)
{
    Store store(scene.Address);
    return NumberEverywhere(*store.FindLocus("Saved"));
}

void UpdateOn(const Scene& scene, const Tell& tell)
{
    Store store(scene.Address);
    for (int number = scene.Known + 1;; ++number)
    {
        store.Together([&] {
            for (int at = 0; at < LociOfUpdate; ++at)
            {
                const auto locus = store.FindLocus("U" + std::to_string(at));
                SetEverywhere(*locus, number);
                store.Manager().Save(*locus, true);
            }
        });
        tell(number);
    }
}

int NumberUpdated(Scene& scene, int)
{
    Store store(scene.Address);
    const int number = NumberEverywhere(*store.FindLocus("U0"));
    for (int at = 1; at < LociOfUpdate; ++at)
        Require(NumberEverywhere(*store.FindLocus("U" + std::to_string(at))) == number,
                "an update happened by halves");
    return number;
}

void RestoreOn(const Scene& scene, const Tell& tell)
{
    Store store(scene.Address);
    for (int number = scene.Known + 1;; ++number)
    {
        store.RestoreLocus("Restored", std::to_string(1 + number % 2), "");
        tell(number);
    }
}

int NumberRestored(Scene& scene, int)
{
    Store store(scene.Address);
    const auto locus = store.FindLocus("Restored");
    NumberEverywhere(*locus);
    // Its first two revisions were made before.
    return LastRevision(store.SharedDatabase(), HistoryKind::Locus, locus->LocusID()) - 2;
}

void ImportOn(const Scene& scene, const Tell& tell)
{
    Store store(scene.Address);
    const auto reading = ReadTable(PanelOf("T" + std::to_string(scene.Turn) + "_"));
    CarryOutImport(PlanImport(reading.Markers, {}, store), store);
    tell(scene.Known + 1);
}

int NumberImported(Scene& scene, int)
{
    Store store(scene.Address);
    const std::string prefix = "t" + std::to_string(scene.Turn) + "_";
    int count = 0;
    for (const std::string& key : store.TagKeys())
        count += key.starts_with(prefix) ? 1 : 0;
    Require(count == 0 || count == MarkersOfPanel, "an import happened by halves");
    return scene.Known + (count > 0 ? 1 : 0);
}

void CopyOn(const Scene& scene, const Tell& tell)
{
    Store from(scene.Address);
    Store to(scene.Target);
    CopyStore(from, to);
    tell(scene.Known + 1);
}

int NumberCopied(Scene& scene, int)
{
    Store from(scene.Address);
    Store to(scene.Target);
    const bool isEmpty = to.TagKeys().empty();
    const std::string difference = isEmpty ? "" : FirstDifference(from, to);
    Require(difference.empty(), "a copy is another one in the table " + difference);
    Require(CheckIntegrity(to).empty(), "a copy isn't whole");
    return scene.Known + (isEmpty ? 0 : 1);
}

void BackUpOn(const Scene& scene, const Tell& tell)
{
    Store from(scene.Address);
    BackUpStore(from, scene.Target, false);
    tell(scene.Known + 1);
}

int NumberBackedUp(Scene& scene, int acknowledged)
{
    if (!fs::exists(scene.Target))
        return scene.Known;
    return NumberCopied(scene, acknowledged);
}

struct Kind
{
    const char* Name;
    void (*Work)(const Scene&, const Tell&);
    int (*Number)(Scene&, int); ///< How far the store is; raises a text when it is by halves.
    bool NeedsTarget;
    bool TargetIsFile;
};

constexpr Kind Kinds[] = {
    {"save", SaveOn, NumberSaved, false, false},
    {"import", ImportOn, NumberImported, false, false},
    {"update", UpdateOn, NumberUpdated, false, false},
    {"restore", RestoreOn, NumberRestored, false, false},
    {"copy", CopyOn, NumberCopied, true, false},
    {"backup", BackUpOn, NumberBackedUp, true, true},
};

/// Lets a process work until it is killed. Gives the last number that it told, 0 for none.
int WorkUntilKilled(const Kind& kind, const Scene& scene, useconds_t microseconds)
{
    int ends[2] = {};
    Require(pipe(ends) == 0, "there is no pipe");
    const pid_t child = fork();
    if (child == 0)
    {
        try
        {
            kind.Work(scene, [&](int number) {
                if (write(ends[1], &number, sizeof number) != sizeof number)
                    _exit(2);
            });
        }
        catch (const std::exception& error)
        {
            std::fprintf(stderr, "%s: %s\n", kind.Name, error.what());
            _exit(2);
        }
        _exit(0);
    }
    close(ends[1]);
    usleep(microseconds);
    kill(child, SIGKILL);
    int last = 0;
    for (int number = 0; read(ends[0], &number, sizeof number) == sizeof number;)
        last = number;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    Require(WIFSIGNALED(status) || WEXITSTATUS(status) == 0, "a process failed");
    return last;
}

void KillAtRandom(const char* backEnd, const std::function<std::string()>& newAddress, int kills,
                  unsigned seed, const fs::path& directory)
{
    std::mt19937 random(seed);
    long long acknowledged = 0;
    std::vector<Scene> scenes(std::size(Kinds));
    for (Scene& scene : scenes)
    {
        scene.Address = newAddress();
        FillSample(scene.Address);
    }
    for (int turn = 1; turn <= kills; ++turn)
    {
        const auto at = static_cast<std::size_t>(turn) % std::size(Kinds);
        const Kind& kind = Kinds[at];
        Scene& scene = scenes[at];
        scene.Turn = turn;
        if (kind.NeedsTarget)
            scene.Target =
                kind.TargetIsFile
                    ? (directory / (std::string(backEnd) + std::to_string(turn))).string()
                    : newAddress();
        constexpr unsigned longest = 80'000;
        const int last = WorkUntilKilled(kind, scene, static_cast<useconds_t>(random() % longest));
        const int found = kind.Number(scene, last);
        const int least = std::max(last, scene.Known);
        Require(found == least || found == least + 1,
                std::string(kind.Name) + " " + std::to_string(turn) + ": acknowledged " +
                    std::to_string(least) + ", found " + std::to_string(found));
        acknowledged += found - scene.Known;
        scene.Known = found;
    }
    for (const Scene& scene : scenes)
    {
        Store store(scene.Address);
        Require(CheckIntegrity(store).empty(), "a store isn't whole");
    }
    std::printf("%s: %d kills, %lld changes stored, none lost\n", backEnd, kills, acknowledged);
}

} // namespace
} // namespace Tamrivo::Testing

int main(int argc, char** argv)
{
    using namespace Tamrivo::Testing;
    const int kills = argc > 1 ? std::atoi(argv[1]) : 600;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    const TemporaryDirectory directory;
    try
    {
        int stores = 0;
        KillAtRandom(
            "sqlite",
            [&] { return (directory.Path() / ("store" + std::to_string(++stores))).string(); },
            kills, seed, directory.Path());
        KillAtRandom(
            "postgresql", [] { return ScratchServer::Get().NewDatabase(); }, kills / 10, seed,
            directory.Path());
    }
    catch (const std::exception& error)
    {
        std::printf("FAILED, seed %u: %s\n", seed, error.what());
        return 1;
    }
    return 0;
}
