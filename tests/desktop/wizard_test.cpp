#include "controls/text_field.h"
#include "desktop/forms/accessible_name.h"
#include "desktop/front_end/problem_list.h"
#include "desktop_test.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QWheelEvent>

namespace Tamrivo::Testing
{

namespace
{

class WizardTest : public DesktopTest
{};

QString Reasons(WizardDialog& editor)
{
    QStringList texts;
    for (const PageProblem& problem : Named<ProblemList>(editor, "problems").Shown())
        texts += problem.Text;
    return texts.join('\n');
}

} // namespace

TEST_F(WizardTest, TheWholeRoadOfOneEdit)
{
    const auto outcome = Edit("D3S1358", [](WizardDialog& editor) {
        Replace(editor, "txtFragEnd", "140");
        Replace(editor, "txtRepeat", "x8");
        Focus(Named(editor, "cmdGenAlleleList"));
        QTest::keyClick(&Named(editor, "cmdGenAlleleList"), Qt::Key_Return);
        EXPECT_TRUE(editor.isVisible()) << "Return presses what has the focus";
        Named<QTabWidget>(editor, "SSTab1").setCurrentIndex(1);
        QTest::mouseClick(&Named(editor, "chkSearchForStutter"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, 8));
        EXPECT_TRUE(Named(editor, "txtStutterWidth").isEnabled());
        QTest::keyClick(&Named(editor, "UpDown1"), Qt::Key_Up);
        EXPECT_EQ(Named<QLineEdit>(editor, "txtStutterWidth").text(), "2");
        QTest::mouseClick(&Named(editor, "finish"), Qt::LeftButton);
    });
    EXPECT_TRUE(outcome.Completed);
    const auto locus = Stored("D3S1358");
    EXPECT_EQ(locus->FragEnd, 140);
    EXPECT_EQ(locus->RepeatLength, 8);
    EXPECT_TRUE(locus->SearchForStutter);
    EXPECT_EQ(locus->StutterWidth, 2);
    EXPECT_EQ(locus->Alleles().Count(), 8) << "80, 88, ... 136";
}

TEST_F(WizardTest, EnterFinishesAndEscapeCancelsAfterTheRepair)
{
    Edit("D3S1358", [](WizardDialog& editor) {
        auto& field = Named<QLineEdit>(editor, "txtRepeat");
        Replace(editor, "txtRepeat", "999");
        QTest::keyClick(&field, Qt::Key_Return);
    });
    EXPECT_EQ(Stored("D3S1358")->RepeatLength, 255);

    std::string repaired;
    const auto outcome = Edit("D3S1358", [&](WizardDialog& editor) {
        Replace(editor, "txtRepeat", "0");
        OnModal([](QDialog& question) { Press(question, "Discard Changes"); });
        QTest::keyClick(&Named(editor, "txtRepeat"), Qt::Key_Escape);
        repaired = Named<QLineEdit>(editor, "txtRepeat").text().toStdString();
    });
    EXPECT_FALSE(outcome.Completed);
    EXPECT_EQ(repaired, "1");
    EXPECT_EQ(Stored("D3S1358")->RepeatLength, 255);
}

TEST_F(WizardTest, EveryKindOfFaultIsMarkedExplainedAndKeepsTheWizardOpen)
{
    Edit({}, [](WizardDialog& editor) {
        auto& finish = Named(editor, "finish");
        const auto isYellow = [&](const char* field) {
            const QWidget& widget = Named(editor, field);
            return widget.palette().color(QPalette::Base) == QColor(255, 255, 0) &&
                   !widget.toolTip().isEmpty();
        };
        QTest::mouseClick(&finish, Qt::LeftButton);
        EXPECT_TRUE(editor.isVisible());
        EXPECT_TRUE(isYellow("txtLocusTag"));
        EXPECT_EQ(Reasons(editor), "Locus Tag Name is required.");
        EXPECT_TRUE(Named(editor, "txtLocusTag").hasFocus());

        Replace(editor, "txtLocusTag", "d3s1358");
        EXPECT_EQ(Reasons(editor), "Locus Tag Name is not unique.");

        Replace(editor, "txtLocusTag", "New");
        EXPECT_EQ(Reasons(editor), "");
        Replace(editor, "txtFragStart", "300");
        Replace(editor, "txtFragEnd", "200");
        Named<QTabWidget>(editor, "SSTab1").setCurrentIndex(1);
        QTest::mouseClick(&finish, Qt::LeftButton);
        EXPECT_TRUE(isYellow("txtFragStart") && isYellow("txtFragEnd"));
        EXPECT_EQ(Named<QTabWidget>(editor, "SSTab1").currentIndex(), 0)
            << "the field at fault comes into view";

        Replace(editor, "txtFragEnd", "400");
        QTest::mouseClick(&Named(editor, "optAlleleNaming(2)"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, 8));
        Replace(editor, "txtStartAtNumeric", "0");
        EXPECT_TRUE(isYellow("txtStartAtNumeric"));
        Discard(editor);
    });
}

TEST_F(WizardTest, TabStopsAreTheDeclaredOnes)
{
    Edit("D3S1358", [](WizardDialog& editor) {
        const UserControl& page = editor.Page().Form();
        for (const int tab : {0, 1})
        {
            Named<QTabWidget>(editor, "SSTab1").setCurrentIndex(tab);
            std::vector<std::string> expected;
            QWidget* first = nullptr;
            for (const Control* control : page.FocusOrder())
            {
                QWidget& widget = editor.Page().ViewOf(*control)->FocusWidget();
                if (!widget.isVisible() || !widget.isEnabled())
                    continue;
                first = first != nullptr ? first : &widget;
                expected.push_back(control->Name());
            }
            std::vector<std::string> visited;
            Focus(*first);
            for (std::size_t i = 0; i < expected.size(); ++i)
            {
                const QWidget* focus = editor.focusWidget();
                for (const Control* control : page.FocusOrder())
                {
                    if (&editor.Page().ViewOf(*control)->FocusWidget() == focus)
                        visited.push_back(control->Name());
                }
                QTest::keyClick(editor.focusWidget(), Qt::Key_Tab);
            }
            EXPECT_EQ(visited, expected);
        }
        Discard(editor);
    });
}

TEST_F(WizardTest, EveryControlHasANameAndARole)
{
    Edit("D3S1358", [](WizardDialog& editor) {
        for (const Control* control : editor.Page().Form().FocusOrder())
        {
            QWidget& widget = editor.Page().ViewOf(*control)->FocusWidget();
            QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&widget);
            EXPECT_FALSE(read->text(QAccessible::Name).isEmpty()) << control->Name();
        }
        const UserControl& page = editor.Page().Form();
        const std::pair<const char*, const char*> names[] = {
            {"txtLocusTag", "Locus Tag"},
            {"txtFragEnd", "Fragment length range between: and"},
            {"txtStartAtNumeric", "Numeric Start at"},
            {"txtShortestAlleleSize", "Shortest Allele size"},
            {"UpDown2", "Maximum relative stutter peak height"},
            {"txtConfInt", "Overwrite system confidence interval"},
        };
        for (const auto& [control, name] : names)
            EXPECT_EQ(AccessibleName(*page.Find(control)), name) << control;
        Discard(editor);
    });
}

