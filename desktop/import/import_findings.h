#pragma once

#include "desktop/import/import_check.h"

#include <QPersistentModelIndex>
#include <QWidget>

class QLabel;
class QTreeView;

namespace Tamrivo
{

class FindingModel;
class ImportPreviewModel;

/// What a check finds in the loci that an import would leave in the store: the preview is given all
/// of it, and the findings of the chosen marker or panel are listed.
class ImportFindings : public QWidget
{
public:
    ImportFindings(ImportPreviewModel& preview, QWidget* parent);

    /// Checks the preview's plan, which stays as it is until `Stop`.
    void Check();
    void Stop();
    /// Lists the findings of a row of the preview.
    void Show(const QModelIndex& row);

private:
    void ShowFound();

    ImportPreviewModel& m_preview;
    ImportCheck m_check;
    QPersistentModelIndex m_row;
    FindingModel* m_model;
    QLabel* m_caption;
    QTreeView* m_list;
};

} // namespace Tamrivo
