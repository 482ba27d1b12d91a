#include "desktop/common/settings.h"
#include "desktop/lanes/lane_picture.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_table.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop_test.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>

#include <fstream>

namespace Tamrivo::Testing
{

namespace
{

/// A person at the window. Each call that a person would count as one thing to do is counted.
class MainWindowTest : public DesktopTest
{
protected:
    MainWindowTest()
    {
        for (const char* tag : {"D3S1358", "FGA"})
        {
            const auto locus = Stored(tag);
            locus->PrimerSet = "H24";
            Host().Store().Manager().Save(*locus, true);
        }
        Host().Parameters().Create("Casework", TagLists::OneEmpty);
        Host().Parameters().Create("Research", TagLists::OneEmpty);
        m_session.reset();
        OpenWindow();
        ClickGroup("Casework");
        ClickGroup("Library");
        m_actions = 0;
    }

    void OpenWindow()
    {
        m_window = std::make_unique<MainWindow>(m_frontEnd);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        ASSERT_TRUE(m_window->OpenStore(Address()));
        Settle();
    }

    static void Settle() { QTest::qWait(20); }

    QTreeWidgetItem& Group(const QString& name) const
    {
        for (QTreeWidgetItemIterator at(&Named<GroupTree>(*m_window, "groups")); *at; ++at)
        {
            if ((*at)->text(0) == name)
                return **at;
        }
        throw std::runtime_error("There is no group " + name.toStdString());
    }

    void ClickGroup(const QString& name)
    {
        auto& groups = Named<GroupTree>(*m_window, "groups");
        QTest::mouseClick(groups.viewport(), Qt::LeftButton, Qt::NoModifier,
                          groups.visualItemRect(&Group(name)).center());
        Settle();
        ++m_actions;
    }

    LibraryTable& Table() const { return Named<LibraryTable>(*m_window, "loci"); }

    QStringList Shown() const
    {
        QStringList tags;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            tags += Table().model()->index(row, 0).data().toString();
        return tags;
    }

    QModelIndex RowOf(const QString& tag) const
    {
        return Table().model()->index(static_cast<int>(Shown().indexOf(tag)), 0);
    }

    void ClickRow(const QString& tag, Qt::KeyboardModifiers modifiers = {})
    {
        const QRect cell = Table().visualRect(RowOf(tag).siblingAtColumn(1));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, modifiers, cell.center());
        Settle();
        ++m_actions;
    }

    void ClickTick(const QString& tag)
    {
        const QRect cell = Table().visualRect(RowOf(tag));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier,
                          {cell.left() + 8, cell.center().y()});
        Settle();
        ++m_actions;
    }

    bool IsTicked(const QString& tag) const
    {
        return RowOf(tag).data(Qt::CheckStateRole) == Qt::Checked;
    }

    void PressInTable(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Table(), key, modifiers);
        Settle();
        ++m_actions;
    }

    void ClickTool(const char* command)
    {
        auto& tools = Named<QToolBar>(*m_window, "commands");
        QTest::mouseClick(tools.widgetForAction(&Named<QAction>(*m_window, command)),
                          Qt::LeftButton);
        Settle();
        ++m_actions;
    }

    void Trigger(const char* command)
    {
        Named<QAction>(*m_window, command).trigger();
        Settle();
        ++m_actions;
    }

    void AddAll()
    {
        if (!Named(*m_window, "cmdAddAll").isVisible())
            Trigger("selectLoci");
        QTest::mouseClick(&Named(*m_window, "cmdAddAll"), Qt::LeftButton);
        Settle();
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
    int m_actions = 0;
};

} // namespace

