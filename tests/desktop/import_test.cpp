#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/import/export_dialog.h"
#include "desktop/import/import_dialog.h"
#include "desktop/window/dyes_dialog.h"
#include "host/panels/panel_files.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>
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
        m_dialog.Preview({file.fileName()});
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

TEST_F(ImportDialogTest, ImportsTheTickedMarkers)
{
    // A panel whose lines don't stand together.
    Preview(purple + d3OfQ + d3);
    auto& tree = Find<QTreeView>("importPreview");
    QAbstractItemModel& model = *tree.model();
    const QModelIndex panel = model.index(0, 0);
    tree.setCurrentIndex(model.index(0, 0, panel));
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(panel.data(Qt::CheckStateRole), Qt::PartiallyChecked);
    EXPECT_EQ(Cell(0, 0, "What happens"), "");
    EXPECT_EQ(Cell(0, 1, "Tag"), "D3S1358 (P)");
    EXPECT_EQ(Cell(1, 0, "Tag"), "D3S1358 (Q)");
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    EXPECT_THAT(Tags(), ElementsAre("D3S1358 (P)", "D3S1358 (Q)"));

    // Read as something else, the table has nothing.
    Find<QComboBox>("importFormat").setCurrentIndex(4);
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_THAT(Find<QPlainTextEdit>("importReasons").toPlainText().toStdString(),
                HasSubstr("XML"));
}

TEST_F(ImportDialogTest, ShowsWhatACheckFindsInWhatComesIn)
{
    const std::string outside = "P\tvWA\t15\t170\t165\t166\t0\tgreen\t4\t150\t200\t110\n";
    Preview(d3 + outside + "Q\tvWA\t15\t170\t165\t166\t0\tpurple\t4\t150\t200\t110\n");
    auto& caption = Find<QLabel>("importFindingsCaption");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !caption.text().startsWith("Checking"); }));
    EXPECT_EQ(Cell(0, 0, "Findings"), "");
    EXPECT_EQ(Cell(0, 1, "Findings"), "1 error");
    EXPECT_EQ(Cell(1, 0, "Findings"), "") << "It can't come in.";

    auto& tree = Find<QTreeView>("importPreview");
    auto& list = Find<QTreeView>("importFindings");
    const QModelIndex panel = tree.model()->index(0, 0);
    tree.setCurrentIndex(tree.model()->index(0, 0, panel));
    EXPECT_FALSE(list.isVisible());
    for (const QModelIndex& row : {panel, tree.model()->index(1, 0, panel)})
    {
        tree.setCurrentIndex(row);
        ASSERT_EQ(list.model()->rowCount(), 1);
        EXPECT_EQ(list.model()->index(0, 0).data().toString(), "outside-bin");
    }
    EXPECT_EQ(FromQString(caption.text()), "A check finds in vWA: 1 error");
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_FALSE(list.isVisible());
}

