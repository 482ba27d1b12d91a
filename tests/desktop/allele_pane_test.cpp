#include "allele_pane_fixture.h"
#include "desktop/alleles/observed_comparison.h"
#include "desktop/front_end/problem_list.h"

#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QTemporaryFile>
#include <QToolButton>
#include <QToolTip>

namespace Tamrivo::Testing
{

TEST_F(PaneWindowTest, CellsAreEditedInPlaceAndThePictureFollows)
{
    OnPane([this] {
        ASSERT_EQ(m_table->model()->rowCount(), 15);
        EXPECT_EQ(Cell(0, 1), "80");
        EXPECT_GT(Filled(0, Shade("blue")), 0.9);

        EditCell(0, 3, "84");
        EXPECT_EQ(Cell(0, 3), "84");
        EXPECT_EQ(StateOf(0), BinState::Overlapping);
        EXPECT_EQ(StateOf(1), BinState::Overlapping);
        EXPECT_LT(Filled(0, Shade("blue")), 0.9) << "told by the pattern";

        auto& rangeEnd = Named<QLineEdit>(*m_view->window(), "txtFragEnd");
        rangeEnd.selectAll();
        Type(rangeEnd, "130");
        EXPECT_EQ(StateOf(13), BinState::OutOfRange) << "the range as the page shows it";
        rangeEnd.selectAll();
        Type(rangeEnd, "136");
        EXPECT_EQ(StateOf(13), BinState::InOrder);

        EXPECT_EQ(StateOf(14), BinState::InOrder) << "136 nt, its bin up to 136.5";
        EditCell(14, 1, "140");
        m_table->clearFocus();
        EXPECT_EQ(StateOf(14), BinState::OutOfRange);
        EXPECT_LT(Filled(14, Shade("blue")), 0.9);

        EditCell(2, 1, "never");
        EXPECT_EQ(Cell(2, 1), "88") << "refused";
        EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().contains("Row 3"); }, 1000));

        EditCell(0, 1, "137");
        EXPECT_EQ(Cell(0, 1), "137") << "the row stays while the person is there";
        m_table->setCurrentIndex(m_table->model()->index(4, 1));
        EXPECT_EQ(Cell(13, 1), "137") << "rows stand by size";
        EXPECT_EQ(m_table->currentIndex().row(), 3) << "the person is where they went";
    });
}

