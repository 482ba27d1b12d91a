#include "tests/store/store_fixture.h"

#include <gmock/gmock.h>

namespace Tamrivo::Testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Gives every field a value that is neither its initial one nor that of a neighbour.
void FillEveryField(LocusFields& fields)
{
    std::int32_t number = 7;
    for (const LocusField& field : LocusFieldTable)
    {
        ++number;
        if (const auto* text = std::get_if<std::string LocusFields::*>(&field.Member))
            fields.*(*text) = "text \xC3\xA9' " + std::to_string(number);
        else if (const auto* integer = std::get_if<std::int32_t LocusFields::*>(&field.Member))
            fields.*(*integer) = -number;
        else if (const auto* real = std::get_if<double LocusFields::*>(&field.Member))
            fields.*(*real) = number + 0.1;
        else if (const auto* flag = std::get_if<bool LocusFields::*>(&field.Member))
            fields.*(*flag) = !(fields.*(*flag));
    }
}

TEST_F(StoreTest, EveryValueComesBackFromAFileOpenedAnew)
{
    AlleleFields row{1.1, 2.2, 3.3, 4.4, 5.5, "a", "b ", "", 6, 7, -8};
    LocusFields fields;
    Date saved;
    {
        Store store(Path("new/directory/a \"b\"=c.sqlite"));
        auto locus = NewLocus(store, "D3S1358 ", {""});
        FillEveryField(*locus);
        fields = *locus;
        static_cast<AlleleFields&>(*As<Allele>(locus->Alleles().Item(1))) = row;
        EXPECT_EQ(locus->LocusID(), 0);
        store.Manager().Save(*locus, true);
        EXPECT_GT(locus->LocusID(), 0);
        saved = locus->DateLastModified();
        EXPECT_TRUE(saved);
    }

    Store store("sqlite://" + Path("new/directory/a \"b\"=c.sqlite"));
    const auto locus = As<Locus>(CurrentLoci(store.Manager(), "")->Item("d3s1358"));
    EXPECT_EQ(locus->LocusTag(), "D3S1358 ");
    EXPECT_TRUE(static_cast<LocusFields&>(*locus) == fields);
    EXPECT_EQ(locus->DateLastModified(), saved);
    ASSERT_EQ(locus->Alleles().Count(), 1);
    EXPECT_TRUE(static_cast<AlleleFields&>(*As<Allele>(locus->Alleles().Item(1))) == row);
    EXPECT_THAT(Names(*Projects(store.Manager())), ElementsAre("Default"));
}

TEST_F(StoreTest, TagsAreUniqueApartFromCaseAndTrailingBlanksButForTheEmptyOne)
{
    Store store(Address());
    Save(store, "St\xC3\xA4mme");
    Save(store, "");
    Save(store, "  ");
    const auto twin = NewLocus(store, "ST\xC3\x84MME  ", {"1"});
    const ErrorRecord error = FailureOf([&] { store.Manager().Save(*twin, true); });
    EXPECT_EQ(error.Number, StoreError::NameTaken);
    EXPECT_THAT(error.Description, HasSubstr("\"ST\xC3\x84MME  \" is not stored"));
    EXPECT_EQ(twin->LocusID(), 0);
    EXPECT_FALSE(twin->DateLastModified());

    twin->SetLocusTag(" St\xC3\xA4mme");
    store.Manager().Save(*twin, true);
    EXPECT_EQ(store.FindLocus(" st\xC3\xA4mme ")->LocusID(), twin->LocusID());
    EXPECT_EQ(store.FindLocus(" "), nullptr);
    EXPECT_THAT(Loci(store), ElementsAre("", "  ", " St\xC3\xA4mme", "St\xC3\xA4mme"));
}

