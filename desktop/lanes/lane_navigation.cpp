// How mouse, wheel and keys move the picture of the lanes.

#include "desktop/lanes/lane_picture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{

constexpr double zoomStep = 1.25;
constexpr double panStep = 0.1;

} // namespace

LengthAxis LanePicture::Axis() const
{
    return m_drawing.AxisIn(viewport()->size(), fontMetrics());
}

void LanePicture::SetInView(LaneStretch stretch)
{
    m_drawing.SetInView(stretch);
    viewport()->update();
    m_rest.start();
}

void LanePicture::Zoom(double factor, double around)
{
    const auto [low, high] = m_drawing.InView();
    SetInView({around - (around - low) / factor, around + (high - around) / factor});
}

void LanePicture::Pan(double share)
{
    const auto [low, high] = m_drawing.InView();
    const double step = (high - low) * share;
    SetInView({low + step, high + step});
}

void LanePicture::ZoomIn()
{
    Zoom(zoomStep, (m_drawing.InView().Low + m_drawing.InView().High) / 2);
}

void LanePicture::ZoomOut()
{
    Zoom(1 / zoomStep, (m_drawing.InView().Low + m_drawing.InView().High) / 2);
}

void LanePicture::ShowAllLengths()
{
    SetInView(m_drawing.Whole());
}

void LanePicture::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120;
    const QPoint turned = event->angleDelta();
    const double along = turned.x() != 0 ? turned.x() : turned.y();
    if (event->modifiers().testFlag(Qt::ControlModifier))
        Zoom(std::pow(zoomStep, turned.y() / notch), Axis().LengthAt(event->position().x()));
    else if (event->modifiers().testFlag(Qt::ShiftModifier) || turned.x() != 0)
        Pan(-along / notch * panStep);
    else
        return QAbstractScrollArea::wheelEvent(event);
    event->accept();
}

void LanePicture::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_grip = {event->position().toPoint(), m_drawing.InView(), verticalScrollBar()->value()};
}

void LanePicture::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_grip)
        return;
    const QPoint moved = event->position().toPoint() - m_grip->Place;
    m_grip->IsMoved =
        m_grip->IsMoved || moved.manhattanLength() >= QApplication::startDragDistance();
    if (!m_grip->IsMoved)
        return;
    viewport()->setCursor(Qt::ClosedHandCursor);
    const double length = Axis().LengthAt(moved.x()) - Axis().LengthAt(0);
    SetInView({m_grip->InView.Low - length, m_grip->InView.High - length});
    verticalScrollBar()->setValue(m_grip->Scrolled - moved.y());
}

void LanePicture::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_grip)
        return;
    const bool isMoved = m_grip->IsMoved;
    m_grip.reset();
    viewport()->unsetCursor();
    if (!isMoved)
        Tell(onClicked, LocusAt(event->position().toPoint()));
}

void LanePicture::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Tell(onDoubleClicked, LocusAt(event->position().toPoint()));
}

bool LanePicture::ZoomByKey(const QKeyEvent& event)
{
    const bool isMoving = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key())
    {
    case Qt::Key_Plus:
    case Qt::Key_Equal: ZoomIn(); return true;
    case Qt::Key_Minus: ZoomOut(); return true;
    case Qt::Key_0: ShowAllLengths(); return true;
    case Qt::Key_Left:
        if (isMoving)
            Pan(-panStep);
        return isMoving;
    case Qt::Key_Right:
        if (isMoving)
            Pan(panStep);
        return isMoving;
    default: return false;
    }
}

void LanePicture::keyPressEvent(QKeyEvent* event)
{
    const auto order = m_drawing.InReadingOrder();
    if (order.empty())
        return QAbstractScrollArea::keyPressEvent(event);
    if (ZoomByKey(*event))
        return;
    const auto last = std::ssize(order) - 1;
    const auto at = m_marks.Focus ? std::ranges::find(order, *m_marks.Focus) - order.begin()
                                  : std::ptrdiff_t{-1};
    std::ptrdiff_t next = 0;
    switch (event->key())
    {
    case Qt::Key_Right: next = at + 1; break;
    case Qt::Key_Left: next = at - 1; break;
    case Qt::Key_Home: next = 0; break;
    case Qt::Key_End: next = last; break;
    case Qt::Key_Space: return Tell(onClicked, m_marks.Focus);
    case Qt::Key_Return:
    case Qt::Key_Enter: return Tell(onDoubleClicked, m_marks.Focus);
    default: return QAbstractScrollArea::keyPressEvent(event);
    }
    GoTo(order[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, last))]);
}

} // namespace Tamrivo