TEST_F(PaneWindowTest, AnAlleleIsTypedInAfterTheChosenOne)
{
    OnPane([this] {
        auto& range = Named(*m_view->window(), "txtFragEnd");
        Focus(range);
        QTest::keyClick(&range, Qt::Key_F6);
        EXPECT_EQ(QApplication::focusWidget(), m_table);
        m_table->selectRow(14);
        QTest::keyClick(m_table, Qt::Key_Insert);
        for (const char* text : {"9.2", "114", "113.5", "114.5"})
        {
            QTest::keyClicks(QApplication::focusWidget(), text);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(QApplication::focusWidget(), m_table);
        EXPECT_EQ(m_table->currentIndex(), m_table->model()->index(15, 4)) << "still at its row";
        QTest::keyClick(m_table, Qt::Key_Space);
        QTest::keyClick(m_table, Qt::Key_F6);
        EXPECT_EQ(QApplication::focusWidget(), m_picture);
        QString row;
        for (int column = 0; column < m_table->model()->columnCount(); ++column)
            row += m_table->model()->index(9, column).data(Qt::EditRole).toString() + ' ';
        EXPECT_EQ(row, "9.2 114 113.5 114.5 true 9.2 edited ");
        EXPECT_EQ(m_table->currentIndex().row(), 9) << "the selection stays with its allele";
        EXPECT_TRUE(m_pane->IsValid());

        QTest::keyClick(m_picture, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(m_pane->Rows()[9]->AlleleInt2, 0) << "one action";
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(m_picture, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(m_table->currentIndex().row(), 15) << "back at 140 nt, with its allele";
        EXPECT_DOUBLE_EQ(m_pane->Rows()[15]->AlleleReal4, 9.2) << "by its name";
    });
}

TEST_F(PaneWindowTest, TheKeyboardGoesToTableButtonsAndPicture)
{
    OnPane([this] {
        auto& field = Named(*m_view->window(), "txtRepeat");
        Focus(field);
        QTest::keyClick(&field, Qt::Key_F6, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), m_picture);
        QTest::keyClick(m_picture, Qt::Key_End);
        QTest::keyClick(m_picture, Qt::Key_Left);
        EXPECT_EQ(m_table->currentIndex().row(), 13);
        QTest::keyClick(m_picture, Qt::Key_F6);
        EXPECT_TRUE(field.hasFocus()) << "where the person was";

        QTest::keyClick(&field, Qt::Key_F6);
        QTest::keyClick(m_table, Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Add allele");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(m_table->model()->rowCount(), 16);
        EXPECT_EQ(m_table->currentIndex().row(), 14) << "after the chosen one";
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QTest::keyClick(m_table, Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), m_picture);
        QTest::keyClick(m_picture, Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), m_table);

        // The wizard's own buttons belong to the form.
        auto& finish = Named(*m_view->window(), "finish");
        for (const auto& [modifier, area] :
             {std::pair<Qt::KeyboardModifiers, QWidget*>{Qt::NoModifier, m_table},
              {Qt::ShiftModifier, m_picture}})
        {
            Focus(finish);
            QTest::keyClick(&finish, Qt::Key_F6, modifier);
            EXPECT_EQ(QApplication::focusWidget(), area);
        }
    });
}

TEST_F(PaneWindowTest, ABinWithoutWidthIsDrawnAsALineAndWarnedOf)
{
    OnPane([this] {
        for (int row = 0; row < 15; ++row)
        {
            m_pane->EditCell(row + 1, AlleleColumns[2], Cell(row, 1).toStdString());
            m_pane->EditCell(row + 1, AlleleColumns[3], Cell(row, 1).toStdString());
        }
        EXPECT_FALSE(m_picture->Shapes()[0].HasWidth());
        EXPECT_EQ(Named<QLabel>(*m_view, "alleleState").text(),
                  "Row 1: The bin has no width (and 14 more)");
        EXPECT_TRUE(m_pane->IsValid());
    });
}

TEST_F(PaneWindowTest, RowsAreAddedRemovedAndTakenBack)
{
    OnPane([this] {
        m_table->setFocus();
        QTest::keyClick(m_table, Qt::Key_Insert);
        EXPECT_EQ(m_table->model()->rowCount(), 16);
        EXPECT_FALSE(m_pane->IsValid()) << "no name yet";
        QTest::keyClick(m_table->findChild<QLineEdit*>(), Qt::Key_Escape);
        QTest::keyClick(m_table, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(m_table->model()->rowCount(), 15);

        m_table->clearSelection();
        for (const auto* button : m_view->findChildren<QToolButton*>())
            EXPECT_TRUE(button->accessibleName() != "Remove alleles" || !button->isEnabled());
        m_table->selectRow(3);
        QTest::keyClick(m_table, Qt::Key_Delete);
        EXPECT_EQ(m_table->model()->rowCount(), 14);
        EXPECT_EQ(Cell(3, 1), "96");
        QTest::keyClick(m_table, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(m_table, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(m_table->model()->rowCount(), 14);
    });
}

TEST_F(PaneWindowTest, CellsAreExchangedWithOtherPrograms)
{
    OnPane([this] {
        m_table->setFocus();
        m_table->selectionModel()->setCurrentIndex(m_table->model()->index(0, 0),
                                                   QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
        QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), "1\t80\t79.5\t80.5\tfalse\t1\tgenerated\n");

        QApplication::clipboard()->setText("x\t135\t134.5\t135.5\r\ny\t139\t138.5\t139.5\r\n");
        m_table->setCurrentIndex(m_table->model()->index(14, 0));
        QTest::keyClick(m_table, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(m_table->model()->rowCount(), 16);
        EXPECT_EQ(Cell(14, 0) + Cell(15, 0) + Cell(15, 3), "xy139.5");
        QTest::keyClick(m_table, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(m_table->model()->rowCount(), 15) << "one step";
        EXPECT_EQ(Cell(14, 1), "136");
    });
}

TEST_F(PaneWindowTest, ThePictureTellsAndSelectsTheRow)
{
    OnPane([this] {
        const QPoint place = m_picture->RectOf(m_picture->Shapes()[5]).center().toPoint();
        QHelpEvent hover(QEvent::ToolTip, place, m_picture->mapToGlobal(place));
        QApplication::sendEvent(m_picture, &hover);
        EXPECT_TRUE(QToolTip::text().startsWith("Row 6: 6, 100 nt"))
            << QToolTip::text().toStdString();
        QTest::mouseClick(m_picture, Qt::LeftButton, Qt::NoModifier, place);
        EXPECT_EQ(m_table->currentIndex().row(), 5);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        EXPECT_EQ(m_table->model()->rowCount(), 14);
    });
}

TEST_F(PaneWindowTest, AnInvalidListKeepsTheWizardOpenAndTellsWhy)
{
    Edit("D3S1358", [this](WizardDialog& editor) {
        auto& pane =
            dynamic_cast<User::AllelePaneControl&>(*editor.Page().Form().Find("ctlPaneAlleleList"));
        User::EditAllele(pane, 1, AlleleColumns[0], "");
        const auto& problems = Named<ProblemList>(editor, "problems").Shown();
        ASSERT_EQ(problems.size(), 1U);
        EXPECT_EQ(problems[0].Text, "Allele list, row 1: The name is missing.");
        QTest::mouseClick(&Named(editor, "finish"), Qt::LeftButton);
        EXPECT_TRUE(editor.isVisible());
        Discard(editor);
    });
}

TEST_F(PaneWindowTest, ObservedSizesAreCountedFollowEditsAndProposeBinsInOneStep)
{
    OnPane([this] {
        ObservedComparison* comparison = nullptr;
        for (auto* child : m_view->findChildren<QWidget*>())
        {
            if (auto* found = dynamic_cast<ObservedComparison*>(child))
                comparison = found;
        }
        ASSERT_TRUE(comparison);
        EXPECT_FALSE(comparison->isVisible());
        QTemporaryFile file;
        ASSERT_TRUE(file.open());
        file.write("Sample\tMarker\tSize\nS\tTH01\t99\n");
        for (const char* size :
             {"80.1", "84.1", "84.2", "88.3", "88.4", "92.3, 92.4", "96.5", "97.3"})
            file.write(QByteArray("S\td3s1358\t") + size + "\n");
        file.flush();
        comparison->Read(file.fileName());
        ASSERT_TRUE(m_picture->Observed());
        EXPECT_EQ(m_picture->Observed()->Counts[1], 2U);
        EXPECT_EQ(m_picture->Observed()->Outside, std::vector<double>{97.3});
        EditCell(4, 3, "97.5");
        EXPECT_TRUE(m_picture->Observed()->Outside.empty()) << "follows the edit";

        const auto fieldsOfRows = [this] {
            std::vector<AlleleFields> fields;
            for (const auto& row : m_pane->Rows())
                fields.push_back(*row);
            return fields;
        };
        const auto before = fieldsOfRows();
        comparison->Propose();
        EXPECT_EQ(fieldsOfRows(), before);
        EXPECT_EQ(m_picture->Observed()->Proposed.size(), 6U);
        comparison->TakeOver();
        EXPECT_NE(fieldsOfRows(), before);
        EXPECT_TRUE(m_pane->IsValid());
        m_pane->Undo();
        EXPECT_EQ(fieldsOfRows(), before) << "one step";
        comparison->Close();
        EXPECT_FALSE(m_picture->Observed());
    });
}

} // namespace Tamrivo::Testing
