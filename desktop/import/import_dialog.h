#pragma once

#include "platform/panels/import_plan.h"
#include "platform/panels/panel_reader.h"

#include <QDialog>
#include <QTimer>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeView;

namespace Tamrivo
{

class Actions;
class ImportPreviewModel;

/// Shows what the import of a panel table would do before it is done: each panel with a box to
/// tick, each marker with what it becomes or why it can't come in. Imports all that was ticked or
/// nothing; what can't come in is left out only when the person says so.
class ImportDialog : public QDialog
{
public:
    /// Store and actions must outlive the dialog.
    ImportDialog(Store& store, const Actions& actions, QWidget* parent = nullptr);
    ~ImportDialog() override;

    /// Reads a panel table and shows what would come in. Raises `ErrorNumber::InvalidArgument` when
    /// the file can't be read, and failures of the store.
    void Preview(const QString& path);

    /// What has come in, or empty while nothing has: "Imported 17 loci with 223 alleles."
    const QString& Result() const { return m_result; }

private:
    void OfferProjects();
    void AddSourceRow(QBoxLayout& layout);
    void AddPreview(QBoxLayout& layout);
    void AddDecision(QBoxLayout& layout);
    /// Plans the import of what is ticked, and shows the plan.
    void Plan();
    void ShowPlan(ImportPlan plan);
    void ShowState();
    QString Source() const;
    QStringList Reasons() const;
    QString Outlook() const;
    /// Why the import can't begin; empty when it can.
    QString Obstacle() const;
    void Import();

    Store& m_store;
    const Actions& m_actions;
    QString m_path;
    QString m_result;
    PanelReading m_reading;
    ImportPlan m_plan;
    QTimer m_replan; ///< Runs while the name of the project is being typed.

    ImportPreviewModel* m_preview;
    QLabel* m_source;
    QComboBox* m_project;
    QTreeView* m_tree;
    QLabel* m_reasonsCaption;
    QPlainTextEdit* m_reasons;
    QCheckBox* m_partial;
    QLabel* m_status;
    QPushButton* m_import;
};

/// Asks for a panel table and shows it in an import dialog. Gives what has come in, or an empty
/// text. Failures go to the actions.
QString ImportPanelTable(Store& store, const Actions& actions, QWidget* parent);

} // namespace Tamrivo
