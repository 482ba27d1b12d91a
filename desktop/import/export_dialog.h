#pragma once

#include "host/panels/export_plan.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Tamrivo
{

class Actions;
class Store;

/// Asks which of the current loci are written in which format, and shows beforehand what the format
/// can't carry of them.
class ExportDialog : public QDialog
{
public:
    /// Store and actions must outlive the dialog. Raises failures of the store.
    ExportDialog(Store& store, const Actions& actions, QWidget* parent = nullptr);

    /// Writes what is chosen: one file, or for panels and bins two. Raises
    /// `ErrorNumber::InvalidArgument` when one can't be written.
    void Write(const QString& path, const QString& binsPath = {});

    /// What has been written ("Exported 17 loci to /home/ada/loci.tsv."), or empty.
    const QString& Result() const { return m_result; }

private:
    void OfferLoci();
    std::vector<std::shared_ptr<BusinessObject>> ChosenLoci();
    /// Plans the export, and shows what is lost or what stands in its way.
    void Plan();
    void Export();

    Store& m_store;
    const Actions& m_actions;
    QString m_result;
    ExportPlan m_plan;

    QComboBox* m_format;
    QComboBox* m_panel;
    QLineEdit* m_kit;
    QLineEdit* m_shortName;
    QLineEdit* m_standards;
    QLabel* m_outlook;
    QPushButton* m_export;
};

/// Lets a person export loci. Gives what has been written, or an empty text. Failures go to the
/// actions.
QString ExportLoci(Store& store, const Actions& actions, QWidget* parent);

} // namespace Tamrivo
