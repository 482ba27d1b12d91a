#pragma once

#include <QDialog>

#include <functional>
#include <string>

class QListWidget;
class QPushButton;

namespace Tamrivo
{

class Actions;
class Store;

/// Makes, renames and deletes the projects of a store.
class ProjectsDialog : public QDialog
{
public:
    /// Both must outlive the dialog.
    ProjectsDialog(Store& store, const Actions& actions, QWidget* parent);

    /// Whether a project is other than before.
    bool HasChanged() const { return m_hasChanged; }

private:
    void Add();
    void Rename();
    void Delete();
    /// Asks for a name and lets `use` take it, unless the person gives up.
    void AskName(const QString& title, const QString& proposed,
                 const std::function<void(const std::string&)>& use);
    QString Chosen() const;
    void Show(const QString& chosen);

    Store& m_store;
    const Actions& m_actions;
    QListWidget* m_list;
    QPushButton* m_rename;
    QPushButton* m_delete;
    bool m_hasChanged = false;
};

} // namespace Tamrivo
