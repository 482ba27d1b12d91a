#include "desktop/lanes/lane_picture.h"

#include "desktop/common/picture_role.h"
#include "desktop/common/text.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace Tamrivo
{

LanePicture::LanePicture(QWidget* parent) : QAbstractScrollArea(parent)
{
    MarkAsPicture(*this);
    setAccessibleName("Picture of the selected loci along the fragment length");
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    m_marks.DetailsOf = [this](std::size_t locus) {
        const auto known = m_details.find(locus);
        return known == m_details.end() ? nullptr : &known->second;
    };
    m_rest.setSingleShot(true);
    m_rest.setInterval(60);
    connect(&m_rest, &QTimer::timeout, this, [this] { LoadDetails(); });
}

void LanePicture::Show(LaneDrawing drawing)
{
    if (drawing.Loci() == m_drawing.Loci())
        drawing.SetInView(m_drawing.InView());
    m_drawing = std::move(drawing);
    m_marks.Focus.reset();
    m_marks.Chosen.clear();
    FitScrollBar();
    ForgetDetails();
}

void LanePicture::Choose(std::set<std::size_t> loci)
{
    m_marks.Chosen = std::move(loci);
    viewport()->update();
}

void LanePicture::ForgetDetails()
{
    m_details.clear();
    m_rest.start();
    viewport()->update();
}

void LanePicture::LoadDetails()
{
    // Where so many bars are in view, none has room for more than its name.
    constexpr std::size_t mostBars = 200;
    constexpr std::size_t fewAlleles = 8;
    const auto bars = Bars();
    if (!detailsOf || bars.size() > mostBars)
        return;
    for (const LaneBar& bar : bars)
    {
        if (HasRoomForTicks(bar, fewAlleles) && !m_details.contains(bar.Locus))
            m_details.emplace(bar.Locus, detailsOf(bar.Locus));
    }
    viewport()->update();
}

LanePaper LanePicture::Paper() const
{
    return {m_drawing, m_marks, viewport()->width(), font()};
}

QSize LanePicture::sizeHint() const
{
    constexpr int leastRows = 9;
    constexpr int mostRows = 12;
    const int row = LaneDrawing::RowHeight(fontMetrics());
    const int height =
        m_drawing.LanesHeight(fontMetrics()) + LaneDrawing::AxisHeight(fontMetrics());
    return {32 * row, std::clamp(height, leastRows * row, mostRows * row) + 2 * frameWidth()};
}

QSize LanePicture::minimumSizeHint() const
{
    const int row = LaneDrawing::RowHeight(fontMetrics());
    return {16 * row, 4 * row};
}

void LanePicture::FitScrollBar()
{
    const int shown = viewport()->height() - LaneDrawing::AxisHeight(fontMetrics());
    verticalScrollBar()->setPageStep(std::max(shown, 1));
    verticalScrollBar()->setSingleStep(LaneDrawing::RowHeight(fontMetrics()));
    verticalScrollBar()->setRange(0, std::max(0, m_drawing.LanesHeight(fontMetrics()) - shown));
}

void LanePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    if (!m_drawing.Loci().empty())
    {
        m_drawing.Draw(painter, viewport()->size(), verticalScrollBar()->value(), palette(),
                       m_marks);
        return;
    }
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     "No loci are selected yet. Those you select show here as bars over the "
                     "fragment length, a lane a dye.");
}

void LanePicture::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    FitScrollBar();
    m_rest.start();
}

void LanePicture::scrollContentsBy(int dx, int dy)
{
    QAbstractScrollArea::scrollContentsBy(dx, dy);
    viewport()->update();
    m_rest.start();
}

void LanePicture::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    FitScrollBar();
    updateGeometry();
}

std::vector<LaneBar> LanePicture::Bars() const
{
    return m_drawing.BarsInView(viewport()->size(), verticalScrollBar()->value(), fontMetrics());
}

QString LanePicture::TipOf(std::size_t position)
{
    const LaneLocus& locus = m_drawing.Loci()[position];
    QString tip = QString("%1: %2 to %3 nt, %4")
                      .arg(ToQString(locus.Tag))
                      .arg(locus.From)
                      .arg(locus.To)
                      .arg(ToQString(m_drawing.LabDyes().TitleOf(locus.DyeIndex)));
    if (m_drawing.Overlaps().IsOverlapped[position])
        tip += "\nOverlaps another locus of this dye";
    if (detailsOf && !m_details.contains(position))
        m_details.emplace(position, detailsOf(position));
    if (const LaneDetails* details = m_marks.DetailsOf(position))
    {
        if (!details->Alleles.empty())
            tip += "\nAlleles: " + ToQString(NamesOf(details->Alleles));
        if (!details->Observed.empty())
            tip += QString("\nObserved sizes: %L1").arg(details->Observed.size());
    }
    return tip;
}

std::optional<std::size_t> LanePicture::LocusAt(QPoint place) const
{
    if (place.y() >= viewport()->height() - LaneDrawing::AxisHeight(fontMetrics()) ||
        place.x() < Axis().X(m_drawing.InView().Low))
        return std::nullopt;
    for (const LaneBar& bar : Bars())
    {
        if (bar.Rect.adjusted(-2, 0, 2, 0).contains(place))
            return bar.Locus;
    }
    return std::nullopt;
}

bool LanePicture::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto locus = LocusAt(help->pos());
    QToolTip::showText(help->globalPos(), locus ? TipOf(*locus) : QString(), viewport());
    return true;
}

void LanePicture::Tell(const std::function<void(std::size_t)>& handler,
                       std::optional<std::size_t> locus)
{
    if (locus && handler)
        handler(*locus);
}

void LanePicture::GoTo(std::size_t locus)
{
    m_marks.Focus = locus;
    const int top = m_drawing.TopOf(locus, fontMetrics());
    const int bottom = top + LaneDrawing::RowHeight(fontMetrics());
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(std::clamp(bar.value(), bottom - bar.pageStep(), top));
    const LaneLocus& range = m_drawing.Loci()[locus];
    const auto [low, high] = m_drawing.InView();
    if (range.To <= low || range.From >= high)
        SetInView(
            {(range.From + range.To - (high - low)) / 2, (range.From + range.To + high - low) / 2});
    viewport()->update();

    const QString tip = TipOf(locus);
    setAccessibleDescription(tip);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
    const auto bars = Bars();
    const auto shown = std::ranges::find(bars, locus, &LaneBar::Locus);
    if (shown != bars.end())
        QToolTip::showText(viewport()->mapToGlobal(shown->Rect.bottomLeft().toPoint()), tip,
                           viewport());
}

void LanePicture::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    m_marks.Focus.reset();
    viewport()->update();
}

} // namespace Tamrivo
