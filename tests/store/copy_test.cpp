#include "host/database/database.h"
#include "host/store/history.h"
#include "host/store/parameter_store.h"
#include "host/store/store_backup.h"
#include "host/store/store_copy.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::HasSubstr;

namespace fs = std::filesystem;

class CopyTest : public StoreTest
{
protected:
    /// Everything that a store can hold, with texts that a form of writing could spoil.
    static void Fill(Store& store)
    {
        const auto locus = NewLocus(store, "A \"\\\t\xC3\xA4", {"9.3", "OL", ""});
        As<Allele>(locus->Alleles().Item(1))->AlleleReal1 = 1.0 / 3;
        locus->ProjectID = store.ProjectNamed("Casework")->ProjectID();
        store.Manager().Save(*locus, true);
        Save(store, "gone", {"1"});
        store.DeleteLocus("gone");
        ParameterStore parameters(store);
        const auto parameter = parameters.Create("P", TagLists::OneEmpty);
        auto entry = parameters.NewEntry();
        entry->SetTagName("A \"\\\t\xC3\xA4");
        entry->Load();
        parameter->FragAnalysisParam().TagList->Add(entry);
        parameters.Save(*parameter);
        store.SetDyes(
            Dyes({{"blue", "FAM"}, {"green", ""}, {"yellow", ""}, {"red", ""}, {"orange", ""}}));
        store.SetReasonRequired(true);
    }

    static void ExpectWhole(Store& copy, Store& original)
    {
        EXPECT_EQ(FirstDifference(copy, original), "");
        EXPECT_EQ(copy.Identity(), original.Identity());
        EXPECT_EQ(History(copy.SharedDatabase()).Verify().Number, 0);
        copy.SetReason("a test");
        copy.RestoreLocus("gone", "1", "");
        const auto made = Save(copy, "new");
        EXPECT_GT(made->LocusID(), copy.FindLocus("gone")->LocusID()) << "a number is given once";
    }
};

TEST_F(CopyTest, AStoreIsCarriedWholeBetweenBackEnds)
{
    Store store(Address());
    Fill(store);
    Store file(Path("copy.sqlite"));
    CopyStore(store, file);
    Store back(Address());
    CopyStore(file, back);
    EXPECT_EQ(FirstDifference(store, file), "");
    ExpectWhole(back, store);

    EXPECT_THAT(FailureOf([&] { CopyStore(store, file); }).Description, HasSubstr("isn't empty"));
    EXPECT_EQ(FirstDifference(store, file), "") << "what was refused has changed nothing";
}

TEST_F(CopyTest, AStoreIsNotCopiedOntoItself)
{
    const std::string address = Address();
    Store store(address);
    std::string other = address + "&application_name=other";
    if (!OnServer())
    {
        other = Path("link.sqlite");
        fs::create_symlink(address, other);
        EXPECT_THAT(FailureOf([&] { BackUpStore(store, other, true); }).Description,
                    HasSubstr("the store itself"));
    }
    Store same(other);
    EXPECT_THAT(FailureOf([&] { CopyStore(store, same); }).Description,
                HasSubstr("the store itself"));
}

TEST_F(CopyTest, ABackupIsAStoreOfItsOwn)
{
    Store store(Address());
    Fill(store);
    const std::string file = Path("backup.sqlite");
    std::ofstream(file) << "of the lab";
    EXPECT_THAT(FailureOf([&] { BackUpStore(store, file, false); }).Description,
                HasSubstr("--force"));
    EXPECT_EQ(fs::file_size(file), 10U);
    BackUpStore(store, file, true);
    Store backup(file);
    ExpectWhole(backup, store);
    EXPECT_FALSE(fs::exists(file + ".part"));
}

TEST_F(CopyTest, ABackupThatFailsLeavesWhatWasThere)
{
    Store store(Address());
    Fill(store);
    const std::string file = Path("backup.sqlite");
    std::ofstream(file) << "of the lab";
    fs::create_directory(file + ".part");
    std::ofstream(file + ".part/occupied") << "";
    EXPECT_NE(FailureOf([&] { BackUpStore(store, file, true); }).Number, 0);
    fs::remove_all(file + ".part");
    // A person ends it.
    {
        const Connection ending = store.OnProgress([] { throw Failure(1, "Test", "Ended"); });
        EXPECT_EQ(FailureOf([&] { BackUpStore(store, file, true); }).Description, "Ended");
    }
    EXPECT_EQ(fs::file_size(file), 10U);
    EXPECT_FALSE(fs::exists(file + ".part"));
    EXPECT_THAT(FailureOf([&] { BackUpStore(store, Path("none") + "/x/y", false); }).Description,
                HasSubstr(OnServer() ? "" : "not written"));
}

} // namespace
} // namespace Tamrivo::Testing