TEST_F(MainWindowTest, LociAreFoundByAClickOrAFewKeys)
{
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "FGA", "TH01"}));
    ClickGroup("blue");
    EXPECT_EQ(m_actions, 1);
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "TH01"}));
    EXPECT_EQ(Group("blue").text(1), "2");
    ClickGroup("Library");

    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    auto& search = Named<QLineEdit>(*m_window, "search");
    EXPECT_TRUE(search.hasFocus());
    Type(search, "dye:blue");
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "TH01"}));
    Trigger("keepSearch");
    search.setText("dye:pink");
    auto& errors = Named<QLabel>(*m_window, "searchErrors");
    EXPECT_TRUE(errors.isVisible() && errors.text().contains("dye:pink"));
    search.clear();
    EXPECT_FALSE(errors.isVisible());
    ClickGroup("dye:blue");
    EXPECT_EQ(Shown().size(), 2);
    EXPECT_EQ(search.text(), "dye:blue");
    Trigger("forgetSearch");
    EXPECT_TRUE(KeptSearches().isEmpty());
    search.clear();

    m_actions = 0;
    ClickGroup("H24");
    PressInTable(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_actions, 2);
    EXPECT_EQ(Table().ChosenRows().size(), 2U);
    EXPECT_TRUE(Named<QLabel>(*m_window, "status").text().startsWith("2 of 2 chosen."));
    Trigger("copy");
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Tag\tDye\t"));
    EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 3);
}

TEST_F(MainWindowTest, SeveralAreDeletedWithOneQuestion)
{
    ClickTick("FGA");
    Trigger("save");
    m_actions = 0;
    ClickRow("D3S1358");
    ClickRow("FGA", Qt::ShiftModifier);
    Answer("No", "Casework");
    PressInTable(Qt::Key_Delete);
    EXPECT_EQ(m_actions, 3);
    EXPECT_EQ(Shown().size(), 3);
    Answer("Yes", "D3S1358, FGA");
    PressInTable(Qt::Key_Delete);
    EXPECT_EQ(Shown(), QStringList({"TH01"}));
    EXPECT_TRUE(m_window->OpenParameter()->SelectedTags().empty());
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "Deleted 2 loci.");
}

TEST_F(MainWindowTest, TwoAreCompared)
{
    ClickRow("D3S1358");
    EXPECT_FALSE(Named<QAction>(*m_window, "compare").isEnabled());
    ClickRow("TH01", Qt::ControlModifier);
    ClickTool("compare");
    EXPECT_EQ(m_actions, 3);
    const auto& fields = Named<QTableWidget>(*m_window, "differences");
    EXPECT_TRUE(fields.isVisible());
    EXPECT_EQ(fields.horizontalHeaderItem(1)->text(), "D3S1358");
    ASSERT_FALSE(fields.findItems("Fragment range", Qt::MatchExactly).isEmpty());
    EXPECT_TRUE(fields.findItems("Dye", Qt::MatchExactly).isEmpty()) << "both are blue";
}

TEST_F(MainWindowTest, AParameterIsMadeOfAPanel)
{
    ClickGroup("H24");
    PressInTable(Qt::Key_A, Qt::ControlModifier);
    AnswerName("Kit");
    Trigger("newParameter");
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
    Trigger("selectLoci");
    EXPECT_EQ(Named<QTableView>(*m_window, "gridSelected").model()->rowCount(), 1);
    AddAll();
    Trigger("selectLoci");
    EXPECT_TRUE(IsTicked("FGA"));
    EXPECT_TRUE(Named<QLabel>(*m_window, "status")
                    .text()
                    .contains("Casework: 1 overlap: D3S1358 and TH01, 120 to 136 nt (blue)"));
    ClickTick("TH01");
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 2U);

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
    EXPECT_EQ(m_window->OpenParameter()->SelectedTags().size(), 2U);
    Trigger("revert");
    EXPECT_FALSE(IsTicked("FGA"));
    ClickGroup("Casework");
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "FGA"}));
}

TEST_F(MainWindowTest, MenusTakeLettersThatTheSelectorHasNot)
{
    ClickGroup("Casework");
    Trigger("selectLoci");
    const auto letterOf = [](const QString& caption) {
        return caption.contains('&') ? caption[caption.indexOf('&') + 1].toLower() : QChar();
    };
    QString letters;
    for (const auto* button : m_window->findChildren<QPushButton*>())
        letters += button->isVisible() ? letterOf(button->text()) : QChar();
    EXPECT_TRUE(letters.contains('e')) << "Edit Locus";
    for (const QAction* menu : m_window->menuBar()->actions())
        EXPECT_FALSE(letters.contains(letterOf(menu->text()))) << menu->text().toStdString();
}

