#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/store_session.h"
#include "host/loci/counts.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QStackedWidget>

#include <unordered_set>
#include <utility>

namespace Tamrivo
{

namespace
{

constexpr const char* nameLabel = "Name of the analysis parameter:";

} // namespace

bool MainWindow::ChooseParameter(const std::string& name)
{
    if (m_view != nullptr && EqualNoCase(m_view->Name(), name))
        return true;
    if (!MayLeave())
        return false;
    ShowParameter(name);
    return m_view != nullptr && EqualNoCase(m_view->Name(), name);
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
    m_view->onChanged = [this] { ShowSelection(); };
    m_pages->addWidget(m_view);
    RememberParameter(ToQString(Host().Store().Name()), ToQString(name));
    ShowSelection();
}

void MainWindow::ShowSelection()
{
    std::unordered_set<std::int32_t> selected;
    for (const auto& locus : m_view->SelectedLoci())
        selected.insert(locus->LocusID());
    m_groups->MarkOpen(ToQString(m_view->Name()), m_view->IsChanged(), selected.size());
    m_library->SetSelected(std::move(selected));
    ShowState();
}

void MainWindow::CloseParameter()
{
    if (m_view == nullptr)
        return;
    if (IsSelectorShown())
        m_pages->setCurrentWidget(m_library);
    delete std::exchange(m_view, nullptr);
    m_groups->MarkOpen({}, false, 0);
    m_library->SetSelected(std::nullopt);
    ShowState();
}

void MainWindow::LeaveParameter()
{
    if (!MayLeave())
        return;
    CloseParameter();
    RememberParameter(ToQString(Host().Store().Name()), {});
    Reload({});
}

void MainWindow::ToggleSelector()
{
    m_pages->setCurrentWidget(IsSelectorShown() ? static_cast<QWidget*>(m_library) : m_view);
    ShowState();
}

void MainWindow::SelectChosen(bool isSelected)
{
    m_view->Select(m_library->ChosenTags(), isSelected);
}

void MainWindow::DropOn(const std::string& parameter, const std::vector<std::string>& tags)
{
    if (!ChooseParameter(parameter))
        return;
    m_view->Select(tags, true);
    Tell("Added to " + ToQString(parameter) + ". Save the parameter to keep it.");
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

void MainWindow::AskName(const QString& title, const QString& label, const std::string& proposed,
                         const std::function<void(const std::string&)>& use)
{
    QString name = ToQString(proposed);
    bool isGiven = true;
    do
    {
        name = QInputDialog::getText(this, title, label, QLineEdit::Normal, name, &isGiven);
    } while (isGiven && !Run([&] { use(FromQString(name)); }));
}

void MainWindow::NewParameter()
{
    if (!MayLeave())
        return;
    const auto tags = m_library->ChosenTags();
    const QString label = tags.empty() ? QString(nameLabel)
                                       : "Name of the analysis parameter, which begins with the " +
                                             ToQString(CountOfLoci(tags.size())) + " chosen:";
    AskName("New Analysis Parameter", label, {}, [&](const std::string& name) {
        Host().Parameters().Create(name, TagLists::OneEmpty);
        ShowNewParameter(name);
        m_view->Select(tags, true);
        m_view->Save();
        Reload("Made " + ToQString(name) + " with " + ToQString(CountOfLoci(tags.size())) + ".");
    });
}

void MainWindow::ShowNewParameter(const std::string& name)
{
    CloseParameter();
    ShowParameter(name);
    Reload({});
    const LocusGroup group{LocusGroup::Kind::Parameter, ToQString(name)};
    m_groups->Choose(group);
    ChooseGroup(group);
}

void MainWindow::RenameParameter()
{
    if (!MayLeave())
        return;
    const std::string before = m_view->Name();
    AskName("Rename Analysis Parameter", nameLabel, before, [&](const std::string& name) {
        Host().Parameters().Rename(before, name);
        ShowNewParameter(name);
    });
}

void MainWindow::DuplicateParameter()
{
    if (!MayLeave())
        return;
    const std::string original = m_view->Name();
    AskName("Duplicate Analysis Parameter", nameLabel, original + " copy",
            [&](const std::string& name) {
                Host().Parameters().Duplicate(original, name);
                ShowNewParameter(name);
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
    m_groups->Choose({});
    Reload("Deleted " + name + ".");
}

void MainWindow::SaveParameter()
{
    m_view->Save();
    const QString news = "Saved " + ToQString(m_view->Name()) + ".";
    m_library->Read();
    ShowGroups();
    Tell(news);
}

void MainWindow::RevertParameter()
{
    m_view->Revert();
}

} // namespace Tamrivo