TEST_F(ImportDialogTest, RefusesWhatBringsNothing)
{
    Preview(d3OfQ + "P\tFGA\t12.2\tmuch\t257.95\t258.95\t0\tYellow\t4\t257\t420\t208\n");
    EXPECT_FALSE(ImportButton().isEnabled());
    EXPECT_THAT(Status(), HasSubstr("1 locus can't come in"));
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

TEST_F(ImportDialogTest, AddsDyesAndUpdatesLociThatDiffer)
{
    Preview(d3 + purple);
    QTest::keyClick(&Find<QCheckBox>("importAddDyes"), Qt::Key_Space);
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    EXPECT_EQ(m_store.Dyes().ColorOf(4), "purple");

    std::string changed = d3 + purple;
    changed.replace(changed.find("94.05"), 5, "94.25");
    Preview(changed);
    EXPECT_FALSE(ImportButton().isEnabled());
    auto& tree = Find<QTreeView>("importPreview");
    tree.setCurrentIndex(tree.model()->index(0, 0, tree.model()->index(0, 0)));
    auto& differences = Find<QTreeWidget>("importDifferences");
    ASSERT_EQ(differences.topLevelItemCount(), 1);
    EXPECT_EQ(differences.topLevelItem(0)->text(0), "8");
    EXPECT_EQ(differences.topLevelItem(0)->text(3), "94.25");
    QTest::keyClick(&Find<QCheckBox>("importUpdate"), Qt::Key_Space);
    EXPECT_EQ(Cell(0, 0, "What happens"), "Is updated");
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    EXPECT_EQ(As<Allele>(m_store.FindLocus("D3S1358")->Alleles().Item(1))->AlleleReal1, 94.25);

    // What was written is read back as it was.
    ExportDialog dialog(m_store, m_actions);
    auto* format = dialog.findChild<QComboBox*>("exportFormat");
    format->setCurrentIndex(3);
    EXPECT_FALSE(dialog.findChild<QPushButton*>("exportNow")->isEnabled());
    EXPECT_TRUE(dialog.findChild<QLabel*>("exportOutlook")->text().contains("size standards"));
    format->setCurrentIndex(2);
    dialog.Write(m_directory.filePath("p.txt"), m_directory.filePath("b.txt"));
    m_dialog.Preview({m_directory.filePath("b.txt"), m_directory.filePath("p.txt")});
    EXPECT_EQ(Cell(0, 1, "What happens"), "In the store already");
}

TEST_F(ImportDialogTest, ExportsTheChosenOrThoseOfAParameterOrAPanel)
{
    Preview(d3 + d3OfQ);
    QTest::mouseClick(&ImportButton(), Qt::LeftButton);
    ParameterStore parameters(m_store);
    const auto casework = parameters.Create("Casework", TagLists::OneEmpty);
    const auto entry = parameters.NewEntry();
    entry->SetTagName("D3S1358 (Q)");
    entry->Load();
    casework->FragAnalysisParam().LocusTagList(0).Add(entry);
    parameters.Save(*casework);

    ExportDialog dialog(m_store, m_actions, nullptr,
                        {.Chosen = {"D3S1358 (P)"}, .Parameter = "Casework"});
    auto& scope = *dialog.findChild<QComboBox*>("exportScope");
    QStringList offered;
    for (int at = 0; at < scope.count(); ++at)
        offered.append(scope.itemText(at));
    EXPECT_EQ(offered.join(", ").toStdString(),
              "The chosen 1 locus, Parameter Casework, All current loci, Panel P, Panel Q");
    EXPECT_EQ(scope.currentIndex(), 1);
    std::string markers;
    for (int at = 0; at < scope.count(); ++at)
    {
        scope.setCurrentIndex(at);
        dialog.Write(m_directory.filePath("out.tsv"));
        const PanelFile file = OpenPanelFile(FromQString(m_directory.filePath("out.tsv")));
        for (const PanelMarker& marker : ReadPanels({&file, 1}).Markers)
            markers += marker.Panel;
        markers += " ";
    }
    EXPECT_EQ(markers, "P Q PQ P Q ");
}

TEST_F(ImportDialogTest, StorePropertiesHaveTheDyes)
{
    DyesDialog dialog(m_store, m_actions);
    QTest::mouseClick(dialog.findChild<QPushButton*>("addDye"), Qt::LeftButton);
    auto* table = dialog.findChild<QTableWidget*>("dyes");
    table->item(4, 2)->setText("Dye5");
    EXPECT_EQ(dialog.Chosen().TitleOf(4), "purple (Dye5)");
    dynamic_cast<QComboBox*>(table->cellWidget(4, 1))->setCurrentText("blue");
    auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_THAT(m_failures, ElementsAre(HasSubstr("two of them are blue")));
    dynamic_cast<QComboBox*>(table->cellWidget(4, 1))->setCurrentText("cyan");
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(m_store.Dyes().TitleOf(4), "cyan (Dye5)");
}

} // namespace

} // namespace Tamrivo
