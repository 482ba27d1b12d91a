#include "controls/control_array.h"
#include "controls/label.h"
#include "controls/user.h"
#include "controls/user_control.h"
#include "core/error.h"

#include <gtest/gtest.h>

namespace Tamrivo
{
namespace
{

class SampleForm : public UserControl
{
public:
    SampleForm() : UserControl("Sample", 100, 100) {}
    bool Enabled() const override { return IsEnabled; }

    Frame fra{{"fra", *this, 9}, {.Caption = "Frame"}};
    TextField txt{{"txt", fra, 3}, {.Text = "5", .MaxLength = 3}};
    SpinButton ud{{"ud", fra, 2}, {.Linked = &txt, .Min = 1, .Max = 10}};
    CheckBox chk{{"chk", *this, 1}, {.Caption = "Check"}};
    CheckBox chkNever{{"chkNever", *this, 0}, {.Caption = "", .Enabled = false, .Visible = false}};
    ControlArray<OptionButton> opt{{{"opt", fra, 4, {}, 0}, {.Caption = "A"}},
                                   {{"opt", fra, 5, {}, 2}, {.Caption = "B"}}};
    ComboBox cmb{{"cmb", *this, 6}, {.List = {"D1", "D2"}}};
    ListBox lst{{"lst", *this, 7}};
    Label lbl{{"lbl", *this}, {.Caption = "Label"}};
    bool IsEnabled = true;
};

std::vector<std::string> Names(const std::vector<Control*>& controls)
{
    std::vector<std::string> names;
    names.reserve(controls.size());
    for (const Control* control : controls)
        names.push_back(control->Name());
    return names;
}

TEST(Controls, AWriteRaisesItsEventOnlyWhenTheValueChanges)
{
    SampleForm form;
    std::string log;
    Connections connections;
    connections.On(form.txt.Change, [&] { log += "[" + form.txt.Text() + "]"; });
    connections.On(form.chk.Click, [&] { log += std::to_string(form.chk.Value()); });
    connections.On(form.opt.Item(0).Click, [&] { log += "A"; });
    connections.On(form.opt.Item(2).Click, [&] { log += form.opt.Item(0).Value() ? "?" : "B"; });

    for (int twice = 0; twice < 2; ++twice)
    {
        form.txt.SetText("longer than three");
        form.chk.SetValue(1);
        form.opt.Item(0).SetValue(true);
    }
    form.opt.Item(2).SetValue(true);
    EXPECT_EQ(log, "[longer than three]1AB");
    EXPECT_THROW(form.opt.Item(1), Failure);
}

TEST(Controls, AnObserverHearsOfEveryChangeOfState)
{
    SampleForm form;
    std::string log;
    Connections connections;
    connections.On(form.ControlChanged, [&](Control& control) { log += control.Name() + " "; });
    form.lbl.SetCaption("other");
    form.lbl.SetCaption("other");
    form.txt.SetBackColor(Color::Yellow);
    form.ud.SetMax(3);
    form.fra.SetVisible(false);
    form.cmb.AddItem("D3");
    EXPECT_EQ(log, "lbl txt ud fra cmb ");
}

TEST(Controls, NoObserverSeesTwoChosenOptions)
{
    SampleForm form;
    form.opt.Item(0).SetValue(true);
    std::string log;
    Connections connections;
    connections.On(form.ControlChanged, [&](Control& control) {
        log += control.Name();
        EXPECT_FALSE(form.opt.Item(0).Value()) << log;
        EXPECT_TRUE(form.opt.Item(2).Value()) << log;
        throw std::runtime_error("can't draw");
    });
    EXPECT_THROW(form.opt.Item(2).SetValue(true), std::runtime_error);
    EXPECT_EQ(log, "opt(0)");
    EXPECT_FALSE(form.opt.Item(0).Value());
}

TEST(Controls, ListsKeepTheirEntries)
{
    SampleForm form;
    EXPECT_EQ(form.cmb.Text(), "");
    form.cmb.SetText("D2");
    EXPECT_EQ(form.cmb.ListIndex(), 1);
    EXPECT_THROW(form.cmb.SetText("D9"), Failure);
    EXPECT_THROW(form.cmb.List(2), Failure);
    EXPECT_THROW(form.cmb.ItemData(-1), Failure);
    form.cmb.Clear();
    EXPECT_EQ(form.cmb.ListIndex(), -1);

    for (const char* text : {"b", "C", "a"})
        form.lst.AddItem(text);
    EXPECT_EQ(form.lst.List(0) + form.lst.List(1) + form.lst.List(2), "abC");
    EXPECT_EQ(form.lst.NewIndex(), 0);
}

TEST(Controls, FocusFollowsTheTabIndexes)
{
    SampleForm form;
    EXPECT_EQ(Names(form.FocusOrder()),
              (std::vector<std::string>{"chk", "ud", "txt", "opt(0)", "opt(2)", "cmb", "lst"}));
    EXPECT_EQ(form.Find("opt(2)"), &form.opt.Item(2));
    EXPECT_EQ(form.Find("opt(1)"), nullptr);
}

TEST(Spin, StepsFromTheNumberInItsFieldAndStopsAtItsBounds)
{
    struct Case
    {
        const char* Text;
        const char* Up;
        const char* Down;
    };
    const Case cases[] = {
        {"5", "6", "4"},    {"10", "10", "9"},    {"1", "2", "1"}, {"0", "1", "1"},
        {"99", "10", "10"}, {"", "2", "1"},       {"x", "2", "1"}, {"2.5", "2", "1"},
        {"9.5", "10", "9"}, {"1e99", "10", "10"},
    };
    for (const auto& [text, up, down] : cases)
    {
        SampleForm form;
        form.txt.SetText(text);
        User::Up(form.ud);
        EXPECT_EQ(form.txt.Text(), up) << text;
        form.txt.SetText(text);
        User::Down(form.ud);
        EXPECT_EQ(form.txt.Text(), down) << text;
    }
    SampleForm reversed;
    reversed.ud.SetMin(20);
    User::Up(reversed.ud);
    EXPECT_EQ(reversed.txt.Text(), "10");
}

TEST(User, KeysPassTheFilterAndRespectTheLimit)
{
    SampleForm form;
    int changes = 0;
    Connections connections;
    connections.On(form.txt.KeyPress,
                   [](std::int16_t& key) { key = key == 'x' ? std::int16_t{0} : key; });
    connections.On(form.txt.Change, [&] { ++changes; });

    User::Type(form.txt, "x\r\n\x03");
    EXPECT_EQ(changes, 0);
    User::Type(form.txt, "é\U0001F9EC!");
    EXPECT_EQ(form.txt.Text(), "5é\U0001F9EC");
    EXPECT_EQ(changes, 2);
    User::Press(form.txt, User::Backspace);
    EXPECT_EQ(form.txt.Text(), "5é");
    EXPECT_EQ(User::Press(form.txt, 'a', {0, 2}), 1U);
    EXPECT_EQ(form.txt.Text(), "a");
    EXPECT_EQ(User::Paste(form.txt, "123\n4", {1, 0}), 3U);
    EXPECT_EQ(form.txt.Text(), "a12");
}

TEST(User, CannotReachWhatIsHiddenOrDisabled)
{
    const std::pair<const char*, void (*)(SampleForm&)> cases[] = {
        {"txt is disabled", [](SampleForm& form) { form.txt.SetEnabled(false); }},
        {"txt is hidden", [](SampleForm& form) { form.txt.SetVisible(false); }},
        {"txt is in fra, which is disabled", [](SampleForm& form) { form.fra.SetEnabled(false); }},
        {"txt is in fra, which is hidden", [](SampleForm& form) { form.fra.SetVisible(false); }},
        {"txt is in Sample, which is disabled", [](SampleForm& form) { form.IsEnabled = false; }},
    };
    for (const auto& [obstacle, prevent] : cases)
    {
        SampleForm form;
        prevent(form);
        EXPECT_EQ(User::Obstacle(form.txt), obstacle);
        EXPECT_THROW(User::Type(form.txt, "1"), User::Refusal);
        EXPECT_THROW(User::Leave(form.txt), User::Refusal);
        form.txt.SetText("7");
        EXPECT_EQ(form.txt.Text(), "7");
    }
    SampleForm form;
    EXPECT_THROW(User::Choose(form.cmb, "D9"), User::Refusal);
    EXPECT_THROW(User::Choose(form.cmb, 2), User::Refusal);
}

} // namespace
} // namespace Tamrivo
