#include "controls/text_field.h"
#include "desktop/forms/accessible_name.h"
#include "desktop/front_end/problem_list.h"
#include "desktop_test.h"
#include "editor/locus_editor_form.h"
#include "host/alleles/pane_user.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
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

void Replace(QWidget& editor, const QString& field, const QString& text)
{
    auto& widget = Named<QLineEdit>(editor, field);
    Focus(widget);
    widget.selectAll();
    Type(widget, text);
}

} // namespace

TEST_F(WizardTest, TheWholeRoadOfOneEdit)
{
    const auto outcome = Edit("D3S1358", [](WizardDialog& editor) {
        Replace(editor, "txtFragEnd", "140");
        Replace(editor, "txtRepeat", "x8");
        QTest::mouseClick(&Named(editor, "cmdGenAlleleList"), Qt::LeftButton);
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

TEST_F(WizardTest, SaveAsUnderAnotherTagAndOverTheSame)
{
    Edit("D3S1358", [](WizardDialog& editor) {
        OnModal([](QDialog& saveAs) {
            QTest::mouseClick(&Named(saveAs, "finish"), Qt::LeftButton);
            EXPECT_TRUE(saveAs.isVisible()) << "no tag yet";
            EXPECT_FALSE(Named<ProblemList>(saveAs, "problems").Shown().empty());
            Type(Named(saveAs, "txtLocusName"), "Copy");
            QTest::keyClick(&Named(saveAs, "txtLocusName"), Qt::Key_Return);
        });
        QTest::mouseClick(&Named(editor, "cmdSaveAs"), Qt::LeftButton);
        QTest::mouseClick(&Named(editor, "finish"), Qt::LeftButton);
    });
    ASSERT_TRUE(Stored("Copy"));
    EXPECT_EQ(Stored("Copy")->FragEnd, 136);

    // A tag that the locus bears without being current is none that is taken.
    const auto unused = Stored("TH01");
    unused->SetIsCurrent(false);
    Host().Store().Manager().Save(*unused, true);
    Edit("TH01", [](WizardDialog& editor) {
        Replace(editor, "txtFragEnd", "190");
        OnModal([](QDialog& saveAs) {
            OnModal([](QDialog& question) {
                auto& box = dynamic_cast<QMessageBox&>(question);
                EXPECT_EQ(box.windowTitle(), "Save Over Existing Locus");
                EXPECT_EQ(box.icon(), QMessageBox::Warning);
                EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
                QTest::keyClick(&box, Qt::Key_Return);
            });
            Type(Named(saveAs, "txtLocusName"), "TH01");
            QTest::keyClick(&Named(saveAs, "txtLocusName"), Qt::Key_Return);
        });
        QTest::mouseClick(&Named(editor, "cmdSaveAs"), Qt::LeftButton);
        Discard(editor);
    });
    EXPECT_EQ(Stored("TH01")->FragEnd, 190) << "stored at once";
}

TEST_F(WizardTest, AsksBeforeWorkIsLost)
{
    Edit("D3S1358", [](WizardDialog& editor) { editor.close(); });

    Edit({}, [](WizardDialog& editor) {
        Replace(editor, "txtLocusTag", "Whole new");
        OnModal([](QDialog& question) { QTest::keyClick(&question, Qt::Key_Escape); });
        QTest::keyClick(&Named(editor, "txtLocusTag"), Qt::Key_Escape);
        EXPECT_TRUE(editor.isVisible());
        EXPECT_EQ(editor.focusWidget(), &Named(editor, "txtLocusTag"));

        auto& pane =
            User::AllelesOf(dynamic_cast<LocusEditorForm&>(editor.Page().Form()).ctlPaneAlleleList);
        auto& generate = Named(editor, "cmdGenAlleleList");
        QTest::mouseClick(&generate, Qt::LeftButton);
        EXPECT_EQ(pane.Rows()[0]->AlleleReal3, 60.5) << "as wide as the page shows";
        pane.EditCell(1, AlleleColumns[0], "mine");
        for (const bool replaces : {false, true})
        {
            OnModal([=](QDialog& question) {
                Press(question, replaces ? "Replace" : "Keep the List");
            });
            QTest::mouseClick(&generate, Qt::LeftButton);
            EXPECT_EQ(pane.Rows()[0]->AlleleText1, replaces ? "60" : "mine");
        }
        OnModal([](QDialog& question) { Press(question, "Discard Changes"); });
        editor.close();
    });
}

TEST_F(WizardTest, AccessKeysOfTheWizardAreNotThoseOfThePages)
{
    const auto letterOf = [](const QString& caption) {
        return caption[caption.indexOf('&') + 1].toLower();
    };
    Edit("D3S1358", [&](WizardDialog& editor) {
        for (const char* button : {"finish", "cancel"})
        {
            const QString own = Named<QPushButton>(editor, button).text();
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
        Discard(editor);
    });
}

TEST_F(WizardTest, AFailureIsTakenInPlainWordsAndNothingIsLost)
{
    Edit("D3S1358", [&](WizardDialog& editor) {
        const auto other = Stored("D3S1358");
        other->LocusName = "Changed meanwhile";
        Host().Store().Manager().Save(*other, true);
        Replace(editor, "txtFragEnd", "150");
        OnModal([](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.objectName(), "failure");
            EXPECT_GT(box.text().size(), 30);
            EXPECT_FALSE(box.text().contains("-2147"));
            EXPECT_TRUE(box.detailedText().contains("-2147"));
            Press(box, "OK");
        });
        QTest::mouseClick(&Named(editor, "finish"), Qt::LeftButton);
        if (editor.isVisible())
        {
            EXPECT_EQ(Named<QLineEdit>(editor, "txtFragEnd").text(), "150");
            Discard(editor);
        }
    });
}

} // namespace Tamrivo::Testing
