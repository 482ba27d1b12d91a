#include "desktop/alleles/allele_picture.h"

#include "desktop/alleles/bin_look.h"
#include "desktop/alleles/bin_names.h"
#include "desktop/common/dye_shade.h"
#include "desktop/common/picture_role.h"
#include "desktop/common/text.h"

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

void AllelePicture::SetDye(const Dyes& dyes, std::int32_t dyeIndex)
{
    m_dyes = dyes;
    m_dyeIndex = dyeIndex;
    update();
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
    setAccessibleDescription(QString("%1 bins, %2 of them overlapping or outside the range, %3")
                                 .arg(m_shapes.size())
                                 .arg(faulty)
                                 .arg(ToQString(m_dyes.TitleOf(m_dyeIndex))));
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

void AllelePicture::ShowDraft(std::optional<BinDraft> draft)
{
    if (!draft && !m_draft)
        return;
    m_draft = std::move(draft);
    update();
}

QColor AllelePicture::Shade() const
{
    return DyeShade(m_dyes, m_dyeIndex, palette());
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

QRectF AllelePicture::Band() const
{
    const double height = std::max(12.0, (BaseLine() - margin) * 0.55);
    return {margin, BaseLine() - height, width() - 2 * margin, height};
}

QRectF AllelePicture::RectOf(const BinShape& shape) const
{
    constexpr double leastWidth = 3;
    const LengthAxis axis = Axis();
    const QRectF band = Band();
    const double left = axis.X(shape.From);
    return {left, band.top(), std::max(leastWidth, axis.X(shape.To) - left), band.height()};
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
        DrawBins(painter);
    DrawNames(painter);
    DrawBinLegend(painter, {margin, LegendTop()}, m_shapes, ToQString(m_dyes.TitleOf(m_dyeIndex)),
                  Shade(), palette());
    if (m_draft)
        DrawDraft(painter, axis, Band(), *m_draft, Shade(), palette());
    if (hasFocus())
    {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

void AllelePicture::DrawRange(QPainter& painter, const LengthAxis& axis) const
{
    // Colour is left to the dye.
    QColor ground = palette().color(QPalette::Text);
    ground.setAlphaF(0.06F);
    const double left = axis.X(m_range->From);
    const double right = axis.X(m_range->To);
    painter.fillRect(QRectF(left, margin / 2, right - left, BaseLine() - margin / 2), ground);
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1, Qt::DashLine));
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
    DrawBins(painter);
    painter.setOpacity(1);
    DrawProposal(painter, axis, place, *m_observed, palette());
    for (std::size_t at = 0; at < m_shapes.size(); ++at)
        DrawCount(painter, RectOf(m_shapes[at]), m_observed->Counts[at], palette());
}

void AllelePicture::DrawBins(QPainter& painter) const
{
    const LengthAxis axis = Axis();
    const QColor shade = Shade();
    const QColor text = palette().color(QPalette::Text);
    for (const BinShape& shape : m_shapes)
    {
        if (m_draft && m_draft->Row == shape.Row)
            continue;
        const QRectF rect = RectOf(shape);
        DrawBin(painter, rect, shape, shade);
        const double size = axis.X(shape.Size);
        painter.setPen(QPen(text, 1));
        painter.drawLine(QPointF(size, rect.top() - 3), QPointF(size, rect.top() + 3));
        if (!IsMarked(shape.Row))
            continue;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(text, 2));
        painter.drawRect(rect.adjusted(-2, -2, 2, 1));
    }
}

void AllelePicture::DrawNames(QPainter& painter) const
{
    constexpr double distance = 7;
    std::vector<BinName> names;
    for (const BinShape& shape : m_shapes)
    {
        const QRectF rect = RectOf(shape);
        names.push_back(
            {{rect.center().x(), rect.top() - distance}, shape.Name, IsMarked(shape.Row)});
    }
    DrawBinNames(painter, names, palette());
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
