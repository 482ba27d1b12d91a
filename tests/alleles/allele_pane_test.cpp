#include "controls/user.h"
#include "controls/user_control.h"
#include "host/alleles/allele_pane.h"
#include "host/alleles/pane_user.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/locales.h"

#include <gtest/gtest.h>

#include <random>

namespace Tamrivo
{

namespace
{

const AlleleColumn& NameColumn = AlleleColumns[0];
const AlleleColumn& SizeColumn = AlleleColumns[1];
const AlleleColumn& FromColumn = AlleleColumns[2];
const AlleleColumn& ToColumn = AlleleColumns[3];
const AlleleColumn& VirtualColumn = AlleleColumns[4];

std::vector<AlleleFields> Contents(const AllelePane& pane)
{
    std::vector<AlleleFields> contents;
    for (const auto& row : pane.Rows())
        contents.push_back(*row);
    return contents;
}

class PaneForm : public UserControl
{
public:
    explicit PaneForm(const std::shared_ptr<AllelePane>& pane)
        : UserControl("PaneForm", 0, 0),
          Alleles({.Name = "ctlPaneAlleleList", .In = *this}, {.Object = pane})
    {}

    User::AllelePaneControl Alleles;
};

class AllelePaneTest : public testing::Test
{
protected:
    AllelePaneTest()
    {
        Locus->RepeatLength = 4;
        Locus->ShortestAlleleSize = 60;
        Locus->SystemConfInt = 0.5;
        AddAllele("10", 68);
        AddAllele("8", 60);
        AddAllele("9", 64);
        m_connections.On(Pane->AlleleEdited, [this](Allele& allele) {
            Events.push_back("edited " + allele.AlleleText1);
        });
        m_connections.On(Pane->ListChanged, [this] { Events.push_back("list"); });
        m_connections.On(Pane->ValidityChanged, [this](bool& isValid) {
            Events.push_back(isValid ? "valid" : "invalid");
        });
    }

    void AddAllele(const std::string& name, double size)
    {
        const auto allele = Locus->AddAllele(name);
        allele->AlleleReal1 = size;
        allele->AlleleReal2 = size - 0.5;
        allele->AlleleReal3 = size + 0.5;
    }

    /// The names of the rows in their order.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& row : Pane->Rows())
            names.push_back(row->AlleleText1);
        return names;
    }

    std::vector<std::string> TakeEvents() { return std::exchange(Events, {}); }

    using List = std::vector<std::string>;

