#include "desktop/alleles/allele_picture.h"

#include "desktop/alleles/bin_look.h"
#include "desktop/common/colors.h"
#include "desktop/common/length_axis.h"
#include "desktop/common/picture_role.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace Tamrivo
{

namespace
{

constexpr double margin = 8;

} // namespace

AllelePicture::AllelePicture(QWidget* parent) : QWidget(parent)
{
    MarkAsPicture(*this);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName("Picture of the bins along the fragment length");
}

void AllelePicture::Show(const AlleleRows& rows, const std::optional<LengthRange>& range)
{
    m_range = range;
    m_shapes = range ? ShapesOf(rows, *range) : std::vector<BinShape>();
    FitAxis();
    if (m_observed)
        CountIn(m_shapes, *m_observed);
    const auto faulty = std::ranges::count_if(
        m_shapes, [](const BinShape& shape) { return shape.State != BinState::InOrder; });
    setAccessibleDescription(QString("%1 bins, %2 of them overlapping or outside the range")
                                 .arg(m_shapes.size())
                                 .arg(faulty));
    update();
}

void AllelePicture::ShowObserved(std::vector<double> sizes, std::vector<LengthRange> proposed)
{
    m_observed.reset();
    if (!sizes.empty())
    {
        std::ranges::sort(sizes);
        m_observed.emplace(ObservedSizes{std::move(sizes), {}, {}, std::move(proposed)});
        CountIn(m_shapes, *m_observed);
    }
    FitAxis();
    update();
}

void AllelePicture::FitAxis()
{
    m_shown = LengthsOnShow(m_range, m_shapes, m_observed ? &*m_observed : nullptr);
}

void AllelePicture::Mark(const std::set<std::int32_t>& rows)
{
    m_marked = rows;
    update();
}

QSize AllelePicture::sizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    return {30 * line, 9 * line};
}

double AllelePicture::LegendTop() const
{
    return height() - fontMetrics().lineSpacing() - margin / 2;
}

double AllelePicture::BaseLine() const
{
    return LegendTop() - fontMetrics().height() - margin;
}

LengthAxis AllelePicture::Axis() const
{
    return {m_shown.From, m_shown.To, margin, width() - margin};
}

QRectF AllelePicture::RectOf(const BinShape& shape) const
{
    constexpr double leastWidth = 3;
    const LengthAxis axis = Axis();
    const double left = axis.X(shape.From);
    const double width = std::max(leastWidth, axis.X(shape.To) - left);
    const double height = std::max(12.0, (BaseLine() - margin) * 0.55);
    return {left, BaseLine() - height, width, height};
}

const BinShape* AllelePicture::ShapeAt(QPointF place) const
{
    // The one drawn last lies on top.
    const auto found = std::find_if(m_shapes.rbegin(), m_shapes.rend(), [&](const BinShape& shape) {
        return RectOf(shape).adjusted(-1, 0, 1, 0).contains(place);
    });
    return found == m_shapes.rend() ? nullptr : &*found;
}

void AllelePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    if (!m_range)
        return;
    const LengthAxis axis = Axis();
    DrawRange(painter, axis);
    axis.Draw(painter, palette(), BaseLine(), margin);
    if (m_observed)
        DrawObserved(painter, axis);
    else
    {
        for (const BinShape& shape : m_shapes)
            DrawBin(painter, shape);
    }
    DrawNames(painter);
    DrawBinLegend(painter, {margin, LegendTop()}, palette());
    if (hasFocus())
    {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

void AllelePicture::DrawRange(QPainter& painter, const LengthAxis& axis) const
{
    QColor ground = SafeColor::SkyBlue;
    ground.setAlphaF(0.15F);
    const double left = axis.X(m_range->From);
    const double right = axis.X(m_range->To);
    painter.fillRect(QRectF(left, margin / 2, right - left, BaseLine() - margin / 2), ground);
    painter.setPen(QPen(SafeColor::SkyBlue, 1, Qt::DashLine));
    for (const double x : {left, right})
        painter.drawLine(QPointF(x, margin / 2), QPointF(x, BaseLine()));
}

/// The sizes behind the bins, which let them shine through.
void AllelePicture::DrawObserved(QPainter& painter, const LengthAxis& axis) const
{
    constexpr double opacity = 0.55;
    const QRectF place(QPointF(0, margin), QPointF(width(), BaseLine()));
    DrawHistogram(painter, axis, place, *m_observed, palette());
    painter.setOpacity(opacity);
    for (const BinShape& shape : m_shapes)
        DrawBin(painter, shape);
    painter.setOpacity(1);
    DrawProposal(painter, axis, place, *m_observed, palette());
    for (std::size_t at = 0; at < m_shapes.size(); ++at)
        DrawCount(painter, RectOf(m_shapes[at]), m_observed->Counts[at], palette());
}

void AllelePicture::DrawBin(QPainter& painter, const BinShape& shape) const
{
    const QRectF rect = RectOf(shape);
    if (shape.HasWidth())
        FillBin(painter, rect, shape.State);
    else
        DrawBinWithoutWidth(painter, rect, shape.State);
    const double size = Axis().X(shape.Size);
    painter.setPen(QPen(palette().color(QPalette::Text), 1));
    painter.drawLine(QPointF(size, rect.top() - 3), QPointF(size, rect.top() + 3));
    if (m_marked.contains(shape.Row))
    {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Text), 2));
        painter.drawRect(rect.adjusted(-2, -2, 2, 1));
    }
}

