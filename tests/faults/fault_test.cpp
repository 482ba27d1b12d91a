// tamrivo_fault_test
//
// Fails every possible call of the file system below SQLite, fills the disk at every possible
// write, and refuses memory, while a store is saved to, imported into, restored from and backed up.
// After each the store must open, pass its check, and hold all or nothing. The status is 1 when it
// doesn't.

#include "host/panels/import.h"
#include "host/store/integrity.h"
#include "host/store/store_backup.h"
#include "tests/faults/failing_sqlite.h"
#include "tests/faults/sample.h"
#include "tests/panels/read_table.h"

#include <cstdio>
#include <new>

namespace
{

/// Allocations that are still granted; negative: all.
long long grantedAllocations = -1;
long long allocations = 0;

} // namespace

void* operator new(std::size_t size)
{
    ++allocations;
    if (grantedAllocations >= 0 && allocations > grantedAllocations)
    {
        grantedAllocations = -1;
        throw std::bad_alloc();
    }
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Tamrivo::Testing
{
namespace
{

namespace fs = std::filesystem;

void SaveOnce(const std::string& file)
{
    Store store(file);
    const auto locus = store.FindLocus("Saved");
    SetEverywhere(*locus, 7);
    store.Manager().Save(*locus, true);
}

void ImportOnce(const std::string& file)
{
    Store store(file);
    CarryOutImport(PlanImport(ReadTable(PanelOf("I")).Markers, {}, store), store);
}

void RestoreOnce(const std::string& file)
{
    Store(file).RestoreLocus("Restored", "1", "");
}

void BackUpOnce(const std::string& file)
{
    Store store(file);
    BackUpStore(store, file + ".backup", true);
}

/// Everything that the operations change, as one number.
int StateOf(const std::string& file)
{
    Store store(file);
    const std::vector<std::string> faults = CheckIntegrity(store);
    Require(faults.empty(), faults.empty() ? "" : faults.front());
    const int imported = static_cast<int>(store.TagKeys().size()) - LociOfUpdate - 2;
    Require(imported == 0 || imported == MarkersOfPanel, "an import happened by halves");
    return NumberEverywhere(*store.FindLocus("Saved")) +
           100 * NumberEverywhere(*store.FindLocus("Restored")) + (imported > 0 ? 1000 : 0);
}

struct Operation
{
    const char* Name;
    void (*Do)(const std::string& file);
    int StateAfter;
};

/// Before all of them: "Saved" has 0, "Restored" 1.
constexpr int StateBefore = 100;
constexpr Operation Operations[] = {
    {"save", SaveOnce, 107},
    {"import", ImportOnce, 1100},
    {"restore", RestoreOnce, 0},
    {"backup", BackUpOnce, 100},
};

class Harm
{
public:
    explicit Harm(const fs::path& directory)
        : m_original(directory / "original"), m_file(directory / "store")
    {
        FillSample(m_original);
    }

    /// Does the operation with the call that `begin` counts down to failing, for each call in turn,
    /// until it is done without a failure. Gives how many calls failed.
    int AtEveryCall(const Operation& operation, FailingSqlite::Fault fault)
    {
        for (int call = 1;; ++call)
        {
            Prepare();
            FailingSqlite::FailAt(fault, call);
            const bool isDone = Do(operation);
            const bool hasFailed = FailingSqlite::HasFailed();
            FailingSqlite::FailAt(fault, 0);
            RequireAllOrNothing(operation, isDone);
            if (!hasFailed)
                return call - 1;
        }
    }

    /// Refuses so many allocations of an operation, one at a time.
    int AtAllocations(const Operation& operation, int times)
    {
        Prepare();
        allocations = 0;
        Do(operation);
        const long long all = allocations;
        int refused = 0;
        for (int at = 0; at < times && at < all; ++at)
        {
            Prepare();
            allocations = 0;
            grantedAllocations = all * at / times;
            const bool isDone = Do(operation);
            refused += grantedAllocations < 0 ? 1 : 0;
            grantedAllocations = -1;
            RequireAllOrNothing(operation, isDone);
        }
        return refused;
    }

private:
    /// Makes the store fresh.
    void Prepare()
    {
        for (const char* ending : {"-journal", ".backup", ".backup.part"})
            fs::remove(m_file.string() + ending);
        fs::copy_file(m_original, m_file, fs::copy_options::overwrite_existing);
    }

    /// Gives whether it was done.
    bool Do(const Operation& operation)
    {
        try
        {
            operation.Do(m_file);
            return true;
        }
        catch (const std::exception&)
        {
            return false;
        }
    }

    void RequireAllOrNothing(const Operation& operation, bool isDone)
    {
        const int state = StateOf(m_file);
        Require(state == operation.StateAfter || (!isDone && state == StateBefore),
                std::string(operation.Name) + (isDone ? " was done" : " failed") + " and left " +
                    std::to_string(state));
        const std::string backup = m_file.string() + ".backup";
        if (fs::exists(backup))
            Require(StateOf(backup) == StateBefore, "a backup isn't whole");
    }

    fs::path m_original;
    fs::path m_file;
};

void HarmAll()
{
    FailingSqlite::Install();
    const TemporaryDirectory directory;
    Harm harm(directory.Path());
    using enum FailingSqlite::Fault;
    for (const Operation& operation : Operations)
    {
        std::printf("%s: %d calls failed", operation.Name, harm.AtEveryCall(operation, Call));
        std::printf(", %d times a full disk", harm.AtEveryCall(operation, FullDisk));
        std::printf(", %d times no memory for SQLite\n", harm.AtEveryCall(operation, Memory));
        std::fflush(stdout);
    }
    constexpr int times = 1000;
    std::printf("import: %d allocations refused\n", harm.AtAllocations(Operations[1], times));
}

} // namespace
} // namespace Tamrivo::Testing

int main()
{
    try
    {
        Tamrivo::Testing::HarmAll();
    }
    catch (const std::exception& error)
    {
        std::printf("FAILED: %s\n", error.what());
        return 1;
    }
    return 0;
}
