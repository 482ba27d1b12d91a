#pragma once

#include <QRectF>

class QPainter;
class QPalette;

namespace Tamrivo
{

/// An axis of fragment lengths, from left to right.
class LengthAxis
{
public:
    /// @param low, high lengths at the ends, nt; `low < high`
    LengthAxis(double low, double high, double left, double right)
        : m_low(low), m_high(high), m_left(left), m_right(right)
    {}

    double X(double length) const
    {
        return m_left + (length - m_low) / (m_high - m_low) * (m_right - m_left);
    }

    /// The length at a place.
    double LengthAt(double x) const
    {
        return m_low + (x - m_left) / (m_right - m_left) * (m_high - m_low);
    }

    /// Draws the axis with numbers below `y`, and faint lines up to `top`.
    void Draw(QPainter& painter, const QPalette& palette, double y, double top) const;

private:
    double m_low;
    double m_high;
    double m_left;
    double m_right;
};

} // namespace Tamrivo
