#include "desktop/history/projects_dialog.h"

#include "contracts/object_manager.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "host/store/project_changes.h"
#include "host/store/store.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Tamrivo
{

ProjectsDialog::ProjectsDialog(Store& store, const Actions& actions, QWidget* parent)
    : QDialog(parent), m_store(store), m_actions(actions), m_list(new QListWidget(this))
{
    setObjectName("projects");
    setWindowTitle("Projects");
    auto* caption = new QLabel("&Projects of the store:", this);
    caption->setBuddy(m_list);
    m_list->setObjectName("projectList");
    m_list->setAccessibleName("Projects");

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto addButton = [&](const char* text, const char* name,
                               void (ProjectsDialog::*procedure)()) {
        QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setEnabled(!m_store.IsReadOnly());
        connect(button, &QPushButton::clicked, this,
                [this, procedure] { m_actions.Run([this, procedure] { (this->*procedure)(); }); });
        return button;
    };
    addButton("&New...", "newProject", &ProjectsDialog::Add);
    m_rename = addButton("&Rename...", "renameProject", &ProjectsDialog::Rename);
    m_delete = addButton("&Delete", "deleteProject", &ProjectsDialog::Delete);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        for (QPushButton* button : {m_rename, m_delete})
            button->setEnabled(row >= 0 && !m_store.IsReadOnly());
    });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    Show({});
}

void ProjectsDialog::Add()
{
    AskName("New Project", {}, [this](const std::string& name) { AddNewProject(m_store, name); });
}

void ProjectsDialog::Rename()
{
    AskName("Rename Project", Chosen(), [this](const std::string& name) {
        RenameProject(m_store, FromQString(Chosen()), name);
    });
}

void ProjectsDialog::Delete()
{
    DeleteProject(m_store, FromQString(Chosen()));
    m_hasChanged = true;
    Show({});
}

void ProjectsDialog::AskName(const QString& title, const QString& proposed,
                             const std::function<void(const std::string&)>& use)
{
    bool isGiven = false;
    const QString name =
        QInputDialog::getText(this, title, "Name:", QLineEdit::Normal, proposed, &isGiven);
    if (!isGiven)
        return;
    use(FromQString(name));
    m_hasChanged = true;
    Show(name);
}

QString ProjectsDialog::Chosen() const
{
    const QListWidgetItem* item = m_list->currentItem();
    return item ? item->text() : QString();
}

void ProjectsDialog::Show(const QString& chosen)
{
    m_list->clear();
    const auto projects = Projects(m_store.Manager());
    for (const auto& project : projects->Members())
        m_list->addItem(ToQString(project->Name()));
    for (int row = 0; row < m_list->count(); ++row)
    {
        if (m_list->item(row)->text() == chosen || row == 0)
            m_list->setCurrentRow(row);
    }
}

} // namespace Tamrivo
