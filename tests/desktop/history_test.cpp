#include "contracts/object_manager.h"
#include "desktop/common/actions.h"
#include "desktop/history/history_window.h"
#include "desktop/history/projects_dialog.h"
#include "desktop/history/reason_question.h"
#include "host/loci/progress.h"
#include "host/store/store.h"

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class HistoryWindowTest : public testing::Test
{
protected:
    void Save(const std::string& tag)
    {
        const auto locus = CreateObject<Locus>(m_store.Manager(), "Locus");
        locus->SetLocusTag(tag);
        m_store.Manager().Save(*locus, true);
    }

    /// A column of a table, from top to bottom.
    QStringList Column(const char* table, int column)
    {
        QStringList texts;
        const auto& rows = *m_window.findChild<QTreeWidget*>(table);
        for (int row = 0; row < rows.topLevelItemCount(); ++row)
            texts += rows.topLevelItem(row)->text(column);
        return texts;
    }

    void Restore()
    {
        QTest::mouseClick(m_window.findChild<QPushButton*>("restore"), Qt::LeftButton);
    }

    /// Answers the next question for a text; empty: cancels it.
    static void Answer(const QString& text)
    {
        QTimer::singleShot(0, [text] {
            auto* dialog = dynamic_cast<QInputDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->setTextValue(text);
            text.isEmpty() ? dialog->reject() : dialog->accept();
        });
    }

    QTemporaryDir m_directory;
    Store m_store{m_directory.filePath("store.sqlite").toStdString()};
    std::vector<std::string> m_failures;
    Actions m_actions{
        [this](const ErrorRecord& error) { m_failures.push_back(error.Description); }};
    std::vector<std::string> m_restored;
    HistoryWindow m_window{m_store, m_actions, [this](const std::vector<std::string>& tags) {
                               m_restored.insert(m_restored.end(), tags.begin(), tags.end());
                           }};
};

TEST_F(HistoryWindowTest, AnEarlierStateIsRestoredAsAnEdit)
{
    Save("A");
    const auto locus = m_store.FindLocus("A");
    locus->FragEnd = 300;
    m_store.Manager().Save(*locus, true);
    m_window.ShowLocus("A");
    EXPECT_EQ(Column("historyList", 2), QStringList({"changed", "made"}));
    EXPECT_EQ(Column("historyDifferences", 0), QStringList({"FragEnd"}));
    EXPECT_EQ(Column("historyDifferences", 2), QStringList({"300"}));

    auto& list = *m_window.findChild<QTreeWidget*>("historyList");
    list.setCurrentItem(list.topLevelItem(1));
    Restore();
    EXPECT_NE(m_store.FindLocus("A")->FragEnd, 300);
    EXPECT_EQ(Column("historyList", 2), QStringList({"restored", "changed", "made"}));
    EXPECT_THAT(m_restored, ElementsAre("A"));
    EXPECT_THAT(m_failures, ElementsAre());
}

TEST_F(HistoryWindowTest, ADeleteOfSeveralIsUndoneAtOnce)
{
    for (const char* tag : {"A", "B", "C"})
    {
        Save(tag);
        m_store.DeleteLocus(tag);
    }
    m_window.ShowDeleted();
    m_window.findChild<QTreeWidget*>("historyList")->selectAll();
    // One of them can't come back, so none does.
    Save("B");
    Restore();
    EXPECT_EQ(m_failures.size(), 1U);
    EXPECT_EQ(m_store.FindLocus("A"), nullptr);

    m_store.DeleteLocus("B");
    Save("B2");
    m_window.ShowDeleted();
    m_window.findChild<QTreeWidget*>("historyList")->selectAll();
    EXPECT_EQ(Column("historyList", 4).size(), 4) << "two loci have had the tag B";
    auto& list = *m_window.findChild<QTreeWidget*>("historyList");
    list.topLevelItem(0)->setSelected(false);
    Restore();
    EXPECT_THAT(m_restored, UnorderedElementsAre("A", "B", "C"));

    // The tag of the last one is taken again.
    Answer("B of old");
    list.setCurrentItem(list.topLevelItem(0));
    Restore();
    EXPECT_NE(m_store.FindLocus("B of old"), nullptr);
}

TEST_F(HistoryWindowTest, AStoreThatAsksForReasonsAsksThePerson)
{
    m_store.SetReasonRequired(true);
    AskForReasons(m_store);
    Answer("a new kit");
    Save("A");
    Answer({});
    EXPECT_THROW(Save("B"), Cancelled);
    EXPECT_EQ(m_store.FindLocus("B"), nullptr);
    m_window.ShowAll();
    EXPECT_EQ(Column("historyList", 6).first(), "a new kit");
}

TEST_F(HistoryWindowTest, ProjectsAreMadeRenamedAndDeleted)
{
    ProjectsDialog dialog(m_store, m_actions, nullptr);
    const auto press = [&](const char* button, const QString& answer) {
        if (!answer.isEmpty())
            Answer(answer);
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    };
    press("newProject", "Casework");
    press("renameProject", "Cases");
    const auto& list = *dialog.findChild<QListWidget*>("projectList");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.currentItem()->text(), "Cases");
    press("deleteProject", {});
    EXPECT_EQ(list.count(), 1);
    EXPECT_TRUE(dialog.HasChanged());
    EXPECT_THAT(m_failures, ElementsAre());
}

} // namespace

} // namespace Tamrivo
