#include "desktop/lanes/locus_lanes.h"

#include "desktop/common/actions.h"
#include "desktop/common/icons.h"
#include "desktop/common/long_work.h"
#include "desktop/common/save_file.h"
#include "desktop/common/text.h"
#include "desktop/lanes/lane_picture.h"
#include "host/fit/marker_sizes.h"
#include "host/fit/observed_reader.h"
#include "host/loci/keys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace Tamrivo
{

namespace
{

constexpr std::size_t mostListed = 50;

QString SummaryOf(const LocusOverlaps& overlaps, std::size_t loci)
{
    if (loci == 0)
        return {};
    if (overlaps.Count == 0)
        return "No loci of one dye overlap.";
    return overlaps.Count == 1
               ? QString("2 loci of one dye overlap:")
               : QString("%L1 pairs of loci of one dye overlap:").arg(overlaps.Count);
}

} // namespace

LocusLanes::LocusLanes(const Actions& actions, QWidget* parent)
    : QWidget(parent),
      m_actions(actions),
      m_picture(new LanePicture(this)),
      m_summary(new QLabel(this)),
      m_list(new QPlainTextEdit(this))
{
    m_picture->setObjectName("lanePicture");
    m_summary->setObjectName("overlapSummary");
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_list->setObjectName("overlaps");
    m_list->setAccessibleName("Loci that overlap");
    m_list->setReadOnly(true);
    m_list->setTabChangesFocus(true);

    m_picture->onClicked = [this](std::size_t locus) {
        if (onClicked)
            onClicked(m_picture->Drawing().Loci()[locus].Tag);
    };
    m_picture->detailsOf = [this](std::size_t locus) { return DetailsOf(locus); };
    m_picture->onDoubleClicked = [this](std::size_t locus) {
        if (onDoubleClicked)
            onDoubleClicked(m_picture->Drawing().Loci()[locus].Tag);
    };
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_picture, 1);
    layout->addWidget(m_summary);
    layout->addWidget(m_list);
    SetLoci({});
}

void LocusLanes::SetLoci(std::vector<LaneLocus> loci, Dyes dyes)
{
    LocusOverlaps overlaps = FindOverlaps(loci, mostListed);
    ShowOverlaps(overlaps, loci, dyes);
    m_canLoad = true;
    m_picture->Show({std::move(loci), std::move(overlaps), std::move(dyes)});
    MarkChosen();
}

void LocusLanes::SetChosen(const std::vector<std::string>& tags)
{
    m_chosen = {tags.begin(), tags.end()};
    MarkChosen();
}

void LocusLanes::MarkChosen()
{
    const auto& loci = m_picture->Drawing().Loci();
    std::set<std::size_t> positions;
    for (std::size_t at = 0; at < loci.size(); ++at)
    {
        if (m_chosen.contains(loci[at].Tag))
            positions.insert(at);
    }
    m_picture->Choose(std::move(positions));
}

LaneDetails LocusLanes::DetailsOf(std::size_t locus)
{
    const std::string& tag = m_picture->Drawing().Loci()[locus].Tag;
    LaneDetails details;
    if (const auto observed = m_observed.find(LookupKey(tag)); observed != m_observed.end())
        details.Observed = observed->second;
    if (!allelesOf || !m_canLoad)
        return details;
    // One message is enough when the store doesn't answer.
    m_canLoad = false;
    m_actions.Run([&] {
        details.Alleles = allelesOf(tag);
        m_canLoad = true;
    });
    return details;
}

void LocusLanes::ShowObserved(const QString& path)
{
    ObservedReader table(OpenPanelFile(FromQString(path)));
    LongWork work("Reading the sizes...", this);
    const MarkerSizes observed(table, {}, [&work](std::size_t /*lines*/) { work.GoOn(); });
    m_observed.clear();
    for (const auto& [marker, ofMarker] : observed.All())
        m_observed[marker] = ofMarker.Sizes;
    m_picture->ForgetDetails();
}

void LocusLanes::HideObserved()
{
    m_observed.clear();
    m_picture->ForgetDetails();
}

