#include "tests/alleles/allele_pane_fixture.h"

#include <random>

namespace Tamrivo::Testing
{

namespace
{

TEST_F(AllelePaneTest, ABlockOfCellsOrRowsIsOneStep)
{
    Pane->SetLocus(Locus);
    const std::vector<List> cells{{"10.2", "70", "69", "71"}, {"11", "72", "71.5", "72.5"}};
    User::PasteAlleles(Form.Alleles, 3, 0, cells);
    EXPECT_EQ(Names(), (List{"8", "9", "10.2", "11"}));
    EXPECT_EQ(Pane->Rows()[2]->AlleleInt1, AlleleOrigin::Edited);
    EXPECT_EQ(TakeEvents(), (List{"edited 10.2", "list"}));
    EXPECT_THROW(User::PasteAlleles(Form.Alleles, 4, 1, {{"80"}, {"x"}}), User::Refusal);
    EXPECT_THROW(User::PasteAlleles(Form.Alleles, 4, 2, {{"80", "81", "82"}}), User::Refusal);
    EXPECT_EQ(Pane->Rows()[3]->AlleleReal1, 72) << "nothing is entered when a cell can't be";

    User::RemoveAlleles(Form.Alleles, {1, 4, 1});
    EXPECT_EQ(Names(), (List{"9", "10.2"}));
    User::UndoAlleles(Form.Alleles);
    EXPECT_EQ(Names(), (List{"8", "9", "10.2", "11"}));
    User::UndoAlleles(Form.Alleles);
    EXPECT_EQ(Names(), (List{"8", "9", "10"}));
    User::RemoveAlleles(Form.Alleles, {});
    EXPECT_FALSE(Pane->CanUndo());
    User::AddAllele(Form.Alleles);
    EXPECT_FALSE(Pane->CanRedo());
}

TEST_F(AllelePaneTest, AGenerationReplacesTheRowsAndCanBeUndone)
{
    Pane->SetLocus(Locus);
    User::EditAllele(Form.Alleles, 1, NameColumn, "mine");
    TakeEvents();
    Locus->FragEnd = 63;
    Locus->GenerateAlleles();
    Pane->RefreshAlleles();
    EXPECT_EQ(Names(), (List{"60"}));
    EXPECT_EQ(TakeEvents().front(), "list");

    User::UndoAlleles(Form.Alleles);
    EXPECT_EQ(Names(), (List{"mine", "9", "10"}));
    EXPECT_EQ(Locus->AlleleList.Count(), 3);
    User::UndoAlleles(Form.Alleles);
    EXPECT_EQ(Names(), (List{"8", "9", "10"}));
    EXPECT_THROW(User::UndoAlleles(Form.Alleles), User::Refusal);
    User::EditAllele(Form.Alleles, 1, NameColumn, "");
    Locus->GenerateAlleles();
    TakeEvents();
    Pane->RefreshAlleles();
    EXPECT_EQ(TakeEvents(), (List{"list", "valid"})) << "the generation mends the list";
    User::UndoAlleles(Form.Alleles);
    User::UndoAlleles(Form.Alleles);
    TakeEvents();

    Pane->RefreshAlleles();
    EXPECT_EQ(TakeEvents(), List{}) << "nothing has come or gone";
    EXPECT_TRUE(Pane->CanRedo());
    Locus->GenerateAlleles();
    Pane->RefreshAlleles();
    EXPECT_FALSE(Pane->CanRedo());

    User::EditAllele(Form.Alleles, 1, NameColumn, "");
    TakeEvents();
    Locus->GenerateAlleles();
    Pane->RefreshAlleles();
    EXPECT_EQ(TakeEvents(), (List{"list", "valid"})) << "it has mended the list";
}

TEST_F(AllelePaneTest, AnnouncesTheValidityOfEachLocusOnce)
{
    AddAllele("8", 90);
    Pane->SetLocus(Locus);
    EXPECT_EQ(TakeEvents(), (List{"invalid"}));
    User::EditAllele(Form.Alleles, 2, NameColumn, "");
    EXPECT_EQ(TakeEvents(), (List{"edited "})) << "invalid before and after";
    User::UndoAlleles(Form.Alleles);
    Pane->SetLocus(Locus);
    EXPECT_FALSE(Pane->CanUndo() || Pane->CanRedo()) << "changes of what was on show before";
    TakeEvents();
    Pane->SetLocus(std::make_shared<Fakes::FakeLocus>());
    EXPECT_EQ(TakeEvents(), (List{"valid"}));
}

/// Does what a person might, at random; gives whether it wasn't refused.
bool ActAtRandom(const User::AllelePaneControl& pane, std::mt19937& random)
{
    const auto below = [&](std::uint32_t end) { return static_cast<std::int32_t>(random() % end); };
    const auto row = below(static_cast<std::uint32_t>(User::AllelesOf(pane).Rows().size()) + 1);
    try
    {
        switch (below(8))
        {
        case 0: User::AddAllele(pane); break;
        case 1: User::RemoveAllele(pane, row); break;
        case 2: User::UndoAlleles(pane); break;
        case 3: User::RedoAlleles(pane); break;
        default: User::EditAllele(pane, row, AlleleColumns[below(4)], std::to_string(below(20)));
        }
        User::LeaveAllele(pane);
    }
    catch (const User::Refusal&)
    {
        return false;
    }
    return true;
}

TEST_F(AllelePaneTest, WhatWasDoneCanBeTakenBackAndDoneAgain)
{
    Pane->SetLocus(Locus);
    bool announced = true;
    const Connection watch = Pane->ValidityChanged.Connect([&](bool& isValid) {
        EXPECT_NE(announced, isValid);
        announced = isValid;
    });
    const auto start = Contents(*Pane);
    std::mt19937 random(20);
    int done = 0;
    for (int i = 0; i < 500; ++i)
    {
        done += ActAtRandom(Form.Alleles, random) ? 1 : 0;
        ASSERT_TRUE(done == 0 || std::ranges::equal(Pane->Rows(), Locus->AlleleList.Objects));
        ASSERT_TRUE(std::ranges::is_sorted(Pane->Rows(), {},
                                           [](const auto& allele) { return allele->AlleleReal1; }));
        ASSERT_EQ(announced, AlleleProblems(Pane->Rows()).empty());
    }
    EXPECT_GT(done, 250);

    while (Pane->CanRedo())
        User::RedoAlleles(Form.Alleles);
    const auto end = Contents(*Pane);
    while (Pane->CanUndo())
        User::UndoAlleles(Form.Alleles);
    EXPECT_EQ(Contents(*Pane), start);
    while (Pane->CanRedo())
        User::RedoAlleles(Form.Alleles);
    EXPECT_TRUE(std::ranges::is_permutation(Contents(*Pane), end));
}

} // namespace

} // namespace Tamrivo::Testing