TEST_F(MainWindowTest, ALocusIsEditedRenamedCopiedAndMoved)
{
    OnModal([](QDialog& editor) {
        EXPECT_EQ(Named<QLineEdit>(editor, "txtFragEnd").text(), "180");
        Named<QLineEdit>(editor, "txtFragEnd").setFocus();
        Named<QLineEdit>(editor, "txtFragEnd").selectAll();
        Type(Named(editor, "txtFragEnd"), "190");
        QTest::keyClick(&Named(editor, "txtFragEnd"), Qt::Key_Return);
    });
    ClickRow("TH01");
    PressInTable(Qt::Key_Return);
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "Stored TH01.");
    EXPECT_EQ(RowOf("TH01").siblingAtColumn(2).data().toString(), "120\u2013190");
    ASSERT_EQ(Table().ChosenRows().size(), 1U);

    AnswerName("TH01-2026");
    Trigger("renameLocus");
    OnModal([](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QInputDialog&>(dialog).textValue(), "TH01-2026 copy");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Trigger("duplicateLocus");
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "FGA", "TH01-2026", "TH01-2026 copy"}));
    OnModal([](QDialog& dialog) {
        dynamic_cast<QInputDialog&>(dialog).setTextValue("red");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Trigger("setDye");
    OnModal([](QDialog& dialog) {
        dynamic_cast<QInputDialog&>(dialog).setTextValue("Trial");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Trigger("setProject");
    ClickGroup("Trial");
    EXPECT_EQ(Shown(), QStringList({"TH01-2026 copy"}));
    EXPECT_EQ(RowOf("TH01-2026 copy").siblingAtColumn(1).data().toString(), "red");
}

TEST_F(MainWindowTest, ABarOfTheLanesIsItsLocus)
{
    auto& preview = Named<QTabWidget>(*m_window, "preview");
    preview.setCurrentIndex(1);
    Settle();
    auto& lanes = Named<LanePicture>(preview, "lanePicture");
    const auto bars = lanes.Drawing().BarsInView(lanes.viewport()->size(), 0, lanes.fontMetrics());
    ASSERT_EQ(bars.size(), 3U);
    const LaneBar& bar = bars.back();
    QTest::mouseClick(lanes.viewport(), Qt::LeftButton, Qt::NoModifier,
                      bar.Rect.center().toPoint());
    Settle();
    ASSERT_EQ(Table().ChosenRows().size(), 1U);
    const QString tag = QString::fromStdString(lanes.Drawing().Loci()[bar.Locus].Tag);
    EXPECT_EQ(Shown()[Table().ChosenRows().front()], tag);
    OnModal([&](QDialog& editor) {
        EXPECT_EQ(Named<QLineEdit>(editor, "txtLocusTag").text(), tag);
        editor.reject();
    });
    QTest::mouseDClick(lanes.viewport(), Qt::LeftButton, Qt::NoModifier,
                       bar.Rect.center().toPoint());
    QTest::qWait(50);
}

TEST_F(MainWindowTest, CommandsAreFoundByTheirName)
{
    ClickRow("FGA");
    OnModal([this](QDialog& list) {
        Type(Named(list, "filter"), "rename loc");
        AnswerName("FGA-2");
        QTest::keyClick(&Named(list, "filter"), Qt::Key_Return);
    });
    Trigger("commands");
    EXPECT_TRUE(Shown().contains("FGA-2"));
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
    EXPECT_TRUE(m_window->OpenParameter()->SelectedTags().empty());
    ClickGroup("Casework");
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
    QTest::mouseClick(&Named<QToolButton>(*m_window, "revert"), Qt::LeftButton);
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
    Trigger("newParameter");
    EXPECT_EQ(Open(), "Fourth");
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
