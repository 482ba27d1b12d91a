#pragma once

#include "host/panels/export_plan.h"
#include "host/panels/export_scope.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Tamrivo
{

class Actions;
class Store;

/// What is on show when an export begins.
struct ShownLoci
{
    std::vector<std::string> Chosen = {}; ///< Tags of the chosen loci.
    std::string Parameter = {};           ///< The analysis parameter on show, if any.
};

/// Asks which of the current loci are written in which format, and shows beforehand what the format
/// can't carry of them. Begins with the chosen loci where there are several, else with the
/// parameter on show, else with all.
class ExportDialog : public QDialog
{
public:
    /// Store and actions must outlive the dialog. Raises failures of the store.
    ExportDialog(Store& store, const Actions& actions, QWidget* parent = nullptr,
                 const ShownLoci& shown = {});

    /// Writes what is chosen: one file, or for panels and bins two. Raises
    /// `ErrorNumber::InvalidArgument` when one can't be written.
    void Write(const QString& path, const QString& binsPath = {});

    /// What has been written ("Exported 17 loci to /home/ada/loci.tsv."), or empty.
    const QString& Result() const { return m_result; }

private:
    void AddFields(QFormLayout& form);
    void OfferLoci(const ShownLoci& shown);
    void Offer(const QString& title, ExportScope scope);
    /// What is chosen and typed.
    const ExportScope& Scope() const;
    ExportChoice Choice() const;
    /// Plans the export, and shows what is lost or what stands in its way.
    void Plan();
    void Export();

    Store& m_store;
    const Actions& m_actions;
    QString m_result;
    ExportPlan m_plan;

    QComboBox* m_format;
    QComboBox* m_scope;
    std::vector<ExportScope> m_scopes; ///< In the order of the entries.
    QLineEdit* m_kit;
    QLineEdit* m_shortName;
    QLineEdit* m_standards;
    QLabel* m_outlook;
    QPushButton* m_export;
};

/// Lets a person export loci. Gives what has been written, or an empty text. Failures go to the
/// actions.
QString ExportLoci(Store& store, const Actions& actions, QWidget* parent,
                   const ShownLoci& shown = {});

} // namespace Tamrivo
