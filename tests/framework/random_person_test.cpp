#include "controls/form_user.h"
#include "core/text.h"
#include "host/database/database.h"
#include "host/framework/host_application.h"
#include "host/framework/parameter_page.h"
#include "host/framework/wizard_session.h"
#include "tests/selector/grid_readings.h"
#include "tests/store/store_fixture.h"

#include <chrono>
#include <random>

namespace Tamrivo::Testing
{
namespace
{

/// Someone who does at random anything that can be done from a parameter's page on, in wizards,
/// menus and message boxes too, and after each action checks what must always hold. Meanwhile
/// others store and delete loci. The store's clock goes on by chance too, since a grid can be
/// sorted by date: so a run depends on its start value alone.
class RandomPerson : public StoreTest, public FrontEnd
{
protected:
    RandomPerson()
    {
        setenv("XDG_STATE_HOME", Path("state").c_str(), 1);
        m_store.SharedDatabase().Now = [this] { return m_now += std::chrono::seconds(Below(3)); };
        for (const char* tag : {"A", "B", "C", "D"})
            Save(m_store, tag);
        m_host.Parameters().Create("Mine", TagLists::OneEmpty);
        Open();
    }

    /// A random action from the parameter's page on.
    void Step()
    {
        m_editorHasRun = false;
        if (Try([this] { Act(); }))
            m_hasNewRow = m_editorHasRun;
        Check();
        if (Below(10) == 0)
            Meddle();
        if (Below(20) == 0)
            SaveSelection();
        if (Below(60) == 0)
            Open();
    }

    std::map<std::string, std::size_t> m_ended; ///< How often what was shown has ended how.

private:
    int Below(std::size_t bound) { return static_cast<int>(m_random() % bound); }

    std::string AnyText()
    {
        constexpr const char* texts[] = {"A", "b", "C ", "d", "E", "", "1.5", "400"};
        return texts[Below(std::size(texts))];
    }

    /// Gives whether the person could do it. What the pages and the store object to is no fault.
    bool Try(const std::function<void()>& action)
    {
        try
        {
            action();
        }
        catch (const User::Refusal&)
        {
            return false;
        }
        catch (const Failure& failure)
        {
            ShowFailure(failure.Record());
        }
        return true;
    }

    void Open()
    {
        m_page.reset();
        m_page = std::make_unique<ParameterPage>(m_host, m_host.Parameters().Open("Mine"));
        m_editSwitchedOff = m_hasNewRow = false;
    }

    void Act()
    {
        STRLocusTagSelector& selector = m_page->Selector();
        User::GridControl& grid = Below(2) == 0 ? selector.gridAvailable : selector.gridSelected;
        const std::int32_t row = Below(static_cast<std::size_t>(grid->RowCount()) + 1);
        const std::int32_t column = 1 + Below(2);
        CommandButton* const buttons[] = {
            &selector.cmdAddSingle, &selector.cmdRemoveSingle, &selector.cmdEditSTRLocus,
            &selector.cmdNewSTRLocus, Below(9) == 0 ? &selector.cmdAddAll : &selector.cmdRemoveAll};
        switch (Below(11))
        {
        case 0: return User::DoubleClick(grid, row, column);
        case 1: return User::Click(grid, row, column);
        case 2:
        case 3: return User::Toggle(grid, row);
        case 4: return User::ExtendTo(grid, row);
        case 5:
        case 6: return User::RightClick(grid, row, column);
        case 7: return User::GotFocus(grid);
        case 8: m_editSwitchedOff = true; return selector.SetEnabled(Below(3) != 0);
        case 9: return User::Click(selector.cmdEditSTRLocus);
        default: return User::Click(*buttons[Below(std::size(buttons))]);
        }
    }

    /// What others do to the store.
    void Meddle()
    {
        const std::string tag = AnyText();
        if (const auto locus = m_store.FindLocus(tag); locus && Below(3) == 0)
            m_store.Manager().Save(*locus, true);
        else if (locus)
            m_store.DeleteLocus(tag);
        else if (!tag.empty())
            Save(m_store, tag);
    }

    void RunWizard(WizardSession& wizard) override
    {
        for (int actions = 0; actions < 40 && !wizard.HasEnded() && !HasFailure(); ++actions)
        {
            Try([&] { ActIn(wizard); });
            Check();
        }
        if (!wizard.HasEnded())
            wizard.Cancel();
        m_editorHasRun = true;
        ++m_ended[wizard.Name() + (wizard.IsCancelled() ? " cancelled" : " finished")];
    }

    void ActIn(WizardSession& wizard)
    {
        User::FormUser person(wizard.Page());
        const auto& controls = wizard.Page().Controls();
        const std::string& control =
            controls[static_cast<std::size_t>(Below(controls.size()))]->Name();
        switch (Below(12))
        {
        case 0: return wizard.Cancel();
        case 1:
        case 2: return static_cast<void>(wizard.Finish());
        case 3:
        case 8: return Meddle();
        case 4:
        case 5: return person.Click("cmdSaveAs");
        case 6: return person.Paste("txtLocusTag", AnyText());
        case 7: return person.Paste("txtLocusName", AnyText());
        case 9: return person.Leave(control);
        case 10: return person.Up(control);
        default: return person.Click(control);
        }
    }

