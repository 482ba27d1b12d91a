#include "core/numbers.h"
#include "tests/editor/editor_test.h"
#include "tests/fakes/locales.h"

#include <cmath>
#include <optional>
#include <random>

namespace Tamrivo
{
namespace
{

using Form = LocusEditorForm;

constexpr unsigned StartValue = 20;
constexpr int Sessions = 400;
constexpr int ActionsInSession = 300;

const std::string Texts[] = {"",
                             "0",
                             "1",
                             "7",
                             "60",
                             "640",
                             "1.5",
                             "2.5",
                             ".",
                             "-5",
                             "1e3",
                             "9e9",
                             "1,5",
                             "ab",
                             "nan",
                             "   ",
                             "99999999999",
                             "TPOX",
                             "Z",
                             " 7 ",
                             "vwa",
                             "\xFF",
                             "0.5",
                             "1.",
                             "2 2",
                             "\u200F",
                             "\U0001F9EC",
                             "0x1\n23",
                             std::string(10000, '9')};

/// What a field holds once the focus has left it. `Resting` is the text in place of no number,
/// which may lie outside the range.
struct KeptRange
{
    TextField Form::*Field;
    double Low;
    double High;
    const char* Resting;
};

constexpr KeptRange KeptRanges[] = {
    {&Form::txtFragStart, 0, 999, "0"},     {&Form::txtFragEnd, 0, 999, "0"},
    {&Form::txtRepeat, 1, 255, "0"},        {&Form::txtRepeatsInShortestAllele, 1, 1000, "0"},
    {&Form::txtStutterWidth, 1, 10, "1"},   {&Form::txtRelStutter, 1, 100, "1"},
    {&Form::txtMaxSpurHeight, 1, 100, "1"}, {&Form::txtPloidy, 2, 10, "1"},
};

/// One opened page and a person who does anything that can be done. What was done is kept in the
/// words of the shell, so that it can be replayed there.
class Session : public EditorHost
{
public:
    explicit Session(std::mt19937& random) : m_random(random)
    {
        Locus->PrimerLabelTypeID = PrimerLabel::Forward;
        Locus->UserSpecifiedConfInt = Pick(3);
        Locus->SearchForStutter = Pick(2) == 0;
        Locus->AlleleNamingConventionTypeID = AlleleNamingConvention::NominalSize + Pick(3);
        m_mode = static_cast<Mode>(Pick(6));
        Host.Launcher.Run = [this](ParameterCollection& parameters) {
            const auto created =
                ParameterItem<std::shared_ptr<Tamrivo::Locus>>(parameters, "SaveLocusAs");
            created->SetLocusTag(created->LocusTag() + (Pick(2) == 0 ? "'" : ""));
            return Pick(3) != 0;
        };
        static constexpr const char* openings[] = {
            "new",           "edit TPOX",           "edit \"\"",
            "new --binning", "edit TPOX --binning", "edit \"\" --binning"};
        Note(openings[static_cast<int>(m_mode)]);
        Open(m_mode);
        m_fields = *Locus;
    }

    void Act()
    {
        m_mayWrite = m_mayStore = false;
        m_reports = Reports().size();
        m_left = nullptr;
        try
        {
            if (Pick(12) == 0)
                ActAsHost();
            else
                while (!ActOn(PickControl()))
                {}
        }
        catch (const User::Refusal& refusal)
        {
            Note("    # refused: " + std::string(refusal.what()));
            m_left = nullptr;
        }
        catch (const Failure& failure)
        {
            Note("    # failed: " + failure.Record().Description);
            EXPECT_TRUE(m_mayFail);
        }
        Check();
    }

    const std::string& Log() const { return m_log; }

private:
    int Pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    Control& PickControl()
    {
        const auto& controls = Page.Controls();
        return *controls[static_cast<std::size_t>(Pick(static_cast<int>(controls.size())))];
    }
    const std::string& PickText() { return Texts[Pick(std::size(Texts))]; }

    void Note(const std::string& command) { m_log += command + "\n"; }
    void Note(const std::string& command, const Control& control, const std::string& text)
    {
        // No field takes more characters than these.
        const std::string line = text.substr(0, std::min(text.find('\n'), std::size_t{130}));
        Note(command + " " + control.Name() + " \"" + line + "\"");
    }

    void ActAsHost()
    {
        m_mayFail = true;
        bool valid = Pick(4) != 0;
        switch (Pick(5))
        {
        case 0:
            Note("activate");
            m_mayWrite = true;
            return Host.Base->Activate();
        case 1:
            Note("deactivate");
            m_mayWrite = true;
            return Host.Base->Deactivate();
        case 2:
            Note("validate");
            Host.Base->Ask();
            return;
        case 3:
            Note(valid ? "# the list is valid" : "# the list is not valid");
            return Host.Pane->ValidityChanged(valid);
        default:
            Note("finish");
            m_mayWrite = m_mayStore = true;
            return Host.Base->Save();
        }
    }

    /// Gives whether there is anything that a person could do with the control.
    bool ActOn(Control& control)
    {
        // The start field validates the page at each change, without a guard of its own.
        m_mayFail = &control == &Page.txtStartAtNumeric || &control == &Page.udStartAtNumeric;
        if (auto* field = dynamic_cast<TextField*>(&control))
            ActOnField(*field);
        else if (auto* spin = dynamic_cast<SpinButton*>(&control))
            Turn(*spin);
        else if (auto* combo = dynamic_cast<ComboBox*>(&control))
            Choose(*combo);
        else if (auto* box = dynamic_cast<CheckBox*>(&control))
            Click(*box);
        else if (auto* option = dynamic_cast<OptionButton*>(&control))
            Click(*option);
        else if (auto* button = dynamic_cast<CommandButton*>(&control))
            Click(*button);
        else
            return false;
        return true;
    }

