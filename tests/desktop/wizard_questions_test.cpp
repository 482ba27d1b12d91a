#include "desktop/front_end/problem_list.h"
#include "desktop_test.h"
#include "editor/locus_editor_form.h"
#include "host/alleles/pane_user.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>

namespace Tamrivo::Testing
{

namespace
{

class WizardQuestions : public DesktopTest
{};

} // namespace

TEST_F(WizardQuestions, SaveAsUnderAnotherTagAndOverTheSame)
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

TEST_F(WizardQuestions, AsksBeforeWorkIsLost)
{
    Edit("D3S1358", [](WizardDialog& editor) { editor.close(); });

    Edit({}, [](WizardDialog& editor) {
        Replace(editor, "txtLocusTag", "Whole new");
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return})
        {
            OnModal([key](QDialog& question) { QTest::keyClick(&question, key); });
            QTest::keyClick(&Named(editor, "txtLocusTag"), Qt::Key_Escape);
            EXPECT_TRUE(editor.isVisible());
        }
        EXPECT_EQ(editor.focusWidget(), &Named(editor, "txtLocusTag"));

        auto& pane =
            User::AllelesOf(dynamic_cast<LocusEditorForm&>(editor.Page().Form()).ctlPaneAlleleList);
        auto& generate = Named(editor, "cmdGenAlleleList");
        QTest::mouseClick(&generate, Qt::LeftButton);
        EXPECT_EQ(pane.Rows()[0]->AlleleReal3, 60.5) << "as wide as the page shows";
        pane.EditCell(1, AlleleColumns[0], "mine");
        pane.Rows()[1]->AlleleInt1 = AlleleOrigin::Imported;
        for (const bool replaces : {false, true})
        {
            OnModal([=](QDialog& question) {
                const QString text = dynamic_cast<QMessageBox&>(question).text();
                EXPECT_TRUE(text.contains("all 146 alleles. Sizes and bins of 2 of them"))
                    << text.toStdString();
                Press(question, replaces ? "Replace" : "Keep the List");
            });
            QTest::mouseClick(&generate, Qt::LeftButton);
            EXPECT_EQ(pane.Rows()[0]->AlleleText1, replaces ? "60" : "mine");
        }
        OnModal([](QDialog& question) { Press(question, "Discard Changes"); });
        editor.close();
    });
}

TEST_F(WizardQuestions, AsksAfterEachKindOfChangeThatIsNotStored)
{
    const auto click = [](WizardDialog& editor, const char* button) {
        QTest::mouseClick(&Named(editor, button), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    };
    const std::function<void(WizardDialog&)> changes[] = {
        [](WizardDialog& editor) { Replace(editor, "txtGenBank", "M1"); },
        [](WizardDialog& editor) { QTest::keyClick(&Named(editor, "cmbDye"), Qt::Key_Down); },
        [&](WizardDialog& editor) { click(editor, "optPrimerLabel(0)"); },
        [&](WizardDialog& editor) {
            Named<QTabWidget>(editor, "SSTab1").setCurrentIndex(1);
            click(editor, "chkSearchForStutter");
        },
        [](WizardDialog& editor) {
            auto& form = dynamic_cast<LocusEditorForm&>(editor.Page().Form());
            User::EditAllele(form.ctlPaneAlleleList, 1, AlleleColumns[0], "mine");
        },
        [&](WizardDialog& editor) {
            Replace(editor, "txtGenBank", "M1");
            OnModal([](QDialog& saveAs) { saveAs.reject(); });
            click(editor, "cmdSaveAs");
            QCoreApplication::processEvents();
        },
    };
    for (const auto& change : changes)
    {
        Edit("D3S1358", [&](WizardDialog& editor) {
            change(editor);
            OnModal([](QDialog& question) { Press(question, "Discard Changes"); });
            editor.close();
        });
    }
    Edit("D3S1358", [&](WizardDialog& editor) {
        Replace(editor, "txtGenBank", "M1");
        OnModal([](QDialog& saveAs) {
            Type(Named(saveAs, "txtLocusName"), "Stored");
            saveAs.accept();
        });
        click(editor, "cmdSaveAs");
        QCoreApplication::processEvents();
        editor.close();
    });
    EXPECT_EQ(Stored("Stored")->GenBank, "M1");
}

TEST_F(WizardQuestions, AFailureIsTakenInPlainWordsAndNothingIsLost)
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

TEST_F(WizardQuestions, APageSaysWhatItIsForBeforeAnythingIsTyped)
{
    for (const bool binning : {false, true})
    {
        OnModal([binning](QDialog& editor) {
            const auto* notice = editor.findChild<QLabel*>("notice");
            EXPECT_EQ(notice != nullptr, binning);
            EXPECT_TRUE(!binning ||
                        (notice->isVisible() && notice->text().startsWith("For binning: ")));
            editor.reject();
        });
        Host().EditLocus("D3S1358", binning);
    }
}

TEST_F(WizardQuestions, AMessageBoxHasWhatItsKindSays)
{
    struct
    {
        std::int32_t Kind;
        QMessageBox::Icon Icon;
        QMessageBox::StandardButtons Buttons;
        MessageAnswer Escaped;
    } const cases[] = {
        {MessageKind::ExclamationYesNo, QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No,
         MessageAnswer::No},
        {MessageKind::Exclamation, QMessageBox::Warning, QMessageBox::Ok, MessageAnswer::Ok},
        {MessageKind::Critical, QMessageBox::Critical, QMessageBox::Ok, MessageAnswer::Ok},
    };
    for (const auto& each : cases)
    {
        OnModal([&](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ((box.windowTitle() + '|' + box.text()).toStdString(), "Title|Text");
            EXPECT_EQ(box.icon(), each.Icon);
            EXPECT_EQ(box.standardButtons(), each.Buttons);
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        EXPECT_EQ(m_frontEnd.ShowMessage("Text", each.Kind, "Title"), each.Escaped);
    }
}

} // namespace Tamrivo::Testing
