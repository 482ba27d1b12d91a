#pragma once

#include "host/panels/import_plan.h"
#include "host/panels/panel_files.h"

#include <QDialog>
#include <QTimer>

#include <vector>

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
class DifferenceView;
class ImportFindings;
class ImportOptions;
class ImportPreviewModel;

/// Shows what the import of panel files would do before it is done: panels and markers with a box
/// to tick, each marker with what it becomes or why it can't come in. Imports all that was ticked
/// or nothing; what can't come in is left out only when the person says so.
class ImportDialog : public QDialog
{
public:
    /// Store and actions must outlive the dialog.
    ImportDialog(Store& store, const Actions& actions, QWidget* parent = nullptr);
    ~ImportDialog() override;

    /// Reads files of any formats and shows what would come in. Raises
    /// `ErrorNumber::InvalidArgument` when one can't be read, and failures of the store.
    void Preview(const QStringList& paths);

    /// What has come in, or empty while nothing has: "Imported 17 loci with 223 alleles."
    const QString& Result() const { return m_result; }

private:
    void OfferProjects();
    void AddSourceRow(QBoxLayout& layout);
    void AddPreview(QBoxLayout& layout);
    void AddDecision(QBoxLayout& layout);
    /// Reads the files by what is chosen. Raises `ErrorNumber::InvalidArgument` when one can't be
    /// read.
    PanelReading Read() const;
    /// Reads the files, and shows their markers.
    void ReadFiles();
    /// Plans the import of what is ticked, and shows the plan.
    void Plan();
    void ShowPlan(ImportPlan plan);
    void ShowState();
    QString Source() const;
    /// Why the import can't begin; empty when it can.
    QString Obstacle() const;
    void Import();

    Store& m_store;
    const Actions& m_actions;
    QStringList m_paths;
    QString m_result;
    std::vector<PanelComplaint> m_complaints; ///< Of the table's lines.
    QTimer m_replan; ///< Runs while the name of the project is being typed.

    ImportPreviewModel* m_preview;
    QLabel* m_source;
    QComboBox* m_project;
    ImportOptions* m_options;
    QTreeView* m_tree;
    DifferenceView* m_differences;
    ImportFindings* m_findings;
    QLabel* m_reasonsCaption;
    QPlainTextEdit* m_reasons;
    QCheckBox* m_partial;
    QLabel* m_status;
    QPushButton* m_import;
};

/// Shows files in an import dialog; asks for them when none are given. Gives what has come in, or
/// an empty text. Failures go to the actions.
QString ImportPanelFiles(Store& store, const Actions& actions, QWidget* parent,
                         QStringList paths = {});

} // namespace Tamrivo