TEST_F(WizardTest, FieldsAndAllelesAreTakenBackInTheirOrder)
{
    Edit("D3S1358", [](WizardDialog& editor) {
        const auto* start = &Named<QLineEdit>(editor, "txtFragStart");
        auto& end = Named<QLineEdit>(editor, "txtFragEnd");
        auto* alleles = Named(editor, "ctlPaneAlleleList").findChild<QTableView*>();
        auto* naming = &Named<QRadioButton>(editor, "optAlleleNaming(0)");
        const auto state = [&] {
            QTest::qWait(5);
            return QStringList{end.text(), alleles->model()->index(0, 0).data().toString(),
                               naming->isChecked() ? "nominal" : "numeric", start->text()};
        };
        std::vector<QStringList> states{state()};
        Replace(editor, "txtFragEnd", "140");
        states.push_back(state());
        alleles->model()->setData(alleles->model()->index(0, 0), "first");
        states.push_back(state());
        QTest::mouseClick(naming, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        states.push_back(state());
        Replace(editor, "txtFragStart", "70");
        states.push_back(state());

        auto& undo = *editor.findChild<QAction*>("undo");
        auto& redo = *editor.findChild<QAction*>("redo");
        EXPECT_NE(states[3], states[2]);
        Focus(Named(editor, "txtFragEnd"));
        for (std::size_t at = states.size() - 1; at-- > 0;)
        {
            QTest::keyClick(&Named(editor, "txtFragEnd"), Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(state(), states[at]) << at;
        }
        EXPECT_FALSE(undo.isEnabled());
        for (std::size_t at = 1; at < states.size(); ++at)
        {
            redo.trigger();
            EXPECT_EQ(state(), states[at]) << at;
        }
        EXPECT_FALSE(redo.isEnabled());
        undo.trigger();
        Replace(editor, "txtFragStart", "60");
        EXPECT_FALSE(redo.isEnabled() && state() == states.back()) << "what is done anew ends it";
        Discard(editor);
    });
}

TEST_F(WizardTest, AProblemLeadsToItsField)
{
    Edit("", [](WizardDialog& editor) {
        const int height = Named(editor, "ctlPaneAlleleList").height();
        Replace(editor, "txtFragStart", "700");
        Named<QTabWidget>(editor, "SSTab1").setCurrentIndex(1);
        QTest::qWait(5);
        auto& problems = Named<ProblemList>(editor, "problems");
        const auto at = problems.findItems("The Fragment Range From", Qt::MatchStartsWith);
        ASSERT_EQ(at.size(), 1);
        EXPECT_EQ(Named(editor, "ctlPaneAlleleList").height(), height);
        QTest::mouseClick(problems.viewport(), Qt::LeftButton, Qt::NoModifier,
                          problems.visualItemRect(at.front()).center());
        EXPECT_TRUE(Named(editor, "txtFragStart").hasFocus());
        Discard(editor);
    });
}

TEST_F(WizardTest, AccessKeysOfTheWizardAreNotThoseOfThePages)
{
    const auto letterOf = [](const QString& caption) {
        return caption[caption.indexOf('&') + 1].toLower();
    };
    Edit("D3S1358", [&](WizardDialog& editor) {
        for (const auto& [button, own] :
             {std::pair<const char*, QString>{"finish", "F&inish"}, {"cancel", "&Cancel"}})
        {
            EXPECT_EQ(Named<QPushButton>(editor, button).text(), own);
            for (const auto* other : editor.Page().findChildren<QAbstractButton*>())
                EXPECT_TRUE(!other->text().contains('&') ||
                            letterOf(other->text()) != letterOf(own))
                    << own.toStdString() << " and " << other->text().toStdString();
        }
        Focus(Named(editor, "txtRepeat"));
        QTest::keyClick(editor.focusWidget(), Qt::Key_F, Qt::AltModifier);
        const auto& forward = Named<QAbstractButton>(editor, "optPrimerLabel(0)");
        EXPECT_TRUE(QTest::qWaitFor([&] { return forward.isChecked(); }));
        QTest::keyClick(editor.focusWidget(), Qt::Key_I, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !editor.isVisible(); }));
    });
}

