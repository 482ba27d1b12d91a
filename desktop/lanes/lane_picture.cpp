#include "desktop/lanes/lane_picture.h"

#include "core/error.h"
#include "desktop/common/picture_role.h"
#include "desktop/common/text.h"

#include <QAccessible>
#include <QBuffer>
#include <QHelpEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSvgGenerator>
#include <QToolTip>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// For paper, whatever the theme of the desktop.
QPalette PaperPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

constexpr int tallest = 32767; // What a raster painter can address.

QSize RequireSaveable(QSize size)
{
    if (size.height() > tallest)
        throw Failure(ErrorNumber::InvalidArgument, "LanePicture",
                      "The picture can't be saved: with so many loci it is too tall. Select fewer "
                      "loci");
    return size;
}

} // namespace

LanePicture::LanePicture(QWidget* parent) : QAbstractScrollArea(parent)
{
    MarkAsPicture(*this);
    setAccessibleName("Picture of the selected loci along the fragment length");
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
}

void LanePicture::Show(LaneDrawing drawing)
{
    m_drawing = std::move(drawing);
    m_focus.reset();
    FitScrollBar();
    viewport()->update();
}

QSize LanePicture::WholeSize() const
{
    return {viewport()->width(),
            m_drawing.LanesHeight(fontMetrics()) + LaneDrawing::AxisHeight(fontMetrics())};
}

QByteArray LanePicture::AsPng() const
{
    const QSize size = RequireSaveable(WholeSize());
    const int scale = 2 * size.height() <= tallest ? 2 : 1;
    QImage image(size * scale, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setFont(font());
    m_drawing.Draw(painter, size, 0, PaperPalette());
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray LanePicture::AsSvg() const
{
    const QSize size = RequireSaveable(WholeSize());
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect({}, size));
    generator.setResolution(logicalDpiX());
    generator.setTitle("Loci along the fragment length");
    QPainter painter(&generator);
    painter.setFont(font());
    m_drawing.Draw(painter, size, 0, PaperPalette());
    painter.end();
    return buffer.data();
}

QSize LanePicture::sizeHint() const
{
    constexpr int leastRows = 9;
    constexpr int mostRows = 12;
    const int row = LaneDrawing::RowHeight(fontMetrics());
    const int frame = 2 * frameWidth();
    return {32 * row, std::clamp(WholeSize().height(), leastRows * row, mostRows * row) + frame};
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
                       m_focus);
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

QString LanePicture::TipOf(std::size_t position) const
{
    const LaneLocus& locus = m_drawing.Loci()[position];
    QString tip = QString("%1: %2 to %3 nt on dye %4")
                      .arg(ToQString(locus.Tag))
                      .arg(locus.From)
                      .arg(locus.To)
                      .arg(ToQString(DyeEntry(locus.DyeIndex)));
    if (m_drawing.Overlaps().IsOverlapped[position])
        tip += "\nOverlaps another locus of this dye";
    return tip;
}

std::optional<std::size_t> LanePicture::LocusAt(QPoint place) const
{
    if (place.y() >= viewport()->height() - LaneDrawing::AxisHeight(fontMetrics()))
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
    const bool isClick = event->type() == QEvent::MouseButtonPress;
    if (isClick || event->type() == QEvent::MouseButtonDblClick)
    {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const auto locus = LocusAt(mouse->position().toPoint());
        const auto& handler = isClick ? onClicked : onDoubleClicked;
        if (locus && handler && mouse->button() == Qt::LeftButton)
            handler(*locus);
        return QAbstractScrollArea::viewportEvent(event);
    }
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto locus = LocusAt(help->pos());
    QToolTip::showText(help->globalPos(), locus ? TipOf(*locus) : QString(), viewport());
    return true;
}

void LanePicture::keyPressEvent(QKeyEvent* event)
{
    const auto order = m_drawing.InReadingOrder();
    if (order.empty())
        return QAbstractScrollArea::keyPressEvent(event);
    const auto last = std::ssize(order) - 1;
    const auto at =
        m_focus ? std::ranges::find(order, *m_focus) - order.begin() : std::ptrdiff_t{-1};
    std::ptrdiff_t next = 0;
    switch (event->key())
    {
    case Qt::Key_Right: next = at + 1; break;
    case Qt::Key_Left: next = at - 1; break;
    case Qt::Key_Home: next = 0; break;
    case Qt::Key_End: next = last; break;
    default: return QAbstractScrollArea::keyPressEvent(event);
    }
    GoTo(order[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, last))]);
}

void LanePicture::GoTo(std::size_t locus)
{
    m_focus = locus;
    const int top = m_drawing.TopOf(locus, fontMetrics());
    const int bottom = top + LaneDrawing::RowHeight(fontMetrics());
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(std::clamp(bar.value(), bottom - bar.pageStep(), top));
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
    m_focus.reset();
    viewport()->update();
}

} // namespace Tamrivo
