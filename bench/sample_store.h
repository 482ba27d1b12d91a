#pragma once

#include "contracts/locus.h"
#include "host/store/store.h"

#include <filesystem>
#include <memory>
#include <string>

namespace Tamrivo::Bench
{

/// How many loci a large store has.
constexpr int ManyLoci = 100'000;

/// A store in a directory of its own, which goes away with it.
class TemporaryStore
{
public:
    TemporaryStore();
    ~TemporaryStore();

    TemporaryStore(const TemporaryStore&) = delete;
    TemporaryStore& operator=(const TemporaryStore&) = delete;

    std::string Path() const { return m_directory / "store.sqlite"; }
    Store& Get() { return *m_store; }

private:
    std::filesystem::path m_directory;
    std::unique_ptr<Store> m_store;
};

/// The tag of the locus with a number; consecutive numbers are far apart in the order of tags.
std::string SampleTag(int number);

/// A new locus with every field filled as a laboratory would, without alleles.
std::shared_ptr<Locus> SampleLocus(ObjectManager& manager, int number);

/// A store of that many sample loci, made on first use and kept to the end of the program.
TemporaryStore& StoreOfLoci(int count);

} // namespace Tamrivo::Bench
