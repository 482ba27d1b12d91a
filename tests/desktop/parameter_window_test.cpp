#include "desktop/common/settings.h"
#include "main_window_fixture.h"

#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

namespace Tamrivo::Testing
{

TEST_F(MainWindowTest, AParameterIsMadeOfAPanel)
{
    ClickGroup("H24");
    PressInTable(Qt::Key_A, Qt::ControlModifier);
    AnswerName("Kit");
    Trigger(Do<&ParameterCommands::New>);
    EXPECT_LE(m_actions + 1, 4) << "with the name";
    EXPECT_EQ(Open(), "Kit");
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "FGA"}));
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_EQ(Group("Kit").text(1), "2");
}

TEST_F(MainWindowTest, TicksAndTheSelectorActOnOneSelection)
{
    ClickTick("TH01");
    EXPECT_TRUE(IsTicked("TH01"));
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(Group("Casework*").text(1), "1");
    Trigger(Do<&ParameterCommands::TurnToSelector>);
    EXPECT_EQ(Named<QTableView>(*m_window, "gridSelected").model()->rowCount(), 1);
    AddAll();
    Trigger(Do<&ParameterCommands::TurnToSelector>);
    EXPECT_TRUE(IsTicked("FGA"));
    EXPECT_TRUE(Named<QLabel>(*m_window, "status")
                    .text()
                    .contains("Casework: 1 overlap: D3S1358 and TH01, 120 to 136 nt (blue)"));
    ClickTick("TH01");
    EXPECT_EQ(m_window->Bench().Parameter().View()->SelectedTags().size(), 2U);

    // Loci dropped on another parameter open it; what was changed is asked about.
    QMimeData tags;
    tags.setData("application/x-tamrivo-tags", "FGA\nTH01\n");
    auto& groups = Named<GroupTree>(*m_window, "groups");
    QDropEvent drop(groups.visualItemRect(&Group("Research")).center(), Qt::CopyAction, &tags,
                    Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(drop.position().toPoint(), Qt::CopyAction, &tags, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(groups.viewport(), &enter);
    Answer("Save");
    QApplication::sendEvent(groups.viewport(), &drop);
    Settle();
    EXPECT_EQ(Open(), "Research");
    EXPECT_EQ(m_window->Bench().Parameter().View()->SelectedTags().size(), 2U);
    Trigger(Do<&ParameterCommands::Revert>);
    EXPECT_FALSE(IsTicked("FGA"));
    ClickGroup("Casework");
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "FGA"}));
}

TEST_F(MainWindowTest, MenusTakeLettersThatTheSelectorHasNot)
{
    ClickGroup("Casework");
    Trigger(Do<&ParameterCommands::TurnToSelector>);
    const auto letterOf = [](const QString& caption) {
        return caption.contains('&') ? caption[caption.indexOf('&') + 1].toLower() : QChar();
    };
    QString letters;
    for (const auto* button : m_window->findChildren<QPushButton*>())
        letters += button->isVisible() ? letterOf(button->text()) : QChar();
    EXPECT_TRUE(letters.contains('e')) << "Edit Locus";
    const auto& preview = Named<QTabWidget>(*m_window, "preview");
    for (int tab = 0; tab < preview.count(); ++tab)
        letters += letterOf(preview.tabText(tab));
    for (const QAction* menu : m_window->menuBar()->actions())
        EXPECT_FALSE(letters.contains(letterOf(menu->text()))) << menu->text().toStdString();
}

TEST_F(MainWindowTest, ChangesAreShownAskedAboutAndKept)
{
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_TRUE(m_window->windowTitle().startsWith("Casework[*] – store.sqlite"));
    AddAll();
    EXPECT_TRUE(m_window->isWindowModified());

    Answer("Cancel", "not saved");
    ClickGroup("Research");
    EXPECT_EQ(Open(), "Casework");

    Answer("Save");
    ClickGroup("Research");
    EXPECT_EQ(Open(), "Research");
    AddAll();
    Answer("Discard");
    EXPECT_TRUE(m_window->close());

    OpenWindow();
    EXPECT_EQ(Open(), "Research") << "the last parameter is remembered";
    EXPECT_TRUE(m_window->Bench().Parameter().View()->SelectedTags().empty());
    ClickGroup("Casework");
    EXPECT_EQ(m_window->Bench().Parameter().View()->SelectedTags().size(), 3U)
        << "all there after a restart";
    EXPECT_EQ(RecentStores().value(0).toStdString(), Address());
}

TEST_F(MainWindowTest, RevertGoesBackToWhatIsStored)
{
    AddAll();
    Trigger(Do<&ParameterCommands::Save>);
    QTest::mouseClick(&Named(*m_window, "cmdRemoveAll"), Qt::LeftButton);
    QTest::qWait(20);
    EXPECT_TRUE(m_window->isWindowModified());
    ClickBar(Do<&ParameterCommands::Revert>);
    EXPECT_EQ(m_window->Bench().Parameter().View()->SelectedTags().size(), 3U);
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, ParametersAreMadeRenamedCopiedAndDeleted)
{
    AnswerName("Teaching");
    Trigger(Do<&ParameterCommands::New>);
    EXPECT_EQ(Open(), "Teaching");
    AddAll();
    Trigger(Do<&ParameterCommands::Save>);
    AnswerName("Lessons");
    Trigger(Do<&ParameterCommands::Rename>);
    AnswerName("Exam");
    Trigger(Do<&ParameterCommands::Duplicate>);
    EXPECT_EQ(Open(), "Exam");
    EXPECT_EQ(m_window->Bench().Parameter().View()->SelectedTags().size(), 3U);
    Answer("Yes", "Exam");
    Trigger(Do<&ParameterCommands::Delete>);
    EXPECT_EQ(Open(), "");
    EXPECT_EQ(Group("Parameters").childCount(), 3);

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
    Trigger(Do<&ParameterCommands::New>);
    EXPECT_EQ(Open(), "Fourth");
}

} // namespace Tamrivo::Testing