TEST_F(WizardTest, AnArrowTakesTheFocusAndTheWheelNothing)
{
    Edit("D3S1358", [](WizardDialog& editor) {
        auto& spin = Named(editor, "udShortestAlleleSize");
        const auto& size = Named<QLineEdit>(editor, "txtShortestAlleleSize");
        Replace(editor, "txtFragEnd", "82");
        for (int i = 0; i < 5; ++i)
            QTest::mouseClick(&spin, Qt::LeftButton, Qt::NoModifier,
                              QPoint(spin.width() / 2, spin.height() / 4));
        EXPECT_EQ(size.text(), "82") << "the range was mended first";
        EXPECT_TRUE(spin.hasFocus());

        const auto turnWheel = [&] {
            QWheelEvent wheel(QPointF(5, 5), spin.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&spin, &wheel);
        };
        turnWheel();
        EXPECT_EQ(size.text(), "81");
        Focus(Named(editor, "txtRepeat"));
        turnWheel();
        EXPECT_EQ(size.text(), "81");
        for (const auto* each : editor.findChildren<QAbstractSpinBox*>())
            EXPECT_TRUE(each->focusPolicy() == Qt::StrongFocus ||
                        each->focusPolicy() == Qt::ClickFocus)
                << each->objectName().toStdString();
        Discard(editor);
    });
}

} // namespace Tamrivo::Testing
