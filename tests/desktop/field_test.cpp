#include "controls/text_field.h"
#include "desktop/forms/text_field_view.h"
#include "desktop_test.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>

namespace Tamrivo::Testing
{

namespace
{

class OneFieldForm : public UserControl
{
public:
    OneFieldForm() : UserControl("OneFieldForm", 4000, 1000) {}

    TextField txtPlain{{"txtPlain", *this, 0, {100, 100, 2000, 285}}, {.MaxLength = 5}};
    TextField txtDigits{{"txtDigits", *this, 1, {100, 500, 2000, 285}}, {}};
};

class FieldTest : public testing::Test
{
protected:
    FieldTest()
    {
        m_connections.On(m_form.txtDigits.KeyPress, [](std::int16_t& key) {
            const bool isDigit = '0' <= key && key <= '9';
            key = isDigit || key == User::Backspace ? key : std::int16_t{0};
        });
        m_view.show();
        QApplication::setActiveWindow(&m_view);
        Focus(Plain());
    }

    QLineEdit& Plain() { return Named<QLineEdit>(m_view, "txtPlain"); }
    QLineEdit& Digits() { return Named<QLineEdit>(m_view, "txtDigits"); }

    void ExpectText(const TextField& field, QLineEdit& widget, const char* text, int caret)
    {
        EXPECT_EQ(field.Text(), text);
        EXPECT_EQ(widget.text().toStdString(), text);
        EXPECT_EQ(widget.cursorPosition(), caret);
    }

    OneFieldForm m_form;
    Actions m_actions{[](const ErrorRecord& error) { ADD_FAILURE() << error.Description; }};
    FormView m_view{m_form, m_actions, {}};
    Connections m_connections;
};

} // namespace

TEST_F(FieldTest, KeysGoThroughTheFilterAndKeepCaretAndSelection)
{
    Focus(Digits());
    Type(Digits(), "1a2b3");
    ExpectText(m_form.txtDigits, Digits(), "123", 3);

    Digits().setCursorPosition(1);
    Type(Digits(), "x9");
    ExpectText(m_form.txtDigits, Digits(), "1923", 2);

    Digits().setSelection(1, 2);
    Type(Digits(), "x");
    EXPECT_EQ(Digits().selectedText(), "92") << "a swallowed key leaves the selection";
    QTest::keyClick(&Digits(), Qt::Key_Backspace);
    ExpectText(m_form.txtDigits, Digits(), "13", 1);
}

TEST_F(FieldTest, EditsLikeAPlainField)
{
    Type(Plain(), "abcdefg");
    ExpectText(m_form.txtPlain, Plain(), "abcde", 5);

    QTest::keyClick(&Plain(), Qt::Key_Home);
    QTest::keyClick(&Plain(), Qt::Key_Delete);
    ExpectText(m_form.txtPlain, Plain(), "bcde", 0);

    Plain().setSelection(1, 2);
    QTest::keyClick(&Plain(), Qt::Key_X, Qt::ControlModifier);
    ExpectText(m_form.txtPlain, Plain(), "be", 1);
    EXPECT_EQ(QApplication::clipboard()->text(), "cd");

    QTest::keyClick(&Plain(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_form.txtPlain.Text(), "bcde");
    QTest::keyClick(&Plain(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_form.txtPlain.Text(), "be");

    Plain().setSelection(0, 1);
    QApplication::clipboard()->setText("wxyzäö\nsecond line");
    QTest::keyClick(&Plain(), Qt::Key_V, Qt::ControlModifier);
    ExpectText(m_form.txtPlain, Plain(), "wxyze", 4);
    QTest::keyClick(&Plain(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_form.txtPlain.Text(), "be") << "a cut paste can be undone";
}

TEST_F(FieldTest, TypingCanBeUndone)
{
    Type(Plain(), "abc");
    for (int i = 0; i < 3 && !m_form.txtPlain.Text().empty(); ++i)
        QTest::keyClick(&Plain(), Qt::Key_Z, Qt::ControlModifier);
    ExpectText(m_form.txtPlain, Plain(), "", 0);
}

TEST_F(FieldTest, AFilterSwallowsTheKeysOfCommands)
{
    Focus(Digits());
    QApplication::clipboard()->setText("12");
    QTest::keyClick(&Digits(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_form.txtDigits.Text(), "");
    QTest::keyClick(&Digits(), Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(m_form.txtDigits.Text(), "12") << "this key sends no character";
}

TEST_F(FieldTest, InputMethodsAreFilteredToo)
{
    Focus(Digits());
    QInputMethodEvent composed;
    composed.setCommitString("4五6");
    QApplication::sendEvent(&Digits(), &composed);
    ExpectText(m_form.txtDigits, Digits(), "46", 2);

    QInputMethodEvent emoji;
    emoji.setCommitString("ab\U0001F9EC");
    QApplication::sendEvent(&Plain(), &emoji);
    Type(Plain(), "cde");
    EXPECT_EQ(m_form.txtPlain.Text(), "ab\U0001F9ECcd") << "five characters";
}

TEST_F(FieldTest, WritesOfTheLogicShowAtOnce)
{
    m_form.txtPlain.SetText("longer than five");
    EXPECT_EQ(Plain().text(), "longer than five");
    m_form.txtPlain.SetBackColor(Color::Yellow);
    m_form.txtPlain.SetToolTipText("At fault");
    EXPECT_EQ(Plain().palette().color(QPalette::Base), QColor(255, 255, 0));
    EXPECT_EQ(Plain().palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(Plain().toolTip(), "At fault");
    EXPECT_EQ(Plain().accessibleDescription(), "At fault");
    m_form.txtPlain.SetBackColor(Color::WindowBackground);
    EXPECT_EQ(Plain().palette().color(QPalette::Base),
              QApplication::palette().color(QPalette::Base));
    m_form.txtPlain.SetEnabled(false);
    EXPECT_FALSE(Plain().isEnabled());
}

TEST_F(FieldTest, ARepairRunsWhenTheFieldIsLeftAndShowsAtOnce)
{
    m_connections.On(m_form.txtPlain.LostFocus, [this] { m_form.txtPlain.SetText("0"); });
    Type(Plain(), "ab");
    QTest::keyClick(&Plain(), Qt::Key_Tab);
    EXPECT_EQ(Plain().text(), "0");
    EXPECT_TRUE(Digits().hasFocus());
}

} // namespace Tamrivo::Testing
