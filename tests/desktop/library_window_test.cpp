#include "desktop/common/settings.h"
#include "desktop/help/guide_window.h"
#include "desktop/lanes/lane_picture.h"
#include "host/library/changes.h"
#include "host/panels/panel_format.h"
#include "main_window_fixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBlock>

#include <fstream>

namespace Tamrivo::Testing
{

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
    Trigger(Do<&SearchCommands::Keep>);
    search.setText("dye:pink");
    auto& errors = Named<QLabel>(*m_window, "searchErrors");
    EXPECT_TRUE(errors.isVisible() && errors.text().contains("dye:pink"));
    search.clear();
    EXPECT_FALSE(errors.isVisible());
    ClickGroup("dye:blue");
    EXPECT_EQ(Shown().size(), 2);
    EXPECT_EQ(search.text(), "dye:blue");
    Trigger(Do<&SearchCommands::Forget>);
    EXPECT_TRUE(KeptSearches().isEmpty());
    search.clear();

    m_actions = 0;
    ClickGroup("H24");
    PressInTable(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_actions, 2);
    EXPECT_EQ(Table().ChosenRows().size(), 2U);
    EXPECT_TRUE(Named<QLabel>(*m_window, "status").text().startsWith("2 of 2 chosen."));
    Trigger(Do<&LocusCommands::Copy>);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Tag\tDye\t"));
    EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 3);
}

TEST_F(MainWindowTest, SeveralAreDeletedWithOneQuestion)
{
    ClickTick("FGA");
    Trigger(Do<&ParameterCommands::Save>);
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
    EXPECT_TRUE(m_window->Bench().Parameter().View()->SelectedTags().empty());
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "Deleted 2 loci.");
}

TEST_F(MainWindowTest, TwoAreCompared)
{
    ClickRow("D3S1358");
    EXPECT_FALSE(m_window->Commands()[Do<&LocusCommands::Compare>].isEnabled());
    ClickRow("TH01", Qt::ControlModifier);
    ClickTool(Do<&LocusCommands::Compare>);
    EXPECT_EQ(m_actions, 3);
    const auto& fields = Named<QTableWidget>(*m_window, "differences");
    EXPECT_TRUE(fields.isVisible());
    EXPECT_EQ(fields.horizontalHeaderItem(1)->text(), "D3S1358");
    ASSERT_FALSE(fields.findItems("Fragment range", Qt::MatchExactly).isEmpty());
    EXPECT_TRUE(fields.findItems("Dye", Qt::MatchExactly).isEmpty()) << "both are blue";
}

