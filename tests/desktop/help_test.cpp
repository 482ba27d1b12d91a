#include "desktop/help/guide_window.h"
#include "desktop/help/help_key.h"
#include "desktop/help/help_topics.h"
#include "desktop_test.h"

#include <QApplication>
#include <QTextBlock>

namespace Tamrivo::Testing
{

namespace
{

/// The heading at which the guide stands that belongs to a window; empty when none is shown.
std::string ShownHeading(const QWidget& window)
{
    const auto* guide = window.findChild<GuideWindow*>();
    return guide != nullptr && guide->isVisible() ? guide->textCursor().block().text().toStdString()
                                                  : "";
}

} // namespace

TEST(Help, TheGuideHasWhatEachWindowIsToldUnder)
{
    for (const char* name :
         {"LocusEditor", "SaveLocusTagAs", "import", "exportLoci", "storeProperties", "search",
          "STRLocusTagSelector", "parameterBar", "main", "commandList", "findings", "reports",
          "history", "projects", "backup", "failure"})
    {
        QWidget window;
        window.setObjectName(name);
        const QWidget inner(&window);
        GuideWindow::ShowAt(HelpTopicOf(&inner), &window);
        EXPECT_EQ(ShownHeading(window), HelpTopicOf(&inner).toStdString()) << name;
        EXPECT_NE(ShownHeading(window), "User's guide") << name;
    }
    EXPECT_EQ(HelpTopicOf(nullptr), "");
}

using HelpTest = DesktopTest;

TEST_F(HelpTest, F1OpensTheGuideBesideThePageAndItsLinksAreFollowed)
{
    HelpKey key;
    qApp->installEventFilter(&key);
    Edit("D3S1358", [](WizardDialog& editor) {
        QTest::keyClick(&Named(editor, "txtRepeat"), Qt::Key_F1);
        EXPECT_EQ(ShownHeading(editor), "Define a locus");
        auto& guide = *editor.findChild<GuideWindow*>();
        for (const auto& [link, heading] : {std::pair{"#the-library", "The library"},
                                            {"shell.md", "The shell"},
                                            {"guide.md#import-and-export", "Import and export"}})
        {
            emit guide.anchorClicked(QUrl(link));
            EXPECT_EQ(ShownHeading(editor), heading) << link;
        }
        emit guide.anchorClicked(QUrl("../examples/sample_loci.tsv"));
        EXPECT_TRUE(guide.toPlainText().contains("D3S1358"));
        QTest::keyClick(&guide, Qt::Key_F1);
        QTest::keyClick(&Named(editor, "txtRepeat"), Qt::Key_F1);
        EXPECT_EQ(editor.findChildren<GuideWindow*>().size(), 1) << "the same window";
        EXPECT_EQ(ShownHeading(editor), "Define a locus");
        guide.close();
        editor.close();
    });
}

} // namespace Tamrivo::Testing