TEST_F(StoreTest, ASaveOverSomeoneElsesChangeIsRefused)
{
    const std::string address = Address();
    Store mine(address);
    Store theirs(address);
    Save(mine, "A", {"1"});
    const auto myLocus = mine.FindLocus("A");
    myLocus->Alleles();
    const auto theirLocus = theirs.FindLocus("A");
    theirLocus->FragEnd = 300;
    theirs.Manager().Save(*theirLocus, true);

    myLocus->FragEnd = 200;
    const Date before = myLocus->DateLastModified();
    const auto error = FailureOf([&] { mine.Manager().Save(*myLocus, true); });
    EXPECT_EQ(error.Number, StoreError::Conflict);
    EXPECT_THAT(error.Description, HasSubstr("someone else has changed it"));
    EXPECT_EQ(myLocus->DateLastModified(), before);
    EXPECT_EQ(mine.FindLocus("A")->FragEnd, 300);

    const auto unloaded = mine.FindLocus("A");
    theirs.DeleteLocus("a ");
    EXPECT_THAT(FailureOf([&] { unloaded->Alleles(); }).Description, HasSubstr("deleted"));
    EXPECT_EQ(FailureOf([&] { mine.Manager().Save(*unloaded, true); }).Number,
              StoreError::Conflict);
    EXPECT_EQ(FailureOf([&] { mine.DeleteLocus("A"); }).Number, StoreError::NotFound);

    // The number of a deleted locus is not given again.
    EXPECT_GT(Save(mine, "B")->LocusTagID(), unloaded->LocusTagID());
}

TEST_F(StoreTest, AllelesThatWereNotLoadedAreKept)
{
    Store store(Address());
    const auto saved = Save(store, "A", {"1", "2"});
    const auto found = store.FindLocus("A");
    found->SetLocusTag("B");
    store.Manager().Save(*found, true);
    EXPECT_EQ(found->LocusTagID(), saved->LocusTagID());
    EXPECT_THAT(Names(store.FindLocus("B")->Alleles()), ElementsAre("1", "2"));

    const auto emptied = store.FindLocus("B");
    while (emptied->Alleles().Count() > 0)
        emptied->Alleles().Remove(1);
    store.Manager().Save(*emptied, true);
    EXPECT_THAT(Names(store.FindLocus("B")->Alleles()), IsEmpty());
}

TEST_F(StoreTest, AQueryIsASnapshotOfCurrentLoci)
{
    Store store(Address());
    Save(store, "b");
    Save(store, "A");
    const auto hidden = NewLocus(store, "C");
    hidden->SetIsCurrent(false);
    store.Manager().Save(*hidden, true);
    EXPECT_NE(store.FindLocus("C"), nullptr);

    const auto snapshot = CurrentLoci(store.Manager(), "Name");
    EXPECT_THAT(Names(*snapshot), ElementsAre("A", "b"));
    EXPECT_THAT(Loci(store, ""), ElementsAre("b", "A"));
    Save(store, "D");
    EXPECT_EQ(snapshot->Count(), 2);

    const auto refusal = [&](const char* query, const char* ordering) {
        return FailureOf([&] { store.Manager().Query(query, "", "", ordering, 0, true); }).Number;
    };
    EXPECT_EQ(refusal("Loci", ""), ErrorNumber::InvalidArgument);
    EXPECT_EQ(refusal("CurrentLoci", "Date"), ErrorNumber::InvalidArgument);
}

TEST_F(StoreTest, ACloneIsANewLocusWithAllelesOfItsOwn)
{
    Store store(Address());
    Save(store, "A", {"1"});
    const auto source = store.FindLocus("A");
    source->FragEnd = 321;
    const auto clone = source->Clone();
    EXPECT_EQ(clone->LocusID(), 0);
    EXPECT_EQ(clone->LocusTag(), "A");
    EXPECT_EQ(clone->FragEnd, 321);
    As<Allele>(clone->Alleles().Item(1))->AlleleText1 = "changed";
    clone->FragEnd = 1;
    EXPECT_THAT(Names(source->Alleles()), ElementsAre("1"));
    EXPECT_EQ(source->FragEnd, 321);
}

