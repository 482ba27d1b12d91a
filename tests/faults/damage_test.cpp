// tamrivo_damage_test TIMES [SEED]
//
// Flips bytes of a store at random and lets commands loose on it: each must end with a sentence or
// right data. Where one gives other data than from the undamaged store, tamrivo check
// --store-integrity must find the damage. The status is 1 when a command crashes, hangs or lies.

#include "console/program.h"
#include "host/store/parameter_store.h"
#include "tests/faults/sample.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <random>
#include <sstream>

namespace Tamrivo::Testing
{
namespace
{

namespace fs = std::filesystem;

const std::vector<std::vector<std::string>> Commands = {
    {"list", "--format", "tsv"},
    {"show", "Saved", "--format", "json"},
    {"export"},
    {"history", "--format", "tsv"},
    {"report", "--format", "tsv"},
    {"show", "Restored", "--at", "1", "--format", "json"},
};

struct Outcome
{
    int Status = 0;
    std::string Out;
};

Outcome RunOn(const std::string& file, std::vector<std::string> arguments)
{
    arguments.insert(arguments.end(), {"--store", file});
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunProgram(arguments, in, out, err);
    return {status, out.str() + (status == 0 ? "" : err.str())};
}

/// What a child found, as its exit status.
enum Verdict
{
    Well = 0,
    Lied = 10,   ///< Another answer, and no check finds the damage.
    Silent = 11, ///< A failure without a sentence.
    Refused = 12,
    Found = 13, ///< Another answer, and the check finds it.
};

Verdict TryCommands(const std::string& file, const std::vector<Outcome>& right)
{
    Verdict verdict = Well;
    for (std::size_t at = 0; at < Commands.size(); ++at)
    {
        const Outcome outcome = RunOn(file, Commands[at]);
        if (outcome.Status != 0 && outcome.Out.empty())
            return Silent;
        if (outcome.Status != 0)
            verdict = Refused;
        else if (outcome.Out != right[at].Out)
            return RunOn(file, {"check", "--store-integrity"}).Status == 0 ? Lied : Found;
    }
    return verdict;
}

/// In a process of its own, which may crash or hang.
int VerdictOn(const std::string& file, const std::vector<Outcome>& right)
{
    const pid_t child = fork();
    if (child == 0)
    {
        constexpr unsigned longest = 60; // s
        alarm(longest);
        _exit(TryCommands(file, right));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

int DamageAtRandom(int times, unsigned seed)
{
    const TemporaryDirectory directory;
    const std::string original = directory.Path() / "original";
    FillSample(original);
    {
        Store store(original);
        ParameterStore(store).Create("P", TagLists::OneEmpty);
        store.DeleteLocus("U1");
    }
    std::vector<Outcome> right;
    for (const auto& command : Commands)
        right.push_back(RunOn(original, command));
    std::ostringstream bytes;
    bytes << std::ifstream(original, std::ios::binary).rdbuf();

    std::mt19937 random(seed);
    int refused = 0;
    int found = 0;
    int wrong = 0;
    for (int time = 0; time < times; ++time)
    {
        std::string damaged = bytes.str();
        for (unsigned flips = 1 + random() % 8; flips > 0; --flips)
        {
            char& byte = damaged[random() % damaged.size()];
            byte = static_cast<char>(byte ^ (1U << random() % 8));
        }
        const std::string file = directory.Path() / "damaged";
        fs::remove(file + "-journal");
        std::ofstream(file, std::ios::binary) << damaged;
        const int verdict = VerdictOn(file, right);
        refused += verdict == Refused ? 1 : 0;
        found += verdict == Found ? 1 : 0;
        if (verdict < 0 || verdict == Lied || verdict == Silent)
        {
            ++wrong;
            const std::string kept = fs::temp_directory_path() / ("damaged" + std::to_string(time));
            fs::copy_file(file, kept, fs::copy_options::overwrite_existing);
            std::printf("time %d: verdict %d, kept as %s\n", time, verdict, kept.c_str());
        }
    }
    std::printf("%d times damaged: %d refused, %d other answers that the check finds, %d wrong\n",
                times, refused, found, wrong);
    return wrong;
}

} // namespace
} // namespace Tamrivo::Testing

int main(int argc, char** argv)
{
    const int times = argc > 1 ? std::atoi(argv[1]) : 1000;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    try
    {
        return Tamrivo::Testing::DamageAtRandom(times, seed) > 0 ? 1 : 0;
    }
    catch (const std::exception& error)
    {
        std::printf("FAILED, seed %u: %s\n", seed, error.what());
        return 1;
    }
}
