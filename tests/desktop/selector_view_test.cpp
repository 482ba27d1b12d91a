#include "desktop/front_end/hosted_views.h"
#include "desktop/grids/grid_view.h"
#include "desktop_test.h"
#include "host/framework/parameter_page.h"
#include "host/grid/grid_model.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace Tamrivo::Testing
{

namespace
{

class SelectorViewTest : public DesktopTest
{
protected:
    SelectorViewTest()
        : m_page(Host(), Host().Parameters().Create("P", TagLists::OneEmpty)),
          m_view(m_page.Selector(), m_frontEnd.UserActions(), HostedViews({}))
    {
        m_view.resize(m_view.sizeHint());
        m_view.show();
        QApplication::setActiveWindow(&m_view);
        QCoreApplication::processEvents();
    }

    GridView& Available() { return dynamic_cast<GridView&>(Named(m_view, "gridAvailable")); }
    GridView& Selected() { return dynamic_cast<GridView&>(Named(m_view, "gridSelected")); }

    void Click(QTableView& grid, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, modifiers,
                          grid.visualRect(grid.model()->index(row, 0)).center());
    }

    void Press(const char* button) { QTest::mouseClick(&Named(m_view, button), Qt::LeftButton); }

    QString Tags(const QTableView& grid)
    {
        QStringList tags;
        for (int row = 0; row < grid.model()->rowCount(); ++row)
            tags += grid.model()->index(row, 0).data().toString();
        return tags.join(' ');
    }

    std::string Highlighted(QTableView& grid)
    {
        std::string rows;
        for (const QModelIndex& index : grid.selectionModel()->selectedRows())
            rows += std::to_string(index.row());
        return rows;
    }

    /// Picks an item of the next popup menu that opens, or dismisses it for an empty text.
    void OnMenu(const QString& item)
    {
        auto* timer = new QTimer(&m_view);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, item] {
            auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            timer->deleteLater();
            timer->stop();
            for (QAction* action : menu->actions())
            {
                if (action->text() == item)
                    menu->setActiveAction(action);
            }
            QTest::keyClick(menu, item.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        timer->start(5);
    }

    void RightClick(GridView& grid, int row)
    {
        const QPoint place = grid.visualRect(grid.model()->index(row, 0)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                grid.viewport()->mapToGlobal(place));
        QApplication::sendEvent(grid.viewport(), &event);
    }

    ParameterPage m_page;
    FormView m_view;
};

} // namespace

TEST_F(SelectorViewTest, TheButtonsBelowTheGridsAreInFullView)
{
    for (const char* button : {"cmdEditSTRLocus", "cmdNewSTRLocus"})
    {
        EXPECT_TRUE(m_view.rect().contains(Named(m_view, button).geometry())) << button;
        EXPECT_FALSE(Named(m_view, button).geometry().intersects(Available().geometry()));
    }
    const int before = Available().height();
    m_view.resize(m_view.size() + QSize(200, 100));
    EXPECT_EQ(Available().height(), before + 100) << "the grids take the room";
    EXPECT_TRUE(m_view.rect().contains(Named(m_view, "cmdNewSTRLocus").geometry()));
}

TEST_F(SelectorViewTest, TheMouseHighlightsAndMoves)
{
    ASSERT_EQ(Tags(Available()), "D3S1358 FGA TH01");
    EXPECT_FALSE(Named(m_view, "cmdAddSingle").isEnabled());
    Click(Available(), 0);
    EXPECT_EQ(Highlighted(Available()), "0");
    EXPECT_TRUE(Named(m_view, "cmdAddSingle").isEnabled());
    EXPECT_TRUE(Named(m_view, "cmdEditSTRLocus").isEnabled());
    Click(Available(), 2, Qt::ShiftModifier);
    EXPECT_EQ(Highlighted(Available()), "012");
    EXPECT_FALSE(Named(m_view, "cmdEditSTRLocus").isEnabled());
    Click(Available(), 1, Qt::ControlModifier);
    EXPECT_EQ(Highlighted(Available()), "02");
    Press("cmdAddSingle");
    EXPECT_EQ(Tags(Available()), "FGA");
    EXPECT_EQ(Tags(Selected()), "D3S1358 TH01");
    EXPECT_TRUE(m_page.Selector().mnuEditAvailable.Enabled()) << "one row is highlighted again";

    QTest::mouseDClick(Selected().viewport(), Qt::LeftButton, Qt::NoModifier,
                       Selected().visualRect(Selected().model()->index(0, 0)).center());
    EXPECT_EQ(Tags(Selected()), "TH01");
    Press("cmdRemoveAll");
    Press("cmdAddAll");
    EXPECT_EQ(Tags(Available()), "");
    EXPECT_EQ(m_page.Selector().NumberOfSelectedLocusTags(), 3);
}

TEST_F(SelectorViewTest, TheKeyboardDoesAllThatTheMouseDoes)
{
    Available().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Available(), Qt::Key_Down);
    EXPECT_EQ(Highlighted(Available()), "0");
    QTest::keyClick(&Available(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Highlighted(Available()), "01");
    QTest::keyClick(&Available(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(Highlighted(Available()), "01");
    QTest::keyClick(&Available(), Qt::Key_Space);
    EXPECT_EQ(Highlighted(Available()), "012");
    QTest::keyClick(&Available(), Qt::Key_T);
    EXPECT_EQ(Highlighted(Available()), "2") << "typing goes to TH01";
    QTest::keyClick(&Available(), Qt::Key_Return);
    EXPECT_EQ(Tags(Selected()), "TH01");
    QTest::keyClick(&Available(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Highlighted(Available()), "01");
}

TEST_F(SelectorViewTest, HeadersSortAndMenusOpenAtThePointer)
{
    QHeaderView& header = *Available().horizontalHeader();
    EXPECT_TRUE(header.isSortIndicatorShown());
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header.sectionPosition(0) + 20, header.height() / 2));
    EXPECT_EQ(Tags(Available()), "TH01 FGA D3S1358");
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);

    OnMenu("Sort Ascending");
    emit header.customContextMenuRequested(QPoint(20, 5));
    EXPECT_EQ(Tags(Available()), "D3S1358 FGA TH01");

    OnMenu("Add");
    RightClick(Available(), 1);
    EXPECT_EQ(Tags(Selected()), "FGA");
    OnMenu("");
    RightClick(Selected(), 0);
    EXPECT_EQ(Highlighted(Selected()), "0");
    EXPECT_EQ(Tags(Selected()), "FGA");

    OnMenu("Edit");
    OnModal([](QDialog& editor) {
        EXPECT_EQ(Named<QLineEdit>(editor, "txtFragStart").text(), "200");
        editor.reject();
    });
    RightClick(Selected(), 0);
}

TEST_F(SelectorViewTest, ADisabledSelectorIsGreyedAndStays)
{
    m_page.Selector().SetEnabled(false);
    Click(Available(), 0);
    EXPECT_EQ(Highlighted(Available()), "");
    EXPECT_EQ(Available().palette().color(QPalette::Base),
              QApplication::palette().color(QPalette::Button));
    EXPECT_FALSE(Named(m_view, "cmdNewSTRLocus").isEnabled());
    m_page.Selector().Initialize(Host().Parameters().Open("P"));
    for (const char* button : {"cmdAddAll", "cmdAddSingle", "cmdRemoveAll", "cmdRemoveSingle",
                               "cmdEditSTRLocus", "cmdNewSTRLocus"})
    {
        EXPECT_FALSE(Named(m_view, button).isEnabled()) << "what would be refused is grey";
        Press(button);
        QTest::keyClick(&Named(m_view, button), Qt::Key_Space);
    }
    EXPECT_TRUE(m_page.Selector().cmdAddAll.Enabled()) << "the button's own switch";
    EXPECT_EQ(Tags(Available()), "D3S1358 FGA TH01");
    m_page.Selector().SetEnabled(true);
    EXPECT_TRUE(Named(m_view, "cmdAddAll").isEnabled());
    EXPECT_TRUE(Named(m_view, "cmdNewSTRLocus").isEnabled());
    EXPECT_EQ(Available().palette().color(QPalette::Base),
              QApplication::palette().color(QPalette::Base));
}

} // namespace Tamrivo::Testing
