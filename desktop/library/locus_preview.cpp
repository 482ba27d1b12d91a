#include "desktop/library/locus_preview.h"

#include "contracts/allele.h"
#include "desktop/alleles/allele_picture.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/history/history_list.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/library/comparison.h"
#include "host/loci/counts.h"
#include "host/reports/locus_sheet.h"

#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace Tamrivo
{

namespace
{

QLabel* NewHint(const QString& text, QWidget* parent)
{
    auto* hint = new QLabel(text, parent);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    return hint;
}

} // namespace

LocusPreview::LocusPreview(const Actions& actions, QWidget* parent)
    : QTabWidget(parent),
      m_actions(actions),
      m_heading(new QLabel(this)),
      m_alleles(new AllelePicture(this)),
      m_lanes(new LocusLanes(actions, this)),
      m_details(NewReadingTable("details", {"Field", "Value"}, this)),
      m_changes(new HistoryList(this)),
      m_comparison(new Comparison(this)),
      m_comparePages(new QStackedWidget(this))
{
    setObjectName("preview");
    setAccessibleName("The chosen loci");
    setDocumentMode(true);
    m_heading->setObjectName("heading");
    m_heading->setTextFormat(Qt::PlainText);
    m_details->setAccessibleName("Fields of the locus");
    auto* alleles = new QWidget(this);
    auto* layout = new QVBoxLayout(alleles);
    layout->addWidget(m_heading);
    layout->addWidget(m_alleles, 1);
    m_comparePages->addWidget(NewHint(
        "Choose two loci in the table, the second one with Ctrl, to see what differs.", this));
    m_comparePages->addWidget(m_comparison);
    addTab(alleles, "&Alleles");
    addTab(m_lanes, "La&nes");
    // Letters that no menu has.
    addTab(m_details, "Detail&s");
    addTab(m_changes, "Histor&y");
    addTab(m_comparePages, "&Compare");
    connect(this, &QTabWidget::currentChanged, this, [this] { ShowTab(); });
}

void LocusPreview::Show(Content content)
{
    m_content = std::move(content);
    setTabText(Compare, m_content.Count == 2 ? "&Compare: 2 chosen" : "&Compare");
    ShowTab();
}

void LocusPreview::ShowTab()
{
    m_actions.Run([this] {
        switch (currentIndex())
        {
        case Alleles: return ShowAlleles();
        case Lanes: return ShowLanes();
        case Details: return ShowDetails();
        case Changes: return ShowChanges();
        case Compare: return ShowComparison();
        default: return;
        }
    });
}

void LocusPreview::ShowAlleles()
{
    const auto locus = m_content.Count > 0 ? m_content.Load(0) : nullptr;
    if (!locus)
    {
        m_heading->setText("Choose a locus to see its alleles.");
        m_alleles->Show({}, std::nullopt);
        return;
    }
    AlleleRows rows;
    for (const auto& member : locus->Alleles().Members())
        rows.push_back(As<Allele>(member));
    m_heading->setText(
        ToQString(locus->LocusTag()) +
        QString(": %1 to %2 nt, ").arg(locus->FragStart).arg(locus->FragEnd) +
        ToQString(m_content.LabDyes.TitleOf(locus->DyeIndex) + ", " + CountOfAlleles(rows.size())));
    m_alleles->SetDye(m_content.LabDyes, locus->DyeIndex);
    m_alleles->Show(rows, LengthRange{static_cast<double>(locus->FragStart),
                                      static_cast<double>(locus->FragEnd)});
}

void LocusPreview::ShowLanes()
{
    if (m_lanesShown == m_content.LanesNumber)
        return;
    m_lanesShown = m_content.LanesNumber;
    m_lanes->SetLoci(m_content.Lanes ? m_content.Lanes() : std::vector<LaneLocus>(),
                     m_content.LabDyes);
}

void LocusPreview::ShowDetails()
{
    m_details->setRowCount(0);
    const auto locus = m_content.Count > 0 ? m_content.Load(0) : nullptr;
    if (!locus)
        return;
    for (const SheetEntry& entry : LocusSheet(*locus, m_content.LabDyes))
    {
        if (entry.Text.empty())
            continue;
        const int row = m_details->rowCount();
        m_details->insertRow(row);
        m_details->setItem(row, 0, new QTableWidgetItem(ToQString(entry.Label)));
        m_details->setItem(row, 1, new QTableWidgetItem(ToQString(entry.Text)));
    }
    m_details->resizeColumnToContents(0);
}

void LocusPreview::ShowChanges()
{
    m_changes->Show(m_content.Count > 0 ? m_content.Changes() : std::vector<HistoryRecord>());
}

void LocusPreview::ShowComparison()
{
    const auto left = m_content.Count == 2 ? m_content.Load(0) : nullptr;
    const auto right = left ? m_content.Load(1) : nullptr;
    if (right)
        m_comparison->Show(*left, *right, m_content.LabDyes);
    m_comparePages->setCurrentIndex(right ? 1 : 0);
}

} // namespace Tamrivo