void AllelePicture::DrawNames(QPainter& painter) const
{
    // Upright while there is room, else turned, and then as many as fit, marked ones first.
    const QFontMetrics font = fontMetrics();
    double room = width();
    double longest = 0;
    for (std::size_t i = 0; i < m_shapes.size(); ++i)
    {
        longest = std::max<double>(longest, font.horizontalAdvance(m_shapes[i].Name));
        if (i > 0)
            room = std::min(room, RectOf(m_shapes[i]).center().x() -
                                      RectOf(m_shapes[i - 1]).center().x());
    }
    const bool isTurned = longest + 4 > room;
    const auto half = [&](const BinShape& shape) {
        return (isTurned ? font.height() : font.horizontalAdvance(shape.Name)) / 2.0;
    };
    std::vector<LengthRange> taken; // Pixels.
    for (const bool isMarked : {true, false})
    {
        double free = -1;
        for (const BinShape& shape : m_shapes)
        {
            if (m_marked.contains(shape.Row) != isMarked)
                continue;
            const double x = RectOf(shape).center().x();
            const LengthRange name{x - half(shape), x + half(shape)};
            const bool meetsMarked =
                !isMarked && std::ranges::any_of(taken, [&](const LengthRange& other) {
                    return name.From < other.To && other.From < name.To;
                });
            if (name.From < free || meetsMarked)
                continue;
            free = name.To;
            if (isMarked)
                taken.push_back(name);
            DrawName(painter, shape, isTurned);
        }
    }
}

void AllelePicture::DrawName(QPainter& painter, const BinShape& shape, bool isTurned) const
{
    const QFontMetrics font = fontMetrics();
    const QRectF rect = RectOf(shape);
    painter.setPen(palette().color(QPalette::Text));
    painter.save();
    painter.translate(rect.center().x(), rect.top() - 7);
    if (isTurned)
    {
        painter.rotate(-90);
        painter.drawText(QPointF(0, font.ascent() / 2.0 - 1), shape.Name);
    }
    else
        painter.drawText(QPointF(-font.horizontalAdvance(shape.Name) / 2.0, 0), shape.Name);
    painter.restore();
}

void AllelePicture::mousePressEvent(QMouseEvent* event)
{
    const BinShape* shape = ShapeAt(event->position());
    if (shape != nullptr)
        emit Chosen(shape->Row);
}

void AllelePicture::keyPressEvent(QKeyEvent* event)
{
    const auto last = static_cast<std::int32_t>(m_shapes.size());
    const std::int32_t present = m_marked.empty() ? 0 : *m_marked.begin();
    std::int32_t row = 0;
    switch (event->key())
    {
    case Qt::Key_Left:
    case Qt::Key_Up: row = present - 1; break;
    case Qt::Key_Right:
    case Qt::Key_Down: row = present + 1; break;
    case Qt::Key_Home: row = 1; break;
    case Qt::Key_End: row = last; break;
    default: return QWidget::keyPressEvent(event);
    }
    if (last == 0)
        return;
    row = std::clamp(row, 1, last);
    emit Chosen(row);
    const BinShape& shape = m_shapes[static_cast<std::size_t>(row - 1)];
    setAccessibleDescription(Describe(shape));
    QToolTip::showText(mapToGlobal(RectOf(shape).bottomLeft().toPoint()), Describe(shape), this);
}

bool AllelePicture::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const BinShape* shape = ShapeAt(help->pos()))
        QToolTip::showText(help->globalPos(), Describe(*shape), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace Tamrivo
