#include "core/numbers.h"
#include "tests/alleles/allele_pane_fixture.h"
#include "tests/fakes/locales.h"

namespace Tamrivo::Testing
{

namespace
{

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

TEST_F(AllelePaneTest, ARowOfASizeTakesTheRoomAndTheNameThatAreFree)
{
    Pane->SetLocus(Locus);
    for (const auto& row : Pane->Rows())
        row->AlleleReal4 = ToDouble(row->AlleleText1);
    struct Case
    {
        double Size;
        double From;
        double To;
        std::string Name;
    };
    for (const Case& one :
         {Case{62, 61.5, 62.5, "8.2"}, Case{64.8, 64.5, 65.3, "9.1"}, Case{72, 71.5, 72.5, "11"},
          Case{56, 55.5, 56.5, "7"}, Case{64.1, 64.5, 64.6, ""}})
    {
        const AlleleFields fields = Pane->FieldsOfNew(one.Size);
        EXPECT_NEAR(fields.AlleleReal2, std::min(one.From, one.Size), 1e-9) << one.Size;
        EXPECT_NEAR(fields.AlleleReal3, one.To, 1e-9) << one.Size;
        EXPECT_EQ(fields.AlleleText1, one.Name) << one.Size;
    }
    EXPECT_EQ(User::AddAlleleOfSize(Form.Alleles, 62), 2);
    EXPECT_EQ(Names(), (List{"8", "8.2", "9", "10"}));
    EXPECT_EQ(Pane->Steps(), 1U);
    User::EditAllele(Form.Alleles, 3, NameColumn, "x");
    EXPECT_EQ(Pane->FieldsOfNew(65).AlleleText1, "") << "not named by repeats";
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

} // namespace

} // namespace Tamrivo::Testing