void LocusLanes::ChooseObserved()
{
    m_actions.Run([this] {
        const QString path = QFileDialog::getOpenFileName(
            this, "Show Observed Sizes", {}, "Tables (*.tsv *.txt *.csv);;All files (*)");
        if (!path.isEmpty())
            ShowObserved(path);
    });
}

void LocusLanes::PrintPicture()
{
    m_actions.Run([this] {
        QPrinter printer;
        printer.setPageOrientation(QPageLayout::Landscape);
        printer.setDocName("Loci along the fragment length");
        QPrintDialog dialog(&printer, this);
        if (dialog.exec() == QDialog::Accepted)
            PrintLanes(m_picture->Paper(), printer);
    });
}

void LocusLanes::ShowOverlaps(const LocusOverlaps& overlaps, const std::vector<LaneLocus>& loci,
                              const Dyes& dyes)
{
    const QString summary = SummaryOf(overlaps, loci.size());
    m_summary->setText(summary);
    m_summary->setVisible(!summary.isEmpty());
    m_picture->setAccessibleDescription(QString("%L1 loci. %2").arg(loci.size()).arg(summary));

    QStringList lines;
    for (const LocusOverlap& overlap : overlaps.Listed)
        lines.append(ToQString(Describe(overlap, loci, dyes) + "."));
    if (overlaps.Count > overlaps.Listed.size())
        lines.append(QString("And %L1 more.").arg(overlaps.Count - overlaps.Listed.size()));
    m_list->setPlainText(lines.join('\n'));
    m_list->setVisible(!lines.isEmpty());
    FitList();
}

void LocusLanes::FitList()
{
    constexpr int mostLines = 5;
    const int shown = std::min(m_list->blockCount(), mostLines);
    m_list->setFixedHeight(shown * m_list->fontMetrics().lineSpacing() +
                           static_cast<int>(2 * m_list->document()->documentMargin()) +
                           2 * m_list->frameWidth() + 2);
}

void LocusLanes::SavePictureAs()
{
    m_actions.Run([this] {
        const QString svg = "SVG picture (*.svg)";
        const QString png = "PNG picture (*.png)";
        QString chosen = svg;
        QString path = QFileDialog::getSaveFileName(this, "Save Picture", "loci.svg",
                                                    svg + ";;" + png, &chosen);
        if (path.isEmpty())
            return;
        if (QFileInfo(path).suffix().isEmpty())
            path += chosen == png ? ".png" : ".svg";
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        SavePicture(path);
    });
}

void LocusLanes::SavePicture(const QString& path) const
{
    const bool isSvg = path.endsWith(".svg", Qt::CaseInsensitive);
    const LanePaper paper = m_picture->Paper();
    SaveFile(path, isSvg ? AsSvg(paper, m_picture->logicalDpiX()) : AsPng(paper));
}

void LocusLanes::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitList();
}

void LocusLanes::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    const auto add = [&menu](const char* icon, const QString& text, std::function<void()> act) {
        return menu.addAction(ThemeIcon(icon), text, &menu, std::move(act));
    };
    QList<QAction*> ofPicture = {
        add("zoom-in", "Zoom &In\t+", [this] { m_picture->ZoomIn(); }),
        add("zoom-out", "Zoom &Out\t-", [this] { m_picture->ZoomOut(); }),
        add("zoom-fit-best", "Show &All Lengths\t0", [this] { m_picture->ShowAllLengths(); })};
    menu.addSeparator();
    ofPicture += add("", "Show O&bserved Sizes...", [this] { ChooseObserved(); });
    if (!m_observed.empty())
        add("", "&Hide Observed Sizes", [this] { HideObserved(); });
    menu.addSeparator();
    ofPicture += add("document-save", "&Save Picture As...", [this] { SavePictureAs(); });
    ofPicture += add("document-print", "&Print Picture...", [this] { PrintPicture(); });
    for (QAction* action : ofPicture)
        action->setEnabled(!m_picture->Drawing().Loci().empty());
    menu.exec(event->globalPos());
}

} // namespace Tamrivo