    void ActOnField(TextField& field)
    {
        const std::string& text = PickText();
        switch (Pick(4))
        {
        case 0: Note("type", field, text); return User::Type(field, text);
        case 1:
            Note("press " + field.Name() + " 8");
            User::Press(field, User::Backspace);
            return;
        case 2: Note("paste", field, text); return User::Paste(field, text);
        default:
            Note("leave " + field.Name());
            m_left = &field;
            return User::Leave(field);
        }
    }

    void Turn(SpinButton& spin)
    {
        const bool up = Pick(2) == 0;
        Note((up ? "up " : "down ") + spin.Name());
        up ? User::Up(spin) : User::Down(spin);
    }

    void Choose(ComboBox& combo)
    {
        const std::string text = combo.List(Pick(combo.ListCount()));
        Note("choose", combo, text);
        User::Choose(combo, text);
    }

    template <class Button>
    void Click(Button& button)
    {
        Note("click " + button.Name());
        const Control* clicked = &button;
        m_mayStore = clicked == &Page.cmdSaveAs;
        m_mayWrite =
            m_mayStore || (clicked == &Page.cmdGenAlleleList && m_mode == Mode::NewBinning);
        User::Click(button);
    }

    void Check()
    {
        CheckLeftField();
        EXPECT_EQ(Page.txtStartAtAlphanumeric.Enabled(), Page.optAlleleNaming.Item(1).Value());
        EXPECT_EQ(Page.txtStartAtNumeric.Enabled(), Page.optAlleleNaming.Item(2).Value());
        EXPECT_EQ(Page.udStartAtNumeric.Enabled(), Page.optAlleleNaming.Item(2).Value());
        EXPECT_EQ(std::ranges::count_if(Page.optAlleleNaming, &OptionButton::Value), 1);
        EXPECT_EQ(Page.txtStutterWidth.Enabled(), Page.chkSearchForStutter.Value() == 1);
        EXPECT_EQ(Page.UpDown3.Enabled(), Page.chkDetectSpuriousPeaks.Value() == 1);
        EXPECT_GE(Page.cmbProjects.ListIndex(), 0);
        EXPECT_GE(Page.cmbDye.ListIndex(), 0);

        for (const Control* control : Page.Controls())
        {
            const auto* field = dynamic_cast<const TextField*>(control);
            const bool mayBeMarked = field == &Page.txtLocusTag || field == &Page.txtFragStart ||
                                     field == &Page.txtFragEnd || field == &Page.txtStartAtNumeric;
            if (field == nullptr)
                continue;
            EXPECT_EQ(field->BackColor() == Color::Yellow, !field->ToolTipText().empty());
            EXPECT_TRUE(mayBeMarked || field->ToolTipText().empty()) << field->Name();
        }

        if (m_mayWrite)
            m_fields = *Locus;
        if (m_mayStore)
            m_saved = Host.Objects.Saved.size();
        EXPECT_EQ(static_cast<const LocusFields&>(*Locus), m_fields);
        EXPECT_EQ(Host.Objects.Saved.size(), m_saved);
        for (std::size_t i = m_reports; i < Reports().size(); ++i)
        {
            const std::int32_t number = Reports()[i].Error.Number;
            EXPECT_TRUE(number == ErrorNumber::NotANumber || number == ErrorNumber::OutOfRange ||
                        number == ErrorNumber::InvalidArgument)
                << Reports()[i];
        }
    }

    /// A number too large for the repair is reported and stays.
    void CheckLeftField()
    {
        if (m_left == nullptr || Reports().size() > m_reports)
            return;
        const std::string& text = m_left->Text();
        for (const auto& [field, low, high, resting] : KeptRanges)
        {
            if (m_left == &(Page.*field))
            {
                EXPECT_TRUE(text == resting || (low <= ToInteger(text) && ToInteger(text) <= high));
            }
        }
        EXPECT_TRUE(m_left != &Page.txtConfInt || (0 <= ToDouble(text) && ToDouble(text) <= 1));
        EXPECT_FALSE(
            (m_left == &Page.txtStartAtAlphanumeric || m_left == &Page.txtStartAtNumeric) &&
            text.empty());
        const auto number = [](const TextField& field, double otherwise) {
            return IsNumeric(field.Text()) ? std::nearbyint(ToDouble(field.Text())) : otherwise;
        };
        const double start = number(Page.txtFragStart, -HUGE_VAL);
        const double end = number(Page.txtFragEnd, HUGE_VAL);
        const double size = number(Page.txtShortestAlleleSize, HUGE_VAL);
        if (m_left == &Page.txtShortestAlleleSize)
        {
            EXPECT_TRUE(size <= end && (start <= size || end < start)) << text;
        }
    }

    std::mt19937& m_random;
    Mode m_mode;
    std::string m_log;
    LocusFields m_fields;
    std::size_t m_saved = 0;
    std::size_t m_reports = 0;
    const TextField* m_left = nullptr;
    // What the action at hand may do
    bool m_mayWrite = false;
    bool m_mayStore = false;
    bool m_mayFail = false;
};

TEST(RandomDriver, NothingAPersonDoesBreaksThePage)
{
    std::mt19937 random(StartValue);
    for (int i = 0; i < Sessions; ++i)
    {
        std::optional<Fakes::LocaleGuard> decimalComma;
        if (i % 2 == 1)
            decimalComma.emplace(L',', L'.');
        Session session(random);
        for (int action = 0; action < ActionsInSession && !::testing::Test::HasFailure(); ++action)
            session.Act();
        ASSERT_FALSE(::testing::Test::HasFailure())
            << "session " << i << (decimalComma ? ", decimal comma:\n" : ":\n") << session.Log();
    }
}

} // namespace
} // namespace Tamrivo
