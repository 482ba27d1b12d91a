#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "contracts/allele.h"
#include "contracts/object_manager.h"
#include "host/checks/store_check.h"

#include <cmath>

namespace Tamrivo::Bench
{

namespace
{

constexpr int manyLoci = 100'000;
constexpr int fewLoci = 10'000;
constexpr int allelesOfLocus = 15;
constexpr int lociOfPanel = 20;

/// Fills a store with panels of loci in four dyes, side by side as in a kit.
void FillWithPanels(Store& store, int count)
{
    auto transaction = store.Begin();
    for (int number = 0; number < count; ++number)
    {
        const auto locus = SampleLocus(store.Manager(), number);
        locus->PrimerSet = "Panel " + std::to_string(number / lociOfPanel);
        locus->FragStart = 80 + 80 * (number % lociOfPanel / 4);
        locus->FragEnd = locus->FragStart + 78;
        locus->FwdPrimer += std::to_string(number);
        for (int repeats = 5; repeats < 5 + allelesOfLocus; ++repeats)
        {
            auto allele = CreateObject<Allele>(store.Manager(), "Allele");
            allele->AlleleText1 = std::to_string(repeats);
            allele->AlleleReal1 = locus->FragStart - 10 + 4.05 * repeats;
            allele->AlleleReal2 = allele->AlleleReal1 - 0.5;
            allele->AlleleReal3 = allele->AlleleReal1 + 0.5;
            locus->Alleles().Add(allele);
        }
        store.Manager().Save(*locus, true);
    }
    transaction.Commit();
}

void ReadAlleles(Store& store)
{
    double sum = 0;
    const auto loci = CurrentLoci(store.Manager(), "Name");
    for (const auto& locus : loci->Members())
    {
        for (const auto& allele : As<Locus>(locus)->Alleles().Members())
            sum += As<Allele>(allele)->AlleleReal1;
    }
    Keep(sum);
}

void Check(Store& store)
{
    CheckRun run(CheckSourceOf(store), AllCheckRules());
    while (run.Step())
    {}
    Keep(static_cast<double>(run.Found().size()));
}

} // namespace

double CheckOfLoci()
{
    TemporaryStore store;
    FillWithPanels(store.Get(), manyLoci);
    return RatioOf(
        2, [&] { Check(store.Get()); }, [&] { ReadAlleles(store.Get()); });
}

double CheckByLoci()
{
    TemporaryStore few;
    TemporaryStore many;
    FillWithPanels(few.Get(), fewLoci);
    FillWithPanels(many.Get(), manyLoci);
    // As often as makes both take about as long, so that a slow moment meets both.
    constexpr int times = manyLoci / fewLoci;
    const auto checkFew = [&] {
        for (int time = 0; time < times; ++time)
            Check(few.Get());
    };
    const double growth = times * RatioOf(
                                      2, [&] { Check(many.Get()); }, checkFew);
    const auto nLogN = [](double n) { return n * std::log(n); };
    return growth / (nLogN(manyLoci) / nLogN(fewLoci));
}

} // namespace Tamrivo::Bench
