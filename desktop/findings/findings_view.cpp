#include "desktop/findings/findings_view.h"

#include "desktop/common/text.h"
#include "desktop/findings/finding_model.h"
#include "desktop/findings/finding_watch.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace Tamrivo
{

FindingsView::FindingsView(const FindingWatch& watch, QWidget* parent)
    : QWidget(parent),
      m_watch(watch),
      m_model(new FindingModel(this)),
      m_state(new QLabel(this)),
      m_list(new QTreeView(this))
{
    m_state->setObjectName("findingState");
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    m_state->setAccessibleName("State of the check");
    m_list->setObjectName("findings");
    m_list->setAccessibleName("Findings");
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (const auto& [column, widest] : {std::pair(FindingModel::Rule, "missing-locus"),
                                         std::pair(FindingModel::Tag, "D22S1045 (P)"),
                                         std::pair(FindingModel::Place, "RepeatUnitSequence")})
    {
        constexpr int room = 6; // characters, for the icon too
        m_list->setColumnWidth(column, fontMetrics().horizontalAdvance(widest) +
                                           room * fontMetrics().averageCharWidth());
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_state);
    layout->addWidget(m_list, 1);
    connect(m_list, &QTreeView::activated, this,
            [this](const QModelIndex& index) { emit Chosen(Finding(m_model->At(index.row()))); });
    connect(&watch, &FindingWatch::Changed, this, &FindingsView::ShowFound);
    connect(&watch, &FindingWatch::Advanced, this, &FindingsView::ShowState);
    ShowState();
}

void FindingsView::ShowLoci(std::set<std::string> tags, bool withNoLocus)
{
    m_tags = std::move(tags);
    m_withNoLocus = withNoLocus;
    ShowFound();
}

void FindingsView::ShowFound()
{
    std::vector<Finding> shown;
    for (const Finding& finding : m_watch.Found())
    {
        if (finding.Tag.empty() ? m_withNoLocus : m_tags.contains(finding.Tag))
            shown.push_back(finding);
    }
    m_model->Show(std::move(shown));
    ShowState();
}

void FindingsView::ShowState()
{
    if (!m_watch.FailureText().isEmpty())
        return m_state->setText("The check has stopped: " + m_watch.FailureText());
    std::vector<Finding> shown;
    for (int row = 0; row < m_model->rowCount(); ++row)
        shown.push_back(m_model->At(row));
    QString text = ToQString(CountOfFindings(shown)) + " in the loci on show";
    if (m_watch.IsChecking())
        text += QString("; checking, %1 %").arg(m_watch.Percent());
    m_state->setText(text);
}

} // namespace Tamrivo
