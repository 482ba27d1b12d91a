#include "core/text.h"
#include "desktop/forms/actions.h"
#include "desktop/import/import_dialog.h"
#include "desktop/text.h"
#include "platform/store/store.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string header = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tVirtual\tColor\tRepeat"
                           "\tMarker.Min\tMarker.Max\tOffset\n";
const std::string d3 = "P\tD3S1358\t8\t94.05\t93.55\t94.55\t1\tblue\t4\t92.01\t148.2\t62\n"
                       "P\tD3S1358\t9\t98.08\t97.58\t98.58\t0\tblue\t4\t92.01\t148.2\t62\n";
const std::string purple = "P\tD12S391\t18\t232\t231.5\t232.5\t0\tpurple\t4\t211\t270\t160\n";
const std::string d3OfQ = "Q\tD3S1358\t11\t110\t109.5\t110.5\t0\tgreen\t4\t98\t148\t66\n";

class ImportDialogTest : public testing::Test
{
protected:
    void Preview(const std::string& rows)
    {
        QFile file(m_directory.filePath("panels.tsv"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(header + rows));
        file.close();
        m_dialog.Preview(file.fileName());
        m_dialog.show();
    }

    template <class Widget>
    Widget& Find(const char* name)
    {
        return *m_dialog.findChild<Widget*>(name);
    }

    /// What stands in a marker's row, by the column's title.
    std::string Cell(int panel, int marker, const QString& title)
    {
        const QAbstractItemModel& model = *Find<QTreeView>("importPreview").model();
        for (int column = 0; column < model.columnCount(); ++column)
        {
            if (model.headerData(column, Qt::Horizontal).toString() == title)
                return FromQString(
                    model.index(marker, column, model.index(panel, 0)).data().toString());
        }
        return "no such column";
    }

    std::string Status() { return FromQString(Find<QLabel>("importStatus").text()); }
    QPushButton& ImportButton() { return Find<QPushButton>("importNow"); }

    std::vector<std::string> Tags()
    {
        std::vector<std::string> tags;
        const auto loci = CurrentLoci(m_store.Manager(), "Name");
        for (const auto& locus : loci->Members())
            tags.push_back(locus->Name());
        return tags;
    }

    QTemporaryDir m_directory;
    Store m_store{FromQString(m_directory.filePath("store.sqlite"))};
    std::vector<std::string> m_failures;
    Actions m_actions{
        [this](const ErrorRecord& error) { m_failures.push_back(error.Description); }};
    ImportDialog m_dialog{m_store, m_actions};
};

TEST_F(ImportDialogTest, LeavesOutOnlyWhatThePersonLeavesOut)
{
    Preview(d3 + purple + d3OfQ);
    EXPECT_EQ(Cell(0, 0, "What happens"), "Comes in");
    EXPECT_EQ(Cell(0, 0, "Tag"), "D3S1358 (P)");
    EXPECT_EQ(Cell(0, 0, "Range (nt)"), "92 to 149");
    EXPECT_EQ(Cell(0, 0, "Alleles"), "2");
    EXPECT_EQ(Cell(0, 1, "What happens"), "Can't come in");
    EXPECT_EQ(Cell(0, 1, "Line"), "4");
    EXPECT_EQ(FromQString(Find<QPlainTextEdit>("importReasons").toPlainText()),
              "line 4: D12S391 of P: " + Cell(0, 1, "Remarks"));
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_THAT(Status(), HasSubstr("1 locus can't come in."));

    QTest::keyClick(&Find<QCheckBox>("importPartial"), Qt::Key_Space);
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    EXPECT_THAT(Tags(), ElementsAre("D3S1358 (P)", "D3S1358 (Q)"));
    EXPECT_THAT(m_dialog.Result().toStdString(), AllOf(HasSubstr("Imported 2 loci with 3 alleles."),
                                                       HasSubstr("Left out 1 locus.")));
    EXPECT_EQ(m_dialog.result(), QDialog::Accepted);
}

TEST_F(ImportDialogTest, ImportsTheTickedPanelsIntoTheChosenProject)
{
    Preview(d3 + purple + d3OfQ);
    auto& tree = Find<QTreeView>("importPreview");
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(Cell(0, 0, "What happens"), "");
    EXPECT_EQ(Cell(1, 0, "Tag"), "D3S1358");
    EXPECT_TRUE(ImportButton().isEnabled());
    EXPECT_FALSE(Find<QPlainTextEdit>("importReasons").isVisible());

    // The name counts although the button comes before the preview has followed the typing.
    auto& project = Find<QComboBox>("importProject");
    QTest::keyClicks(&project, "Casework");
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    ASSERT_THAT(Tags(), ElementsAre("D3S1358"));
    EXPECT_EQ(m_store.FindLocus("D3S1358")->ProjectName, "Casework");

    tree.setCurrentIndex(tree.model()->index(1, 0));
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_THAT(Status(), HasSubstr("Tick a panel"));
}

TEST_F(ImportDialogTest, RefusesWhatBringsNothing)
{
    Preview(d3OfQ + "P\tFGA\t12.2\tmuch\t257.95\t258.95\t0\tYellow\t4\t257\t420\t208\n");
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_THAT(Status(), HasSubstr("lines that can't be read"));
    EXPECT_THAT(Find<QPlainTextEdit>("importReasons").toPlainText().toStdString(),
                HasSubstr("line 3, column Size: "));

    Preview("");
    EXPECT_THAT(Status(), HasSubstr("has no markers"));

    Preview(d3);
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    Preview(d3);
    EXPECT_EQ(Cell(0, 0, "What happens"), "In the store already");
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_THAT(Status(), HasSubstr("nothing new"));
}

/// Presses Cancel as soon as the progress of an import shows up.
class ImpatientPerson : public QObject
{
public:
    ImpatientPerson() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* progress = qobject_cast<QProgressDialog*>(watched);
        if (progress != nullptr && event->type() == QEvent::WindowTitleChange)
            progress->cancel();
        return false;
    }
};

TEST_F(ImportDialogTest, StoresNothingWhenCancelled)
{
    Preview(d3 + d3OfQ);
    {
        const ImpatientPerson person;
        QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    }
    EXPECT_THAT(Tags(), IsEmpty());
    EXPECT_TRUE(m_dialog.isVisible());
    EXPECT_EQ(Status(), "Cancelled: nothing was imported.");
    EXPECT_THAT(m_failures, IsEmpty());

    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    EXPECT_THAT(Tags(), ElementsAre("D3S1358 (P)", "D3S1358 (Q)"));
}

TEST_F(ImportDialogTest, TellsWhenSomeoneElseTookTheTag)
{
    Preview(d3);
    const auto locus = CreateObject<Locus>(m_store.Manager(), "Locus");
    locus->SetLocusTag("D3S1358");
    locus->SetIsCurrent(true);
    m_store.Manager().Save(*locus, true);
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    EXPECT_THAT(m_failures, ElementsAre(HasSubstr("D3S1358")));
    EXPECT_TRUE(m_dialog.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Cell(0, 0, "Tag") == "D3S1358 (P)"; }));
}

} // namespace

} // namespace Tamrivo
