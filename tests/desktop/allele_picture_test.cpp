#include "allele_pane_fixture.h"
#include "controls/user.h"
#include "editor/locus_editor_form.h"
#include "host/store/store.h"

#include <cmath>

namespace Tamrivo::Testing
{

namespace
{

/// Acts on the picture as the mouse does.
class AllelePictureTest : public PaneWindowTest
{
protected:
    /// A place at a length in the middle of the bins.
    QPoint At(double length) const
    {
        return {static_cast<int>(std::lround(m_picture->Axis().X(length))),
                static_cast<int>(m_picture->Band().center().y())};
    }

    void Press(QPoint place) { QTest::mousePress(m_picture, Qt::LeftButton, {}, place); }
    /// Comes from beside, since a pointer that stands there already wouldn't move.
    void Move(QPoint place)
    {
        QTest::mouseMove(m_picture, place + QPoint(0, 1));
        QTest::mouseMove(m_picture, place);
    }
    void Release(QPoint place) { QTest::mouseRelease(m_picture, Qt::LeftButton, {}, place); }

    void Drag(double from, double to)
    {
        Press(At(from));
        Move(At(to));
        Release(At(to));
    }

    LocusEditorForm& Page() const
    {
        auto* editor = dynamic_cast<WizardDialog*>(m_view->window());
        return dynamic_cast<LocusEditorForm&>(editor->Page().Form());
    }

    const AlleleFields& Row(int row) const
    {
        return *m_pane->Rows()[static_cast<std::size_t>(row)];
    }
};

} // namespace

TEST_F(AllelePictureTest, BinsHaveTheColourOfTheDyeThatThePageShows)
{
    Host().Store().SetDyes(
        Dyes({{"blue", ""}, {"green", ""}, {"yellow", ""}, {"red", ""}, {"purple", "Dye5"}}));
    OnPane([this] {
        EXPECT_GT(Filled(3, Shade("blue")), 0.9);
        User::Choose(Page().cmbDye, "D5");
        EXPECT_GT(Filled(3, Shade("purple")), 0.9);
        EXPECT_TRUE(m_picture->accessibleDescription().contains("purple (Dye5)"));
        m_pane->EditCell(4, AlleleColumns[4], "true");
        EXPECT_EQ(Filled(3, Shade("purple")), 0) << "a virtual one is hollow";
    });
}

TEST_F(AllelePictureTest, AnEdgeIsDraggedAsFarAsItMayInOneStep)
{
    OnPane([this] {
        // Bin of 100 nt: 99.5 to 100.5; the next one starts at 103.5.
        Press(At(100.5));
        Move(At(101.5));
        ASSERT_TRUE(m_picture->Draft());
        EXPECT_NEAR(m_picture->Draft()->To, 101.5, 0.15);
        EXPECT_TRUE(m_picture->Draft()->Text.startsWith("Allele 6: bin 99.5 to 101."));
        EXPECT_EQ(Row(5).AlleleReal3, 100.5) << "nothing has changed yet";
        Release(At(101.5));
        EXPECT_NEAR(Row(5).AlleleReal3, 101.5, 0.15);
        EXPECT_EQ(m_pane->Steps(), 1U);
        EXPECT_EQ(m_table->currentIndex().row(), 5);
        EXPECT_FALSE(m_picture->Draft());

        struct Pull
        {
            double From;
            double To;
            double Start; ///< Of the bin of 108 nt, afterwards.
            double End;
        };
        for (const Pull& pull : {Pull{108.5, 125, 107.5, 111.5}, Pull{107.5, 90, 104.5, 111.5},
                                 Pull{104.5, 120, 108, 111.5}, Pull{111.5, 100, 108, 108}})
        {
            Drag(pull.From, pull.To);
            EXPECT_EQ(Row(7).AlleleReal2, pull.Start) << pull.From;
            EXPECT_EQ(Row(7).AlleleReal3, pull.End) << pull.From;
        }
        EXPECT_TRUE(m_pane->IsValid());
        for (int step = 0; step < 5; ++step)
            QTest::keyClick(m_picture, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Row(7).AlleleReal3, 108.5);
        EXPECT_EQ(Row(5).AlleleReal3, 100.5);
    });
}

TEST_F(AllelePictureTest, ADragEndsWithoutAChangeByEscapeOrWhenTheRowGoes)
{
    OnPane([this] {
        Press(At(100.5));
        Move(At(101.5));
        QTest::keyClick(m_picture, Qt::Key_Escape);
        EXPECT_TRUE(m_view->window()->isVisible()) << "the key was the drag's";
        Move(At(102));
        EXPECT_FALSE(m_picture->Draft());
        Release(At(102));
        EXPECT_EQ(m_pane->Steps(), 0U);

        Press(At(100.5));
        Move(At(101.5));
        m_pane->RemoveRow(6);
        Release(At(101.5));
        EXPECT_EQ(m_pane->Steps(), 1U);
        Drag(96.5, 96.5);
        EXPECT_EQ(m_pane->Steps(), 1U) << "a click on an edge only chooses";
    });
}

TEST_F(AllelePictureTest, AClickBetweenBinsAddsTheAlleleThatIsShown)
{
    OnPane([this] {
        Move(At(102));
        ASSERT_TRUE(m_picture->Draft());
        const BinDraft draft = *m_picture->Draft();
        EXPECT_TRUE(draft.Text.contains("allele 6.2 of 10")) << draft.Text.toStdString();
        Press(At(102));
        Release(At(102));
        QTest::mouseDClick(m_picture, Qt::LeftButton, {}, At(102));
        ASSERT_EQ(m_pane->Rows().size(), 16U) << "a double click adds one";
        EXPECT_EQ(Row(6).AlleleReal1, draft.Size);
        EXPECT_EQ(Row(6).AlleleReal2, draft.From);
        EXPECT_EQ(Row(6).AlleleReal4, 6.2);
        auto* name = dynamic_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(name) << "the name is there to be confirmed";
        EXPECT_EQ(name->text(), "6.2");
        QTest::keyClick(name, Qt::Key_Return);
        EXPECT_TRUE(m_pane->IsValid());
        EXPECT_EQ(m_pane->Steps(), 1U);

        Move({At(102).x(), 2});
        EXPECT_FALSE(m_picture->Draft()) << "above the bins";
        Move(At(137));
        EXPECT_FALSE(m_picture->Draft()) << "outside the range";
        Page().ctlPaneAlleleList.SetEnabled(false);
        Move(At(98));
        EXPECT_FALSE(m_picture->Draft()) << "out of reach";
        Drag(96.5, 97.5);
        EXPECT_EQ(m_pane->Steps(), 1U);
    });
}

} // namespace Tamrivo::Testing
