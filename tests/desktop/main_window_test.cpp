#include "desktop/settings.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop_test.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>

#include <fstream>

namespace Tamrivo::Testing
{

namespace
{

class MainWindowTest : public DesktopTest
{
protected:
    MainWindowTest()
    {
        Host().Parameters().Create("Casework", TagLists::OneEmpty);
        Host().Parameters().Create("Research", TagLists::OneEmpty);
        m_session.reset();
        OpenWindow();
        Choose("Casework");
    }

    void OpenWindow()
    {
        m_window = std::make_unique<MainWindow>(m_frontEnd);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        ASSERT_TRUE(m_window->OpenStore(Address()));
    }

    void Choose(const QString& parameter)
    {
        auto& list = Named<QListWidget>(*m_window, "parameters");
        const QListWidgetItem* item = list.findItems(parameter, Qt::MatchExactly).value(0);
        ASSERT_TRUE(item);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                          list.visualItemRect(item).center());
        QTest::qWait(20);
    }

    void Trigger(const char* command) { Named<QAction>(*m_window, command).trigger(); }

    void AddAll()
    {
        QTest::mouseClick(&Named(*m_window, "cmdAddAll"), Qt::LeftButton);
        QTest::qWait(20);
    }

    std::string Open() const
    {
        return m_window->OpenParameter() ? m_window->OpenParameter()->Name() : "";
    }

    static void AnswerName(const QString& name)
    {
        OnModal([name](QDialog& dialog) {
            auto& input = dynamic_cast<QInputDialog&>(dialog);
            input.setTextValue(name);
            QTest::keyClick(&input, Qt::Key_Return);
        });
    }

    static void Answer(const QString& button, const QString& expected = {})
    {
        OnModal([button, expected](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_TRUE((box.text() + box.informativeText()).contains(expected))
                << box.informativeText().toStdString();
            Press(box, button);
        });
    }

    std::unique_ptr<MainWindow> m_window;
};

} // namespace

TEST_F(MainWindowTest, ChangesAreShownAskedAboutAndKept)
{
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_TRUE(m_window->windowTitle().startsWith("Casework[*] – store.sqlite"));
    AddAll();
    EXPECT_TRUE(m_window->isWindowModified());

    Answer("Cancel", "not saved");
    Choose("Research");
    QTest::qWait(50);
    EXPECT_EQ(Open(), "Casework");
    EXPECT_EQ(Named<QListWidget>(*m_window, "parameters").currentItem()->text(), "Casework");

    Answer("Save");
    Choose("Research");
    QTest::qWait(50);
    EXPECT_EQ(Open(), "Research");
    AddAll();
    Answer("Discard");
    EXPECT_TRUE(m_window->close());

    OpenWindow();
    EXPECT_EQ(Open(), "Research") << "the last parameter is remembered";
    EXPECT_TRUE(m_window->OpenParameter()->SelectedTags().empty());
    Choose("Casework");
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 3U) << "all there after a restart";
    EXPECT_EQ(RecentStores().value(0).toStdString(), Address());
}

TEST_F(MainWindowTest, RevertGoesBackToWhatIsStored)
{
    AddAll();
    Trigger("save");
    QTest::mouseClick(&Named(*m_window, "cmdRemoveAll"), Qt::LeftButton);
    QTest::qWait(20);
    EXPECT_TRUE(m_window->isWindowModified());
    QTest::mouseClick(&Named(*m_window, "revert"), Qt::LeftButton);
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 3U);
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, ParametersAreMadeRenamedCopiedAndDeleted)
{
    AnswerName("Teaching");
    Trigger("newParameter");
    EXPECT_EQ(Open(), "Teaching");
    AddAll();
    Trigger("save");
    AnswerName("Lessons");
    Trigger("renameParameter");
    AnswerName("Exam");
    Trigger("duplicateParameter");
    EXPECT_EQ(Open(), "Exam");
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 3U);
    Answer("Yes", "Exam");
    Trigger("deleteParameter");
    EXPECT_EQ(Open(), "");
    EXPECT_EQ(Named<QListWidget>(*m_window, "parameters").count(), 3);

    // A name that is taken is refused in words, and asked for again.
    OnModal([](QDialog& dialog) {
        auto& input = dynamic_cast<QInputDialog&>(dialog);
        input.setTextValue("research ");
        OnModal([](QDialog& failure) {
            AnswerName("Fourth");
            Press(failure, "OK");
        });
        QTest::keyClick(&input, Qt::Key_Return);
    });
    Trigger("newParameter");
    EXPECT_EQ(Open(), "Fourth");
}

TEST_F(MainWindowTest, DeletingALocusNamesWhoUsesItAndKeepsTheRestOfTheSelection)
{
    AddAll();
    Trigger("save");
    auto& selected = Named<QTableView>(*m_window, "gridSelected");
    QTest::mouseClick(selected.viewport(), Qt::LeftButton, Qt::NoModifier,
                      selected.visualRect(selected.model()->index(0, 0)).center());
    const std::string tag = selected.model()->index(0, 0).data().toString().toStdString();
    Answer("No", "Casework");
    Trigger("deleteLocus");
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 3U);
    Answer("Yes", "Casework");
    Trigger("deleteLocus");
    const auto tags = m_window->OpenParameter()->SelectedTags();
    EXPECT_EQ(tags.size(), 2U);
    EXPECT_EQ(std::ranges::count(tags, tag), 0);
}

TEST_F(MainWindowTest, ALocusIsPickedFromAListThatTypingNarrows)
{
    OnModal([](QDialog& picker) {
        OnModal([](QDialog& editor) {
            EXPECT_EQ(Named<QLineEdit>(editor, "txtFragEnd").text(), "180");
            Named<QLineEdit>(editor, "txtFragEnd").setFocus();
            Named<QLineEdit>(editor, "txtFragEnd").selectAll();
            Type(Named(editor, "txtFragEnd"), "190");
            QTest::keyClick(&Named(editor, "txtFragEnd"), Qt::Key_Return);
        });
        ASSERT_TRUE(picker.focusWidget());
        Type(*picker.focusWidget(), "th");
        QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
    });
    AddAll();
    Trigger("editLocus");
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 3U)
        << "what wasn't saved of the selection is still there";
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "Stored TH01.");
    QTest::qWait(20);
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, AFileThatIsNoStoreIsRefusedInWordsAndTheOpenOneStays)
{
    const std::string path = m_directory.filePath("letter.sqlite").toStdString();
    std::ofstream(path) << "Dear colleague, this is no store of any kind at all.";
    OnModal([](QDialog& failure) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(failure).text().contains("letter.sqlite"));
        QTest::keyClick(&failure, Qt::Key_Escape);
    });
    EXPECT_FALSE(m_window->OpenStore(path));
    EXPECT_EQ(Open(), "Casework");
    AddAll();
    Trigger("save");
    EXPECT_FALSE(m_window->isWindowModified());
}

} // namespace Tamrivo::Testing
