#pragma once

#include "desktop/library/group_tree.h"
#include "desktop/library/library_table.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "tests/desktop/desktop_test.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QToolBar>
#include <QToolButton>

namespace Tamrivo::Testing
{

/// A person at the window. Each call that a person would count as one thing to do is counted.
class MainWindowTest : public DesktopTest
{
protected:
    MainWindowTest()
    {
        m_session.reset();
        QSettings().clear();
        OpenWindow();
        ClickGroup("Casework");
        ClickGroup("Library");
        m_actions = 0;
    }

    void OpenWindow()
    {
        m_window = std::make_unique<MainWindow>(m_frontEnd);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        ASSERT_TRUE(m_window->Bench().OpenStore(Address()));
        Settle();
    }

    static void Settle() { QTest::qWait(10); }

    QTreeWidgetItem& Group(const QString& name) const
    {
        for (QTreeWidgetItemIterator at(&Named<GroupTree>(*m_window, "groups")); *at; ++at)
        {
            if ((*at)->text(0) == name)
                return **at;
        }
        throw std::runtime_error("There is no group " + name.toStdString());
    }

    void ClickGroup(const QString& name)
    {
        auto& groups = Named<GroupTree>(*m_window, "groups");
        QTest::mouseClick(groups.viewport(), Qt::LeftButton, Qt::NoModifier,
                          groups.visualItemRect(&Group(name)).center());
        Settle();
        ++m_actions;
    }

    LibraryTable& Table() const { return Named<LibraryTable>(*m_window, "loci"); }

    QStringList Shown() const
    {
        QStringList tags;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            tags += Table().model()->index(row, 0).data().toString();
        return tags;
    }

    QModelIndex RowOf(const QString& tag) const
    {
        return Table().model()->index(static_cast<int>(Shown().indexOf(tag)), 0);
    }

    void ClickRow(const QString& tag, Qt::KeyboardModifiers modifiers = {})
    {
        const QRect cell = Table().visualRect(RowOf(tag).siblingAtColumn(1));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, modifiers, cell.center());
        Settle();
        ++m_actions;
    }

    void ClickTick(const QString& tag)
    {
        const QRect cell = Table().visualRect(RowOf(tag));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier,
                          {cell.left() + 8, cell.center().y()});
        Settle();
        ++m_actions;
    }

    bool IsTicked(const QString& tag) const
    {
        return RowOf(tag).data(Qt::CheckStateRole) == Qt::Checked;
    }

    void PressInTable(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Table(), key, modifiers);
        Settle();
        ++m_actions;
    }

    void ClickTool(CommandProcedure command)
    {
        auto& tools = Named<QToolBar>(*m_window, "commands");
        QTest::mouseClick(tools.widgetForAction(&m_window->Commands()[command]), Qt::LeftButton);
        Settle();
        ++m_actions;
    }

    void Trigger(CommandProcedure command)
    {
        m_window->Commands()[command].trigger();
        Settle();
        ++m_actions;
    }

    void ClickBar(CommandProcedure command)
    {
        for (auto* button : Named(*m_window, "parameterBar").findChildren<QToolButton*>())
        {
            if (button->defaultAction() == &m_window->Commands()[command])
                QTest::mouseClick(button, Qt::LeftButton);
        }
        Settle();
        ++m_actions;
    }

    /// Gives the fragment range another end, and finishes with Return.
    static void EditEnd(WizardDialog& editor, const QString& before, const QString& end)
    {
        auto& field = Named<QLineEdit>(editor, "txtFragEnd");
        EXPECT_EQ(field.text(), before);
        QApplication::setActiveWindow(&editor);
        field.setFocus();
        field.selectAll();
        Type(field, end);
        QTest::keyClick(&field, Qt::Key_Return);
    }

    /// The editors that stand open beside the window.
    static std::vector<WizardDialog*> Editors()
    {
        std::vector<WizardDialog*> editors;
        for (QWidget* window : QApplication::topLevelWidgets())
        {
            auto* editor = dynamic_cast<WizardDialog*>(window);
            if (editor != nullptr && editor->isVisible())
                editors.push_back(editor);
        }
        return editors;
    }
    static WizardDialog& Editor() { return *Editors().at(0); }

    void AddAll()
    {
        if (!Named(*m_window, "cmdAddAll").isVisible())
            Trigger(Do<&ParameterCommands::TurnToSelector>);
        QTest::mouseClick(&Named(*m_window, "cmdAddAll"), Qt::LeftButton);
        Settle();
    }

    std::string Open() const
    {
        return m_window->Bench().Parameter().View() ? m_window->Bench().Parameter().View()->Name()
                                                    : "";
    }

    static void AnswerName(const QString& name)
    {
        OnModal([name](QDialog& dialog) {
            auto& input = dynamic_cast<QInputDialog&>(dialog);
            input.setTextValue(name);
            QTest::keyClick(&input, Qt::Key_Return);
        });
    }

    static void Answer(const QString& button, const QString& expected = {})
    {
        OnModal([button, expected](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_TRUE((box.text() + box.informativeText()).contains(expected))
                << box.informativeText().toStdString();
            Press(box, button);
        });
    }

    std::unique_ptr<MainWindow> m_window;
    int m_actions = 0;
};

} // namespace Tamrivo::Testing
