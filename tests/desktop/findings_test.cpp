#include "desktop/findings/finding_watch.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/main_window.h"
#include "desktop/window/workbench.h"
#include "desktop_test.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

namespace Tamrivo::Testing
{

namespace
{

class FindingsTest : public DesktopTest
{
protected:
    FindingsTest()
    {
        const auto locus = Stored("D3S1358");
        locus->RepeatUnitSequence = "TCTAA";
        As<Allele>(locus->Alleles().Item(3))->AlleleReal1 += 0.9;
        Host().Store().Manager().Save(*locus, true);
    }

    void Wait(const LibraryView& view)
    {
        while (view.Watch().IsChecking())
            QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(FindingsTest, StandBesideTheLociAndLeadToFieldAndAllele)
{
    MainWindow window(m_frontEnd);
    window.show();
    ASSERT_TRUE(window.Bench().OpenStore(Address()));
    LibraryView& loci = window.Bench().Loci();
    EXPECT_TRUE(loci.Watch().IsChecking()) << "the store opens first";
    Wait(loci);
    loci.Preview().setCurrentIndex(LocusPreview::Findings);

    auto& list = Named<QTreeView>(window, "findings");
    const auto rowOf = [&list](const QString& rule) {
        for (int row = 0; row < list.model()->rowCount(); ++row)
        {
            if (list.model()->index(row, 0).data().toString() == rule)
                return list.model()->index(row, 0);
        }
        return QModelIndex();
    };
    ASSERT_TRUE(rowOf("repeat-length").isValid());
    ASSERT_TRUE(rowOf("outside-bin").isValid());

    loci.SetSearch("problem:repeat");
    EXPECT_EQ(loci.ShownCount(), 1U);
    loci.SetSearch("fga");
    EXPECT_FALSE(rowOf("repeat-length").isValid()) << "of the loci on show";
    loci.SetSearch({});

    emit list.activated(rowOf("outside-bin"));
    WizardDialog* editor = nullptr;
    for (QWidget* shown : QApplication::topLevelWidgets())
    {
        if (auto* dialog = dynamic_cast<WizardDialog*>(shown); dialog && dialog->isVisible())
            editor = dialog;
    }
    ASSERT_TRUE(editor);
    auto& pane = Named(*editor, "ctlPaneAlleleList");
    EXPECT_EQ(pane.findChild<QTableView*>()->currentIndex().row(), 2);
    emit list.activated(rowOf("repeat-length"));
    EXPECT_EQ(editor->focusWidget(), &Named(*editor, "txtRepeatUnitSequence"));
    editor->close();
}

} // namespace Tamrivo::Testing
