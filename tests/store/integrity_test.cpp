#include "host/database/database.h"
#include "host/store/integrity.h"
#include "host/store/parameter_store.h"
#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class IntegrityTest : public StoreTest
{
protected:
    /// A store of everything, open, so that its last records have no seal yet.
    std::unique_ptr<Store> NewStore()
    {
        const std::string address = Address();
        {
            Store store(address);
            Save(store, "A", {"1", "2"})->FragEnd = 300;
            Save(store, "gone");
            store.DeleteLocus("gone");
            ParameterStore(store).Create("P", TagLists::OneEmpty);
            store.SetReasonRequired(true);
        }
        auto store = std::make_unique<Store>(address);
        store->SetReason("a test");
        Save(*store, "B");
        return store;
    }
};

TEST_F(IntegrityTest, EachDamageIsNamed)
{
    struct Case
    {
        const char* Damage;
        const char* Found; ///< Part of the sentence.
    };
    for (const auto& [damage, found] : {
             Case{"UPDATE Locus SET FragEnd = 1 WHERE LocusTag = 'A'", "\"A\" isn't as"},
             Case{"UPDATE Locus SET TagKey = 'c' WHERE LocusTag = 'A'", "the key of another"},
             Case{"UPDATE Locus SET Revision = 9 WHERE LocusTag = 'A'", "has revision 9"},
             Case{"UPDATE Allele SET AlleleReal1 = 5 WHERE Position = 2", "\"A\" isn't as"},
             Case{"DELETE FROM Allele WHERE Position = 1", "gaps"},
             Case{"UPDATE Project SET Name = 'x', NameKey = 'x'", "Project \"Default\" isn't as"},
             Case{"DELETE FROM AnalysisParameter",
                  "\"P\" is in the history and isn't in the store"},
             Case{"UPDATE Dye SET Name = 'x' WHERE Position = 1", "Dyes \"Dyes\" isn't as"},
             Case{"DELETE FROM Setting", "Setting \"reason\" is"},
             Case{"DELETE FROM History WHERE Name = 'gone' AND Operation = 'deleted'",
                  "sealed and is gone"},
             Case{"DELETE FROM Unsealed", "are to be"},
         })
    {
        const auto store = NewStore();
        ASSERT_THAT(CheckIntegrity(*store), IsEmpty());
        store->SharedDatabase().Run("", [sql = damage](soci::session& session) { session << sql; });
        EXPECT_THAT(CheckIntegrity(*store), Contains(HasSubstr(found))) << damage;
    }
}

} // namespace
} // namespace Tamrivo::Testing
