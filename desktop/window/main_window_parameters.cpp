#include "desktop/forms/actions.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_list.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/store_session.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QStackedWidget>
#include <QStatusBar>

namespace Tamrivo
{

void MainWindow::ChooseParameter(const std::string& name)
{
    if (m_view != nullptr && m_view->Name() == name)
        return;
    if (MayLeave())
        Run([&] { ShowParameter(name); });
    m_list->ShowChosen(m_view != nullptr ? m_view->Name() : std::string());
}

void MainWindow::ShowParameter(const std::string& name)
{
    ParameterView* view = nullptr;
    const bool isOpen =
        Run([&] { view = new ParameterView(Host(), m_frontEnd.UserActions(), name, m_pages); });
    if (!isOpen)
        return;
    CloseParameter();
    m_view = view;
    m_view->onChanged = [this] { ShowState(); };
    m_pages->addWidget(m_view);
    m_list->ShowChosen(name);
    RememberParameter(ToQString(Host().Store().Name()), ToQString(name));
    ShowState();
}

void MainWindow::CloseParameter()
{
    delete std::exchange(m_view, nullptr);
    if (m_session != nullptr)
        ShowState();
}

bool MainWindow::MayLeave()
{
    if (m_view == nullptr || !m_view->IsChanged())
        return true;
    QMessageBox box(QMessageBox::Warning, "Unsaved Changes",
                    "The selection of \"" + ToQString(m_view->Name()) +
                        "\" has changes that are not saved.",
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setObjectName("unsaved");
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText("Save them before going on?");
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec())
    {
    case QMessageBox::Save: return Run([this] { m_view->Save(); });
    case QMessageBox::Discard: return true;
    default: return false;
    }
}

void MainWindow::AskName(const QString& title, const std::string& proposed,
                         const std::function<void(const std::string&)>& use)
{
    QString name = ToQString(proposed);
    bool isGiven = true;
    do
    {
        name = QInputDialog::getText(
            this, title, "Name of the analysis parameter:", QLineEdit::Normal, name, &isGiven);
    } while (isGiven && !Run([&] { use(FromQString(name)); }));
}

void MainWindow::NewParameter()
{
    if (!MayLeave())
        return;
    AskName("New Analysis Parameter", {}, [this](const std::string& name) {
        Host().Parameters().Create(name, TagLists::OneEmpty);
        ShowNames();
        ShowParameter(name);
    });
}

void MainWindow::RenameParameter()
{
    if (!MayLeave())
        return;
    const std::string before = m_view->Name();
    AskName("Rename Analysis Parameter", before, [&](const std::string& name) {
        Host().Parameters().Rename(before, name);
        CloseParameter();
        ShowNames();
        ShowParameter(name);
    });
}

void MainWindow::DuplicateParameter()
{
    if (!MayLeave())
        return;
    const std::string original = m_view->Name();
    AskName("Duplicate Analysis Parameter", original + " copy", [&](const std::string& name) {
        Host().Parameters().Duplicate(original, name);
        ShowNames();
        ShowParameter(name);
    });
}

void MainWindow::DeleteParameter()
{
    const QString name = ToQString(m_view->Name());
    QMessageBox box(QMessageBox::Warning, "Delete Analysis Parameter",
                    "Delete the analysis parameter \"" + name + "\"?",
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText("Its loci stay in the store.");
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() != QMessageBox::Yes)
        return;
    Host().Parameters().Delete(FromQString(name));
    CloseParameter();
    ShowNames();
    statusBar()->showMessage("Deleted " + name + ".");
}

void MainWindow::SaveParameter()
{
    m_view->Save();
    statusBar()->showMessage("Saved " + ToQString(m_view->Name()) + ".");
}

void MainWindow::RevertParameter()
{
    m_view->Revert();
}

void MainWindow::SavePicture()
{
    m_view->Picture().SavePictureAs();
}

} // namespace Tamrivo
