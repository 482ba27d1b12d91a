#include "controls/user.h"
#include "desktop/findings/finding_watch.h"
#include "desktop/front_end/problem_list.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/main_window.h"
#include "desktop/window/workbench.h"
#include "desktop_test.h"
#include "editor/locus_editor_form.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

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

    static ProblemList& ProblemsIn(WizardDialog& editor)
    {
        return Named<ProblemList>(editor, "problems");
    }

    /// Whether the editor comes to list a problem of a kind whose text begins so.
    static bool Lists(WizardDialog& editor, PageProblemKind kind, const QString& text, bool wanted)
    {
        return QTest::qWaitFor(
            [&] {
                const auto& shown = ProblemsIn(editor).Shown();
                return wanted == std::ranges::any_of(shown, [&](const PageProblem& problem) {
                           return problem.Kind == kind && problem.Text.startsWith(text);
                       });
            },
            3000);
    }

    void Wait(const LibraryView& view)
    {
        while (view.Watch().IsChecking())
            QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(FindingsTest, AreListedInTheEditorAndFollowThePage)
{
    const auto beside = Stored("TH01");
    beside->PrimerSet = "h24";
    Host().Store().Manager().Save(*beside, true);
    Edit("D3S1358", [this](WizardDialog& editor) {
        const auto error = PageProblemKind::Error;
        const QString overlap = "The range 80 to 136 nt overlaps that of TH01";
        EXPECT_TRUE(Lists(editor, error, "The repeat sequence TCTAA has 5 nt", true));
        EXPECT_TRUE(Lists(editor, PageProblemKind::Warning, overlap, true)) << "of its panel";
        EXPECT_TRUE(Lists(editor, PageProblemKind::Obstacle, "Allele list, row 3", true));
        EXPECT_TRUE(Lists(editor, error, "Allele 3: ", false)) << "is told of already";
        const int height = ProblemsIn(editor).height();

        auto& page = dynamic_cast<LocusEditorForm&>(editor.Page().Form());
        User::Choose(page.cmbDye, "D3");
        EXPECT_TRUE(Lists(editor, PageProblemKind::Warning, overlap, false));
        User::Choose(page.cmbDye, "D1");
        EXPECT_TRUE(Lists(editor, PageProblemKind::Warning, overlap, true));
        Replace(editor, "txtPrimerSet", "K");
        EXPECT_TRUE(Lists(editor, PageProblemKind::Warning, overlap, false));
        User::EditAllele(page.ctlPaneAlleleList, 3, AlleleColumns[1], "88");
        User::EditAllele(page.ctlPaneAlleleList, 9, AlleleColumns[BinToColumn], "114.5");
        EXPECT_TRUE(Lists(editor, PageProblemKind::Warning, "Allele 9: ", true)) << "an odd bin";
        EXPECT_EQ(ProblemsIn(editor).height(), height);

        const auto& shown = ProblemsIn(editor).Shown();
        const auto row = std::ranges::find(shown, 9, &PageProblem::Allele) - shown.begin();
        emit ProblemsIn(editor).itemActivated(ProblemsIn(editor).item(static_cast<int>(row)));
        auto& pane = Named(editor, "ctlPaneAlleleList");
        EXPECT_EQ(pane.findChild<QTableView*>()->currentIndex().row(), 8);
        Discard(editor);
    });
}

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
