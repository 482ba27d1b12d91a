#pragma once

#include "contracts/allele.h"
#include "host/store/store.h"
#include "tests/server/scratch_server.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Tamrivo::Testing
{

/// The record of the failure that the statement raises; number 0 when it raises none.
inline ErrorRecord FailureOf(const std::function<void()>& statement)
{
    try
    {
        statement();
    }
    catch (const Failure& failure)
    {
        return failure.Record();
    }
    return {};
}

/// Gives each test a directory of its own.
class StoreTest : public ::testing::Test
{
protected:
    StoreTest()
    {
        std::string name = std::filesystem::temp_directory_path() / "tamrivo_test.XXXXXX";
        m_directory = mkdtemp(name.data());
    }
    ~StoreTest() override { std::filesystem::remove_all(m_directory); }

    std::string Path(const std::string& name = "store.sqlite") const { return m_directory / name; }

    /// Whether the stores of the tests stand on a server.
    static bool OnServer()
    {
        const char* backEnd = std::getenv("TAMRIVO_TEST_BACKEND");
        return backEnd && std::string(backEnd) == "postgresql";
    }

    /// Where a new store is, on the back end that is tested.
    std::string Address()
    {
        return OnServer() ? ScratchServer::Get().NewDatabase()
                          : Path("store" + std::to_string(++m_stores) + ".sqlite");
    }

    static std::shared_ptr<Locus> NewLocus(Store& store, const std::string& tag,
                                           const std::vector<std::string>& alleles = {})
    {
        auto locus = CreateObject<Locus>(store.Manager(), "Locus");
        locus->SetLocusTag(tag);
        for (const std::string& name : alleles)
        {
            auto allele = CreateObject<Allele>(store.Manager(), "Allele");
            allele->AlleleText1 = name;
            locus->Alleles().Add(allele);
        }
        return locus;
    }

    static std::shared_ptr<Locus> Save(Store& store, const std::string& tag,
                                       const std::vector<std::string>& alleles = {})
    {
        auto locus = NewLocus(store, tag, alleles);
        store.Manager().Save(*locus, true);
        return locus;
    }

    static std::vector<std::string> Names(const ObjectList& list)
    {
        std::vector<std::string> names;
        for (const auto& member : list.Members())
            names.push_back(member->Name());
        return names;
    }

    static std::vector<std::string> Loci(Store& store, const char* ordering = "Name")
    {
        return Names(*CurrentLoci(store.Manager(), ordering));
    }

private:
    std::filesystem::path m_directory;
    int m_stores = 0;
};

} // namespace Tamrivo::Testing