    Fakes::FakeHost Host;
    std::shared_ptr<Fakes::FakeLocus> Locus = std::make_shared<Fakes::FakeLocus>();
    std::shared_ptr<AllelePane> Pane = std::make_shared<AllelePane>(Host);
    PaneForm Form{Pane};
    List Events;
    Connections m_connections;
};

TEST_F(AllelePaneTest, ShowsTheRowsBySizeAndLeavesTheLocusAlone)
{
    Pane->SetLocus(Locus);
    EXPECT_EQ(Names(), (List{"8", "9", "10"}));
    EXPECT_EQ(As<Allele>(Locus->AlleleList.Item(1))->AlleleText1, "10");
    EXPECT_EQ(TakeEvents(), List{});

    Pane->SetLocus(nullptr);
    EXPECT_EQ(Names(), List{});
    EXPECT_THROW(User::AddAllele(Form.Alleles), User::Refusal);
}

TEST_F(AllelePaneTest, EditsReachTheLocusAndKeepTheOrder)
{
    Pane->SetLocus(Locus);
    User::EditAllele(Form.Alleles, 1, NameColumn, " 8.3 ");
    EXPECT_EQ(TakeEvents(), (List{"edited 8.3"}));
    User::EditAllele(Form.Alleles, 1, ToColumn, "75");
    EXPECT_EQ(TakeEvents(), (List{"edited 8.3", "invalid"}));
    User::EditAllele(Form.Alleles, 1, SizeColumn, "72");
    EXPECT_EQ(Names(), (List{"8.3", "9", "10"})) << "the row stays until it is left";
    User::EditAllele(Form.Alleles, 1, FromColumn, "71.5");
    EXPECT_EQ(TakeEvents(), (List{"edited 8.3", "edited 8.3", "valid"}));
    User::LeaveAllele(Form.Alleles);
    EXPECT_EQ(Names(), (List{"9", "10", "8.3"}));
    EXPECT_TRUE(std::ranges::equal(Pane->Rows(), Locus->AlleleList.Objects));
    EXPECT_EQ(TakeEvents(), List{}) << "the edit has been told";

    const auto edited = As<Allele>(Locus->AlleleList.Item("8.3"));
    EXPECT_EQ(edited->AlleleReal1, 72);
    EXPECT_EQ(edited->AlleleInt1, AlleleOrigin::Edited);
    EXPECT_EQ(As<Allele>(Locus->AlleleList.Item("9"))->AlleleInt1, AlleleOrigin::Generated);

    User::EditAllele(Form.Alleles, 3, SizeColumn, "72.0");
    EXPECT_EQ(TakeEvents(), List{}) << "the value is the same";
}

TEST_F(AllelePaneTest, AddsAndRemovesRows)
{
    Pane->SetLocus(Locus);
    EXPECT_EQ(User::AddAllele(Form.Alleles), 4);
    EXPECT_EQ(TakeEvents(), (List{"list", "invalid"})) << "the name is missing";
    const auto added = std::dynamic_pointer_cast<Fakes::FakeAllele>(Pane->Rows()[3]);
    EXPECT_EQ(added->Owner.lock(), Locus);
    EXPECT_EQ(added->AlleleReal1, 72);
    EXPECT_EQ(added->AlleleReal2, 71.5);
    EXPECT_EQ(added->AlleleReal3, 72.5);
    EXPECT_EQ(added->AlleleInt1, AlleleOrigin::Edited);
    EXPECT_EQ(Locus->AlleleList.Count(), 4);

    User::EditAllele(Form.Alleles, 4, NameColumn, "11");
    User::RemoveAllele(Form.Alleles, 2);
    EXPECT_EQ(TakeEvents(), (List{"edited 11", "valid", "list"}));
    EXPECT_EQ(Names(), (List{"8", "10", "11"}));
    EXPECT_FALSE(Locus->AlleleList.KeyExists("9"));

    EXPECT_EQ(User::AddAllele(Form.Alleles, 2), 3);
    EXPECT_EQ(Pane->Rows()[2]->AlleleReal1, 70) << "half-way from 68 to 72";
    Locus->UserSpecifiedConfInt = 1;
    Locus->ConfInt = 0.25;
    Locus->RepeatsInShortestAllele = "7";
    User::RemoveAlleles(Form.Alleles, {1, 2, 3, 4});
    User::AddAllele(Form.Alleles);
    User::AddAllele(Form.Alleles);
    EXPECT_EQ(Pane->Rows()[0]->AlleleReal1 + Pane->Rows()[0]->AlleleReal3, 60 + 60.25);
    EXPECT_EQ(Pane->Rows()[1]->AlleleReal4, 8);
}

TEST_F(AllelePaneTest, RepeatsFollowNameAndSizeInOneStep)
{
    Pane->SetLocus(Locus);
    Locus->RepeatsInShortestAllele = "8";
    const auto add = User::AddAllele(Form.Alleles);
    for (const auto& [column, text, repeats] :
         std::initializer_list<std::tuple<const AlleleColumn*, const char*, double>>{
             {&NameColumn, "9.2", 9.2},
             {&NameColumn, "9.4", 11}, // No count: four nt are a repeat.
             {&SizeColumn, "66", 9.2},
             {&NameColumn, "66", 9.2}, // A size.
             {&NameColumn, "OL", 9.2},
             {&SizeColumn, "55", 6.3},
             {&NameColumn, "10", 10},
             {&VirtualColumn, " True ", 10}})
    {
        User::EditAllele(Form.Alleles, add, *column, text);
        EXPECT_DOUBLE_EQ(Pane->Rows().back()->AlleleReal4, repeats) << text;
    }
    EXPECT_EQ(Pane->Rows().back()->AlleleInt2, 1);
    User::UndoAlleles(Form.Alleles);
    User::UndoAlleles(Form.Alleles);
    EXPECT_EQ(Pane->Rows().front()->AlleleText1 + " at 55", "OL at 55") << "and is left";
    EXPECT_DOUBLE_EQ(Pane->Rows().front()->AlleleReal4, 6.3);

    Pane->Rows().front()->AlleleReal4 = 0;
    User::EditAllele(Form.Alleles, 1, NameColumn, "X");
    EXPECT_EQ(Pane->Rows().front()->AlleleReal4, 0) << "what isn't known isn't invented";
    Locus->AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
    User::EditAllele(Form.Alleles, 2, NameColumn, "2");
    EXPECT_EQ(Pane->Rows()[1]->AlleleReal4, 0) << "numbers from 1 on, repeats from 8 on";
}

TEST_F(AllelePaneTest, WarnsOfBinsWithoutWidthAndStaysValid)
{
    Pane->SetLocus(Locus);
    User::EditAllele(Form.Alleles, 2, FromColumn, "64");
    User::EditAllele(Form.Alleles, 2, ToColumn, "64");
    EXPECT_EQ(Pane->Warnings(), (std::vector<AlleleProblem>{{2, "The bin has no width"}}));
    EXPECT_TRUE(Pane->IsValid());
}

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

TEST_F(AllelePaneTest, RefusesWhatCantBe)
{
    const Fakes::LocaleGuard decimalComma(L',', L'.');
    Pane->SetLocus(Locus);
    const auto before = Contents(*Pane);
    const auto refusal = [&](std::int32_t row, const AlleleColumn& column,
                             const std::string& text) {
        try
        {
            User::EditAllele(Form.Alleles, row, column, text);
        }
        catch (const User::Refusal& refused)
        {
            return std::string(refused.what());
        }
        return std::string("not refused");
    };
    EXPECT_EQ(refusal(1, SizeColumn, "60.5"), "Row 1, Size (nt): \"60.5\" is not a number");
    EXPECT_EQ(refusal(3, ToColumn, ""), "Row 3, Bin to (nt): \"\" is not a number");
    EXPECT_EQ(refusal(2, SizeColumn, "1e999"), "Row 2, Size (nt): \"1e999\" is not a number");
    EXPECT_EQ(refusal(1, NameColumn, "a\tb"),
              "Row 1, Name: A name can't hold tabs, line ends or other control characters");
    EXPECT_EQ(refusal(1, NameColumn, std::string(10000, 'x')),
              "Row 1, Name: A name can't be longer than 128 characters");
    for (const std::int32_t row : {-1, 0, 4})
        EXPECT_EQ(refusal(row, NameColumn, "x"),
                  "The allele list has no row " + std::to_string(row) + "; it has 3");
    Form.Alleles.SetEnabled(false);
    EXPECT_EQ(refusal(1, NameColumn, "x"), "ctlPaneAlleleList is disabled");
    EXPECT_THROW(User::AddAllele(Form.Alleles), User::Refusal);
    EXPECT_EQ(Contents(*Pane), before);
    EXPECT_EQ(TakeEvents(), List{});

    Form.Alleles.SetEnabled(true);
    EXPECT_EQ(refusal(1, SizeColumn, "60,25"), "not refused");
    EXPECT_EQ(SizeColumn.Text(*Pane->Rows()[0]), "60,25");
}

TEST_F(AllelePaneTest, AFailingStoreChangesNothing)
{
    Pane->SetLocus(Locus);
    Host.Objects.Before = [](const std::string& request) {
        throw Failure(ErrorNumber::Application, "store", request);
    };
    EXPECT_THROW(User::AddAllele(Form.Alleles), Failure);
    EXPECT_EQ(Names(), (List{"8", "9", "10"}));
    EXPECT_FALSE(Pane->CanUndo());
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

} // namespace Tamrivo
