#include "desktop/lanes/lane_picture.h"

#include "core/error.h"
#include "desktop/text.h"

#include <QBuffer>
#include <QHelpEvent>
#include <QImage>
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
    setAccessibleName("Picture of the selected loci along the fragment length");
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
}

void LanePicture::Show(LaneDrawing drawing)
{
    m_drawing = std::move(drawing);
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
    constexpr int mostRows = 12;
    const int row = LaneDrawing::RowHeight(fontMetrics());
    const int frame = 2 * frameWidth();
    return {32 * row, std::clamp(WholeSize().height(), 5 * row, mostRows * row) + frame};
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
        m_drawing.Draw(painter, viewport()->size(), verticalScrollBar()->value(), palette());
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

QString LanePicture::TipAt(QPoint place) const
{
    for (const LaneBar& bar :
         m_drawing.BarsInView(viewport()->size(), verticalScrollBar()->value(), fontMetrics()))
    {
        if (!bar.Rect.adjusted(-2, 0, 2, 0).contains(place))
            continue;
        const LaneLocus& locus = m_drawing.Loci()[bar.Locus];
        QString tip = QString("%1: %2 to %3 nt on dye %4")
                          .arg(ToQString(locus.Tag))
                          .arg(locus.From)
                          .arg(locus.To)
                          .arg(ToQString(DyeName(locus.DyeIndex)));
        if (m_drawing.Overlaps().IsOverlapped[bar.Locus])
            tip += "\nOverlaps another locus of this dye";
        return tip;
    }
    return {};
}

bool LanePicture::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const bool isOnLanes =
        help->pos().y() < viewport()->height() - LaneDrawing::AxisHeight(fontMetrics());
    QToolTip::showText(help->globalPos(), isOnLanes ? TipAt(help->pos()) : QString(), viewport());
    return true;
}

} // namespace Tamrivo