TEST_F(MainWindowTest, TwentyFourOfFortySixAreExportedToAKitTableInFiveActions)
{
    Store& store = m_window->Bench().Host().Store();
    store.Together([&] {
        for (int copy = 1; copy <= 43; ++copy)
            DuplicateLocus(store, copy <= 22 ? "FGA" : "TH01", "M" + std::to_string(copy));
    });
    m_window->Bench().Reload({});
    EXPECT_EQ(Shown().size(), 46);
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_directory.path());
    OnModal([&](QDialog& dialog) {
        Named<QComboBox>(dialog, "exportScope").setCurrentText("Panel H24");
        Named<QComboBox>(dialog, "exportFormat")
            .setCurrentIndex(static_cast<int>(PanelFormat::KitTable));
        m_actions += 2;
        OnModal([&](QDialog& files) {
            QTest::keyClick(&Named(files, "fileNameEdit"), Qt::Key_Return);
            ++m_actions;
        });
        ++m_actions;
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    ClickTool(Do<&PanelFileCommands::Export>);
    QDir::setCurrent(before);
    EXPECT_LE(m_actions, 5);
    QFile file(m_directory.filePath("H24.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QSet<QByteArray> markers;
    const auto column = file.readLine().split('\t').indexOf("Marker");
    while (!file.atEnd())
        markers += file.readLine().split('\t').value(column);
    EXPECT_EQ(markers.size(), 24);
    EXPECT_TRUE(markers.contains("D3S1358") && !markers.contains("TH01"));
}

TEST_F(MainWindowTest, ANewLocusWithTwelveAllelesTakesTwelveActions)
{
    ClickTool(Do<&LocusCommands::New>);
    WizardDialog& editor = Editor();
    QApplication::setActiveWindow(&editor);
    const auto enter = [&](const char* name, const QString& text) {
        auto& field = Named<QLineEdit>(editor, name);
        if (!field.hasFocus())
        {
            Focus(field);
            ++m_actions;
        }
        field.selectAll();
        Type(field, text);
        ++m_actions;
    };
    enter("txtLocusTag", "D1S80");
    enter("txtFragStart", "100");
    enter("txtFragEnd", "144");
    enter("txtShortestAlleleSize", "100");
    QTest::mouseClick(&Named(editor, "cmdGenAlleleList"), Qt::LeftButton);
    QTest::mouseClick(&Named(editor, "finish"), Qt::LeftButton);
    m_actions += 2;
    Settle();
    EXPECT_LE(m_actions, 12);
    EXPECT_TRUE(Editors().empty());
    EXPECT_EQ(RowOf("D1S80").siblingAtColumn(4).data().toString(), "12");
    EXPECT_EQ(Table().ChosenRows(), std::vector<int>{RowOf("D1S80").row()});
}

TEST_F(MainWindowTest, ALocusIsEditedRenamedCopiedAndMoved)
{
    ClickRow("TH01");
    PressInTable(Qt::Key_Return);
    EditEnd(Editor(), "180", "190");
    Settle();
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "Stored TH01.");
    EXPECT_EQ(RowOf("TH01").siblingAtColumn(2).data().toString(), "120\u2013190");
    ASSERT_EQ(Table().ChosenRows().size(), 1U);

    AnswerName("TH01-2026");
    Trigger(Do<&LocusCommands::Rename>);
    OnModal([](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QInputDialog&>(dialog).textValue(), "TH01-2026 copy");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Trigger(Do<&LocusCommands::Duplicate>);
    EXPECT_EQ(Shown(), QStringList({"D3S1358", "FGA", "TH01-2026", "TH01-2026 copy"}));
    OnModal([](QDialog& dialog) {
        dynamic_cast<QInputDialog&>(dialog).setTextValue("red");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Trigger(Do<&LocusCommands::SetDye>);
    OnModal([](QDialog& dialog) {
        dynamic_cast<QInputDialog&>(dialog).setTextValue("Trial");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Trigger(Do<&LocusCommands::SetProject>);
    ClickGroup("Trial");
    EXPECT_EQ(Shown(), QStringList({"TH01-2026 copy"}));
    EXPECT_EQ(RowOf("TH01-2026 copy").siblingAtColumn(1).data().toString(), "red");
}

TEST_F(MainWindowTest, EditorsStandBesideTheWindowOneALocus)
{
    for (const char* tag : {"TH01", "FGA", "TH01"})
    {
        ClickRow(tag);
        PressInTable(Qt::Key_Return);
    }
    ASSERT_EQ(Editors().size(), 2U);
    for (WizardDialog* editor : Editors())
    {
        const QString tag = Named<QLineEdit>(*editor, "txtLocusTag").text();
        EXPECT_TRUE(editor->windowTitle().startsWith(tag + "[*]"));
        EXPECT_FALSE(editor->isWindowModified());
        EditEnd(*editor, tag == "FGA" ? "300" : "180", "310");
        Settle();
        EXPECT_EQ(m_window->statusBar()->currentMessage(), "Stored " + tag + ".");
    }
    EXPECT_TRUE(Editors().empty());

    // What is changed and open keeps the window, until the person has decided.
    ClickTool(Do<&LocusCommands::Edit>);
    auto& end = Named<QLineEdit>(Editor(), "txtFragEnd");
    Focus(end);
    end.selectAll();
    Type(end, "320");
    Settle();
    EXPECT_TRUE(Editor().isWindowModified());
    Named<QAction>(Editor(), "undo").trigger();
    EXPECT_FALSE(Editor().isWindowModified());
    Named<QAction>(Editor(), "redo").trigger();
    Answer("Go On Editing");
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(Editors().size(), 1U);
    Answer("Discard Changes");
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(Editors().empty());
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
    QTest::mouseDClick(lanes.viewport(), Qt::LeftButton, Qt::NoModifier,
                       bar.Rect.center().toPoint());
    QTest::qWait(50);
    EXPECT_EQ(Named<QLineEdit>(Editor(), "txtLocusTag").text(), tag);
    Editor().reject();
}

TEST_F(MainWindowTest, CommandsAreFoundByTheirName)
{
    ClickRow("FGA");
    OnModal([this](QDialog& list) {
        Type(Named(list, "filter"), "rename loc");
        AnswerName("FGA-2");
        QTest::keyClick(&Named(list, "filter"), Qt::Key_Return);
    });
    Trigger(Do<&Commands::ShowList>);
    Trigger(Do<&ViewCommands::UseDarkTheme>);
    EXPECT_TRUE(m_window->Commands()[Do<&ViewCommands::UseDarkTheme>].isChecked());
    Trigger(Do<&ViewCommands::UseDesktopTheme>);
    EXPECT_FALSE(m_window->Commands()[Do<&ViewCommands::UseDarkTheme>].isChecked());
    EXPECT_TRUE(Shown().contains("FGA-2"));
}

TEST_F(MainWindowTest, F1OpensTheGuideAtWhatHasTheFocus)
{
    for (const auto& [name, heading] :
         {std::pair{"loci", "The library"}, std::pair{"search", "Search"},
          std::pair{"groups", "The library"}, std::pair{"preview", "The library"}})
    {
        Focus(Named(*m_window, name));
        QTest::keyClick(&Named(*m_window, name), Qt::Key_F1);
        Settle();
        const auto& guide = *m_window->findChild<GuideWindow*>();
        EXPECT_EQ(guide.cursorForPosition({40, 8}).block().text(), heading) << name;
        QApplication::setActiveWindow(m_window.get());
    }
}

TEST_F(MainWindowTest, ATipIsShownUntilItWasRead)
{
    const auto shown = [&] {
        QSet<QString> tips;
        for (const auto* tip : m_window->findChildren<QWidget*>("tip"))
        {
            if (tip->isVisible())
                tips += tip->findChild<QLabel*>()->text();
        }
        return tips;
    };
    const QSet<QString> before = shown();
    ASSERT_EQ(before.size(), 2) << "of the library and the parameter";
    auto& read = Named<QToolButton>(Named(*m_window, "parameterBar"), "tipRead");
    QTest::mouseClick(&read, Qt::LeftButton);
    const QSet<QString> after = shown();
    EXPECT_EQ(after.size(), 1);
    m_window->close();
    OpenWindow();
    EXPECT_EQ(shown(), after);
}

TEST_F(MainWindowTest, AFileThatIsNoStoreIsRefusedInWordsAndTheOpenOneStays)
{
    const std::string path = m_directory.filePath("letter.sqlite").toStdString();
    std::ofstream(path) << "Dear colleague, this is no store of any kind at all.";
    OnModal([](QDialog& failure) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(failure).text().contains("letter.sqlite"));
        QTest::keyClick(&failure, Qt::Key_Escape);
    });
    EXPECT_FALSE(m_window->Bench().OpenStore(path));
    EXPECT_EQ(Open(), "Casework");
    AddAll();
    Trigger(Do<&ParameterCommands::Save>);
    EXPECT_FALSE(m_window->isWindowModified());
}

} // namespace Tamrivo::Testing
