#include "bench/sample_store.h"

#include "contracts/object_manager.h"

#include <cstdlib>
#include <map>

namespace Tamrivo::Bench
{

namespace
{

std::filesystem::path MakeTemporaryDirectory()
{
    std::string name = std::filesystem::temp_directory_path() / "tamrivo_bench.XXXXXX";
    if (!mkdtemp(name.data()))
        throw std::filesystem::filesystem_error("no directory for the measurements", name,
                                                std::error_code(errno, std::generic_category()));
    return name;
}

} // namespace

TemporaryStore::TemporaryStore()
    : m_directory(MakeTemporaryDirectory()), m_store(std::make_unique<Store>(Path()))
{}

TemporaryStore::~TemporaryStore()
{
    m_store.reset();
    std::error_code ignored;
    std::filesystem::remove_all(m_directory, ignored);
}

std::string SampleTag(int number)
{
    // 7919 is a prime, so that the tags of 0 to 99,999 differ and jump about.
    const long scattered = number * 7919L % 1'000'003L;
    return "D" + std::to_string(1 + scattered % 22) + "S" + std::to_string(scattered);
}

std::shared_ptr<Locus> SampleLocus(ObjectManager& manager, int number)
{
    auto locus = CreateObject<Locus>(manager, "Locus");
    locus->SetLocusTag(SampleTag(number));
    locus->LocusName = "Locus " + std::to_string(number);
    locus->ProjectID = 1;
    locus->ProjectName = "Default";
    locus->DyeIndex = number % 4;
    locus->FragStart = 100 + number % 300;
    locus->FragEnd = locus->FragStart + 60;
    locus->RepeatUnitSequence = "AGAT";
    locus->ShortestAlleleSize = locus->FragStart;
    locus->RepeatsInShortestAllele = "7";
    locus->PrimerSet = "Set 1";
    locus->GenBank = "AC" + std::to_string(100000 + number);
    locus->FwdPrimer = "ACTGGCACAGAACAGGCACTTAGG";
    locus->RevPrimer = "GGAGGAACTGGGAACCACACAGGT";
    return locus;
}

TemporaryStore& StoreOfLoci(int count)
{
    static std::map<int, TemporaryStore> stores;
    const auto [found, isNew] = stores.try_emplace(count);
    if (isNew)
    {
        Store& store = found->second.Get();
        auto transaction = store.Begin();
        for (int number = 0; number < count; ++number)
            store.Manager().Save(*SampleLocus(store.Manager(), number), true);
        transaction.Commit();
    }
    return found->second;
}

} // namespace Tamrivo::Bench
