#include "desktop/window/status_line.h"

#include "desktop/common/text.h"
#include "desktop/lanes/locus_overlaps.h"
#include "desktop/library/library_view.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"

namespace Tamrivo
{

namespace
{

/// "2 overlaps: TPOX and DYS391, 443 to 444 nt (blue)".
QString WordsFor(const std::vector<std::shared_ptr<Locus>>& loci, const Dyes& dyes)
{
    std::vector<LaneLocus> lanes;
    for (const auto& locus : loci)
        lanes.push_back({locus->LocusTag(), locus->DyeIndex, locus->FragStart, locus->FragEnd});
    const LocusOverlaps overlaps = Tamrivo::FindOverlaps(lanes, 1);
    if (overlaps.Count == 0)
        return "no overlaps.";
    const LocusOverlap& first = overlaps.Listed.front();
    return QString("%1 %2: %3 and %4, %5 to %6 nt (%7)")
        .arg(overlaps.Count)
        .arg(overlaps.Count == 1 ? "overlap" : "overlaps")
        .arg(ToQString(lanes[first.First].Tag), ToQString(lanes[first.Second].Tag))
        .arg(first.From)
        .arg(first.To)
        .arg(ToQString(dyes.ColorOf(lanes[first.First].DyeIndex)));
}

} // namespace

StatusLine::StatusLine(const Workbench& workbench, QWidget* parent)
    : QLabel(parent), m_workbench(workbench)
{
    setObjectName("status");
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(&workbench, &Workbench::SelectionChanged, this, [this] { FindOverlaps(); });
    connect(&workbench, &Workbench::Changed, this, [this] { Show(); });
}

void StatusLine::FindOverlaps()
{
    const ParameterView* parameter = m_workbench.Parameter().View();
    m_overlaps.clear();
    if (parameter != nullptr)
        m_overlaps = "  " + ToQString(parameter->Name()) + ": " +
                     WordsFor(parameter->SelectedLoci(), m_workbench.Host().Store().Dyes());
}

void StatusLine::Show()
{
    QString text;
    if (const LibraryView& loci = m_workbench.Loci(); loci.Loci() != nullptr)
        text = QString("%1 of %2 chosen.").arg(loci.ChosenCount()).arg(loci.ShownCount());
    if (m_workbench.HasStore() && m_workbench.Host().Store().IsReadOnly())
        text += "  The store is read only.";
    setText(text + m_overlaps);
    setToolTip(text + m_overlaps);
}

} // namespace Tamrivo
