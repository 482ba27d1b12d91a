#include "desktop/import/import_findings.h"

#include "desktop/findings/finding_model.h"
#include "desktop/import/import_preview_model.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace Tamrivo
{

ImportFindings::ImportFindings(ImportPreviewModel& preview, QWidget* parent)
    : QWidget(parent),
      m_preview(preview),
      m_check(nullptr),
      m_model(new FindingModel(this)),
      m_caption(new QLabel(this)),
      m_list(new QTreeView(this))
{
    m_caption->setObjectName("importFindingsCaption");
    m_caption->setTextFormat(Qt::PlainText);
    m_list->setObjectName("importFindings");
    m_list->setAccessibleName("What a check finds");
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setAlternatingRowColors(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_caption);
    layout->addWidget(m_list, 1);
    connect(&m_check, &ImportCheck::Finished, this, [this](std::vector<Finding> found) {
        m_preview.SetFindings(std::move(found));
        ShowFound();
    });
    ShowFound();
}

void ImportFindings::Check()
{
    m_check.Check(m_preview.Plan());
    ShowFound();
}

void ImportFindings::Stop()
{
    m_check.Stop();
    ShowFound();
}

void ImportFindings::Show(const QModelIndex& row)
{
    m_row = row;
    ShowFound();
}

void ImportFindings::ShowFound()
{
    constexpr std::size_t mostListed = 1000;
    const FindingCounts counts = m_preview.CountsAt(m_row);
    m_model->Show(m_preview.FindingsAt(m_row, mostListed));
    const bool isAny = m_model->rowCount() > 0;
    m_list->setVisible(isAny);
    if (isAny)
    {
        for (int column = 0; column < FindingModel::Message; ++column)
            m_list->resizeColumnToContents(column);
    }
    const QString name = m_row.sibling(m_row.row(), ImportPreviewModel::Name).data().toString();
    if (m_check.IsChecking())
        m_caption->setText("Checking the definitions...");
    else if (!isAny)
        m_caption->setText("A check finds nothing in what is chosen above.");
    else
        m_caption->setText(QString("A check finds in %1: %2%3")
                               .arg(name, counts.Text())
                               .arg(counts.Errors + counts.Warnings > mostListed
                                        ? QString("; the first %L1 are listed").arg(mostListed)
                                        : QString()));
}

} // namespace Tamrivo
