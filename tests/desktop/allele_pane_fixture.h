#pragma once

#include "desktop/alleles/allele_pane_view.h"
#include "desktop/alleles/allele_picture.h"
#include "desktop/common/dye_shade.h"
#include "desktop_test.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableView>

namespace Tamrivo::Testing
{

/// The allele pane in an open editor, as a person sees it.
class PaneWindowTest : public DesktopTest
{
protected:
    /// Opens the editor on D3S1358, whose alleles are 80, 84, ... 136 nt with bins of 1 nt.
    void OnPane(const std::function<void()>& act)
    {
        Edit("D3S1358", [&](WizardDialog& editor) {
            m_view = dynamic_cast<QWidget*>(&Named(editor, "ctlPaneAlleleList"));
            m_table = m_view->findChild<QTableView*>();
            m_pane = &User::AllelesOf(dynamic_cast<User::AllelePaneControl&>(
                *editor.Page().Form().Find("ctlPaneAlleleList")));
            for (auto* child : m_view->findChildren<QWidget*>())
            {
                if (auto* picture = dynamic_cast<AllelePicture*>(child))
                    m_picture = picture;
            }
            act();
            Discard(editor);
        });
    }

    /// Types a cell's new content as a person does.
    void EditCell(int row, int column, const QString& text)
    {
        m_table->setFocus();
        m_table->setCurrentIndex(m_table->model()->index(row, column));
        QTest::keyClick(m_table->viewport(), Qt::Key_F2);
        QLineEdit* editor = nullptr;
        for (auto* candidate : m_table->findChildren<QLineEdit*>())
            editor = candidate->isVisible() ? candidate : editor;
        ASSERT_TRUE(editor);
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    QString Cell(int row, int column) const
    {
        return m_table->model()->index(row, column).data().toString();
    }

    BinState StateOf(int row) const
    {
        return m_picture->Shapes()[static_cast<std::size_t>(row)].State;
    }

    /// The share of a bin's place in the picture, apart from its outline, that has the colour.
    double Filled(int row, const QColor& color) const
    {
        const QRect bin = m_picture->RectOf(m_picture->Shapes()[static_cast<std::size_t>(row)])
                              .toRect()
                              .adjusted(2, 4, -2, -2);
        const QImage image = m_picture->grab().toImage();
        int count = 0;
        for (int y = bin.top(); y <= bin.bottom(); ++y)
        {
            for (int x = bin.left(); x <= bin.right(); ++x)
                count += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return static_cast<double>(count) / (bin.width() * bin.height());
    }

    QColor Shade(const char* color) const
    {
        return DyeShade(Dyes({{color, ""}, {"brown", ""}, {"cyan", ""}, {"black", ""}}), 0,
                        m_picture->palette());
    }

    QWidget* m_view = nullptr;
    QTableView* m_table = nullptr;
    AllelePane* m_pane = nullptr;
    AllelePicture* m_picture = nullptr;
};

} // namespace Tamrivo::Testing
