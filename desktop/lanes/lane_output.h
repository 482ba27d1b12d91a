#pragma once

#include "desktop/lanes/lane_drawing.h"

#include <QByteArray>
#include <QFont>

class QPagedPaintDevice;

namespace Tamrivo
{

// Lanes on paper: dark on white whatever the theme, all rows and the axis. What is in view of the
// lengths is what is shown.

/// A picture of its own of a drawing that has some width on the screen.
struct LanePaper
{
    const LaneDrawing& Drawing;
    const LaneMarks& Marks;
    int Width;
    QFont Font;
};

/// PNG has twice the pixels of the screen while its height allows. Both raise
/// `ErrorNumber::InvalidArgument` for a picture that is too tall to be of use.
QByteArray AsPng(const LanePaper& paper);
QByteArray AsSvg(const LanePaper& paper, int resolution);

/// Prints the lanes as wide as the page, on as many pages as they need, each with the axis. Raises
/// `ErrorNumber::InvalidArgument` when the device can't be painted on.
void PrintLanes(const LanePaper& paper, QPagedPaintDevice& device);

} // namespace Tamrivo