    void ShowMenu(UserControl&, Menu& menu) override
    {
        Check();
        const auto& items = menu.Children();
        Control& item = *items[static_cast<std::size_t>(Below(items.size()))];
        const bool isPicked =
            Below(3) != 0 && Try([&] { User::Click(dynamic_cast<MenuItem&>(item)); });
        ++m_ended[menu.Name() + (isPicked ? " picked" : " dismissed")];
    }

    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string&) override
    {
        Check();
        ++m_ended["message " + std::to_string(kind)];
        if (kind == MessageKind::ExclamationYesNo)
            return Below(2) == 0 ? MessageAnswer::Yes : MessageAnswer::No;
        EXPECT_EQ(kind, MessageKind::Exclamation) << text;
        return MessageAnswer::Ok;
    }

    void ShowReport(const FailureReport& report) override { ShowFailure(report.Error); }
    void ShowFailure(const ErrorRecord& error) override
    {
        constexpr std::int32_t expected[] = {StoreError::Conflict, StoreError::NameTaken,
                                             ErrorNumber::NotANumber, ErrorNumber::OutOfRange,
                                             ErrorNumber::InvalidArgument};
        EXPECT_TRUE(std::ranges::count(expected, error.Number)) << error.Description;
    }

    /// Saves the parameter: each tag once, without those that are gone, of which the person is
    /// told.
    void SaveSelection()
    {
        std::vector<std::int32_t> found;
        std::size_t messages = m_ended["message 48"];
        for (const std::string& tag : TagsOf(m_page->Selector().gridSelected))
        {
            const auto locus = m_store.FindLocus(tag);
            if (!locus)
                ++messages;
            else if (std::ranges::count(found, locus->LocusTagID()) == 0)
                found.push_back(locus->LocusTagID());
        }
        m_page->Save();
        m_saved = found;
        EXPECT_EQ(m_ended["message 48"], messages);
        Check();
    }

    std::vector<std::int32_t> StoredSelection()
    {
        std::vector<std::int32_t> tagIDs;
        const auto parameter = m_host.Parameters().Open("Mine");
        for (const auto& entry : parameter->FragAnalysisParam().LocusTagList(0).Entries())
            tagIDs.push_back(entry->TagID(0));
        return tagIDs;
    }

    void Check()
    {
        EXPECT_EQ(StoredSelection(), m_saved);

        STRLocusTagSelector& selector = m_page->Selector();
        std::vector<std::string> shown = TagsOf(selector.gridAvailable);
        const std::vector<std::string> chosen = TagsOf(selector.gridSelected);
        shown.insert(shown.end(), chosen.begin(), chosen.end());
        std::vector<std::string> known = Names(*selector.AllLocusTags());
        for (auto* tags : {&shown, &known})
        {
            // An edit stores the tag without the blanks at its end, which the grid goes on showing.
            std::ranges::transform(*tags, tags->begin(),
                                   [](const std::string& tag) { return TrimRight(tag); });
            std::ranges::sort(*tags);
        }
        EXPECT_EQ(shown, known);
        EXPECT_EQ(static_cast<std::size_t>(selector.NumberOfSelectedLocusTags()), chosen.size());
        EXPECT_EQ(selector.SelectedLocusTags().Count(), chosen.size());

        if (!selector.Enabled())
        {
            EXPECT_EQ(EnabledButtons(selector), "");
            return;
        }
        const std::size_t left = HighlightOf(selector.gridAvailable).size();
        const std::size_t right = HighlightOf(selector.gridSelected).size();
        EXPECT_TRUE(left == 0 || right == 0);
        // A new locus shows before the buttons follow.
        EXPECT_TRUE(m_hasNewRow || selector.cmdAddAll.Enabled() == (known.size() > chosen.size()));
        EXPECT_EQ(selector.cmdAddSingle.Enabled(), left > 0);
        EXPECT_EQ(selector.cmdRemoveAll.Enabled(), !chosen.empty());
        EXPECT_EQ(selector.cmdRemoveSingle.Enabled(), right > 0);
        const bool isOne = left + right == 1;
        if (selector.cmdEditSTRLocus.Enabled() || !isOne)
            m_editSwitchedOff = false;
        EXPECT_EQ(selector.cmdEditSTRLocus.Enabled(), isOne && !m_editSwitchedOff);
    }

    std::mt19937 m_random{20};
    std::chrono::sys_seconds m_now = std::chrono::sys_days(std::chrono::year(2026) / 1 / 1);
    Store m_store{Address()};
    Transaction m_unwritten = m_store.Begin(); ///< Spares the disk.
    HostApplication m_host{m_store, *this};
    std::unique_ptr<ParameterPage> m_page;
    std::vector<std::int32_t> m_saved; ///< `LocusTagEntry::TagID` of the stored selection.
    bool m_editorHasRun = false;       ///< In the present action.
    bool m_hasNewRow = false;          ///< The last action may have added a row.
    bool m_editSwitchedOff = false;    ///< By the selector's switch, until the next selection.
};

TEST_F(RandomPerson, FindsEveryTagInOneGridAndTheButtonsInOrder)
{
    // A server takes its time for each statement; so short a run needn't reach everything.
    const int steps = OnServer() ? 2'500 : 8'000;
    for (int step = 0; step < steps && !HasFailure(); ++step)
    {
        SCOPED_TRACE(step);
        Step();
    }
    if (OnServer())
        return;
    for (const char* end :
         {"LocusEditor finished", "LocusEditor cancelled", "SaveLocusTagAs finished",
          "SaveLocusTagAs cancelled", "mnuSTRLocusAvailable picked", "mnuSTRLocusColumn picked",
          "mnuSTRLocusSelected dismissed", "message 48", "message 52"})
        EXPECT_GT(m_ended[end], 0U) << end;
}

} // namespace
} // namespace Tamrivo::Testing
