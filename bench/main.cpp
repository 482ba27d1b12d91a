// tamrivo_bench [NAME...]
//
// Measures the figures named, or all, and prints one line each: what, figure, bound, "ok" or
// "over". The status is 1 when one is over its bound, 2 when a name is unknown.

#include "bench/figures.h"
#include "bench/sample_store.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

namespace
{

using namespace Tamrivo::Bench;

/// Whether the figure is within its bound.
bool Print(const Figure& figure)
{
    const double value = figure.Measure();
    const bool ok = value <= figure.Bound;
    std::printf("%-64.*s %10.2f %7g %-5.*s %s\n", static_cast<int>(figure.What.size()),
                figure.What.data(), value, figure.Bound, static_cast<int>(figure.Unit.size()),
                figure.Unit.data(), ok ? "ok" : "over");
    std::fflush(stdout);
    return ok;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string_view> names(argv + 1, argv + argc);
    for (const std::string_view name : names)
    {
        if (std::ranges::find(Figures, name, &Figure::Name) == std::end(Figures))
        {
            std::fprintf(stderr, "tamrivo_bench: there is no figure \"%.*s\". Figures:\n",
                         static_cast<int>(name.size()), name.data());
            for (const Figure& figure : Figures)
                std::fprintf(stderr, "    %s\n", figure.Name.data());
            return 2;
        }
    }

    bool ok = true;
    try
    {
        // SOCI makes tables at its first query, which must outlive the stores that are kept.
        {
            const TemporaryStore first;
        }
        for (const Figure& figure : Figures)
        {
            if (names.empty() || std::ranges::find(names, figure.Name) != names.end())
                ok = Print(figure) && ok;
        }
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "tamrivo_bench: %s\n", error.what());
        return 1;
    }
    return ok ? 0 : 1;
}
