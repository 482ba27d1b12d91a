#include "desktop/library/comparison.h"

#include "contracts/allele.h"
#include "desktop/alleles/allele_picture.h"
#include "desktop/common/text.h"
#include "host/reports/locus_sheet.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

namespace
{

AlleleRows RowsOf(Locus& locus)
{
    AlleleRows rows;
    for (const auto& member : locus.Alleles().Members())
        rows.push_back(As<Allele>(member));
    return rows;
}

void Extend(LengthRange& range, Locus& locus)
{
    range.From = std::min(range.From, static_cast<double>(locus.FragStart));
    range.To = std::max(range.To, static_cast<double>(locus.FragEnd));
    for (const auto& allele : RowsOf(locus))
    {
        range.From = std::min(range.From, allele->AlleleReal2);
        range.To = std::max(range.To, allele->AlleleReal3);
    }
}

QLabel* NewTitle(QWidget* parent)
{
    auto* title = new QLabel(parent);
    title->setTextFormat(Qt::PlainText);
    return title;
}

} // namespace

QTableWidget* NewReadingTable(const QString& name, const QStringList& titles, QWidget* parent)
{
    auto* table = new QTableWidget(0, static_cast<int>(titles.size()), parent);
    table->setObjectName(name);
    table->setHorizontalHeaderLabels(titles);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(1);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 7 / 5);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return table;
}

Comparison::Comparison(QWidget* parent)
    : QWidget(parent),
      m_summary(new QLabel(this)),
      m_fields(NewReadingTable("differences", {"Field", "", ""}, this)),
      m_leftTitle(NewTitle(this)),
      m_rightTitle(NewTitle(this)),
      m_left(new AllelePicture(this)),
      m_right(new AllelePicture(this))
{
    m_summary->setTextFormat(Qt::PlainText);
    m_fields->setAccessibleName("Fields that differ");
    auto* fields = new QVBoxLayout;
    fields->addWidget(m_summary);
    fields->addWidget(m_fields, 1);
    auto* bins = new QVBoxLayout;
    bins->addWidget(m_leftTitle);
    bins->addWidget(m_left, 1);
    bins->addWidget(m_rightTitle);
    bins->addWidget(m_right, 1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(fields, 1);
    layout->addLayout(bins, 1);
}

void Comparison::Show(Locus& left, Locus& right, const Dyes& dyes)
{
    const QString leftTag = ToQString(left.LocusTag());
    const QString rightTag = ToQString(right.LocusTag());
    m_fields->setHorizontalHeaderLabels({"Field", leftTag, rightTag});
    m_fields->setRowCount(0);
    const auto leftSheet = LocusSheet(left, dyes);
    const auto rightSheet = LocusSheet(right, dyes);
    for (std::size_t at = 0; at < leftSheet.size(); ++at)
    {
        if (leftSheet[at].Text == rightSheet[at].Text)
            continue;
        const int row = m_fields->rowCount();
        m_fields->insertRow(row);
        m_fields->setItem(row, 0, new QTableWidgetItem(ToQString(leftSheet[at].Label)));
        m_fields->setItem(row, 1, new QTableWidgetItem(ToQString(leftSheet[at].Text)));
        m_fields->setItem(row, 2, new QTableWidgetItem(ToQString(rightSheet[at].Text)));
    }
    m_fields->resizeColumnsToContents();
    m_summary->setText(
        QString("%1 of %2 fields differ.").arg(m_fields->rowCount()).arg(leftSheet.size()));
    LengthRange both{static_cast<double>(left.FragStart), static_cast<double>(left.FragEnd)};
    Extend(both, left);
    Extend(both, right);
    m_leftTitle->setText(leftTag);
    m_rightTitle->setText(rightTag);
    m_left->SetDye(dyes, left.DyeIndex);
    m_right->SetDye(dyes, right.DyeIndex);
    m_left->Show(RowsOf(left), both);
    m_right->Show(RowsOf(right), both);
}

} // namespace Tamrivo