TEST_F(StoreTest, ATransactionHappensWholeOrNotAtAll)
{
    Store store(Address());
    const auto hasLocus = [&](const char* tag) { return store.FindLocus(tag) != nullptr; };
    {
        auto transaction = store.Begin();
        Save(store, "lost", {"1"});
    }
    EXPECT_FALSE(hasLocus("lost"));

    auto transaction = store.Begin();
    Save(store, "A");
    EXPECT_EQ(FailureOf([&] { Save(store, "a", {"1"}); }).Number, StoreError::NameTaken);
    Save(store, "B");
    {
        auto inner = store.Begin();
        Save(store, "taken back");
    }
    transaction.Commit();
    EXPECT_THAT(Loci(store), ElementsAre("A", "B"));
}

TEST_F(StoreTest, WhatIsTakenBackCanBeDoneAgainWithTheSameObjects)
{
    Store store(Address());
    const auto changed = Save(store, "A", {"1"});
    const auto made = NewLocus(store, "B", {"1"});
    bool fails = true;
    const auto work = [&] {
        ++changed->FragEnd;
        for (const auto& locus : {changed, made})
            store.Manager().Save(*locus, true);
        if (fails)
            throw Failure(1, "Test", "Ended");
    };
    EXPECT_EQ(FailureOf([&] { store.Together(work); }).Number, 1);
    EXPECT_EQ(made->LocusID(), 0);
    fails = false;
    {
        auto outer = store.Begin();
        {
            auto inner = store.Begin();
            work();
        }
        EXPECT_EQ(made->LocusID(), 0) << "an inner one that is taken back";
        store.Together(work);
        outer.Commit();
    }
    ++changed->FragEnd;
    store.Manager().Save(*changed, true);
    EXPECT_EQ(store.FindLocus("A")->FragEnd, changed->FragEnd);
    EXPECT_EQ(store.FindLocus("B")->LocusID(), made->LocusID());
}

TEST_F(StoreTest, ProjectsAreFoundByNameOrMade)
{
    Store store(Address());
    const auto project = store.ProjectNamed("Panel 1");
    EXPECT_EQ(store.ProjectNamed("PANEL 1 ")->ProjectID(), project->ProjectID());
    EXPECT_EQ(store.FindProject("Panel 2"), nullptr);
    EXPECT_EQ(FailureOf([&] { store.ProjectNamed(" "); }).Number, ErrorNumber::InvalidArgument);
    EXPECT_THAT(Names(*Projects(store.Manager())), ElementsAre("Default", "Panel 1"));
}

TEST_F(StoreTest, AListFollowsItsMembersTags)
{
    Store store(Address());
    const auto first = NewLocus(store, "Same");
    const auto second = NewLocus(store, "same  ");
    const auto other = NewLocus(store, "Other");
    auto list = CurrentLoci(store.Manager(), "Name");
    auto twinList = CurrentLoci(store.Manager(), "Name");
    for (const auto& locus : {first, second, other, first})
        list->Add(locus);
    twinList->Add(first);
    EXPECT_EQ(list->Item("SAME"), first);

    first->SetLocusTag("New");
    EXPECT_EQ(list->Item("same "), second);
    EXPECT_EQ(list->Item("new"), first);
    EXPECT_TRUE(twinList->KeyExists("NEW "));
    twinList.reset();

    // "first" stands in the list twice: it stays findable when its first place is removed.
    list->Remove(1);
    EXPECT_EQ(list->Item("new"), first);
    list->Remove(3);
    EXPECT_FALSE(list->KeyExists("new"));
    first->SetLocusTag("Newer");
    EXPECT_FALSE(list->KeyExists("newer"));
    EXPECT_EQ(Names(*list), (std::vector<std::string>{"same  ", "Other"}));

    EXPECT_EQ(FailureOf([&] { list->Item("Same2"); }).Number, ErrorNumber::InvalidArgument);
    EXPECT_EQ(FailureOf([&] { list->Remove(0); }).Number, ErrorNumber::InvalidArgument);
    EXPECT_EQ(FailureOf([&] { list->Add(store.Manager().Create("Allele")); }).Number,
              ErrorNumber::NoObject);
}

} // namespace
} // namespace Tamrivo::Testing
