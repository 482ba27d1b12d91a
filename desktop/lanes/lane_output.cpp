#include "desktop/lanes/lane_output.h"

#include "core/error.h"

#include <QBuffer>
#include <QFontInfo>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSvgGenerator>

namespace Tamrivo
{

namespace
{

QPalette PaperPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

constexpr int tallest = 32767; // What a raster painter can address.

QSize WholeSize(const LanePaper& paper)
{
    const QFontMetrics font(paper.Font);
    const QSize size(paper.Width, paper.Drawing.LanesHeight(font) + LaneDrawing::AxisHeight(font));
    if (size.height() > tallest)
        throw Failure(ErrorNumber::InvalidArgument, "LanePicture",
                      "The picture can't be saved: with so many loci it is too tall. Select fewer "
                      "loci");
    return size;
}

} // namespace

QByteArray AsPng(const LanePaper& paper)
{
    const QSize size = WholeSize(paper);
    const int scale = 2 * size.height() <= tallest ? 2 : 1;
    QImage image(size * scale, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setFont(paper.Font);
    paper.Drawing.Draw(painter, size, 0, PaperPalette(), paper.Marks);
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray AsSvg(const LanePaper& paper, int resolution)
{
    const QSize size = WholeSize(paper);
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect({}, size));
    generator.setResolution(resolution);
    generator.setTitle("Loci along the fragment length");
    QPainter painter(&generator);
    painter.setFont(paper.Font);
    paper.Drawing.Draw(painter, size, 0, PaperPalette(), paper.Marks);
    painter.end();
    return buffer.data();
}

void PrintLanes(const LanePaper& paper, QPagedPaintDevice& device)
{
    QPainter painter;
    if (!painter.begin(&device))
        throw Failure(ErrorNumber::InvalidArgument, "LanePicture",
                      "The picture can't be printed: the printer doesn't answer");
    // A type of so many pixels has the same measures here as on the screen.
    QFont font = paper.Font;
    font.setPixelSize(QFontInfo(paper.Font).pixelSize());
    painter.setFont(font);
    const double scale = static_cast<double>(device.width()) / paper.Width;
    const int axis = LaneDrawing::AxisHeight(painter.fontMetrics());
    const int lanes = paper.Drawing.LanesHeight(painter.fontMetrics());
    const int page = std::max(static_cast<int>(device.height() / scale) - axis, 1);
    for (int top = 0; top < lanes; top += page)
    {
        if (top > 0)
            device.newPage();
        painter.resetTransform();
        painter.scale(scale, scale);
        paper.Drawing.Draw(painter, {paper.Width, std::min(page, lanes - top) + axis}, top,
                           PaperPalette(), paper.Marks);
    }
}

} // namespace Tamrivo
