#include "desktop/forms/form_layout.h"

#include "controls/frames.h"
#include "controls/menu.h"
#include "controls/text_field.h"
#include "controls/user_control.h"
#include "desktop/forms/control_view.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{

constexpr int margin = 60;           ///< Room kept between neighbours and to the edge, twips.
constexpr double declaredLine = 195; ///< Height of a line in the font of the declarations, twips.
constexpr double shrinkable = 0.4;   ///< Part of what can grow that can also be given up.
constexpr int sameEdge = 100;        ///< Edges this close are meant to be in line, twips.

bool IsMenu(const Control& control)
{
    return dynamic_cast<const Menu*>(&control) != nullptr;
}

/// What is as wide as something that grows follows it, if that makes sense.
bool CanFollow(const Control& control)
{
    return dynamic_cast<const TextField*>(&control) != nullptr ||
           dynamic_cast<const Container*>(&control) != nullptr;
}

} // namespace

int FormLayout::Axis::Pixels(int twips) const
{
    return static_cast<int>(std::lround(Scale * twips));
}

int FormLayout::Axis::LeastPixels() const
{
    int growing = 0;
    for (const Stretch& stretch : Stretches)
        growing += AlwaysShrinks || Stretches.size() > 1 ? stretch.To - stretch.From : 0;
    return Pixels(Extent) - static_cast<int>(std::lround(Scale * shrinkable * growing));
}

void FormLayout::Axis::AddStretch(Stretch added)
{
    std::erase_if(Stretches, [&](const Stretch& old) {
        const bool overlaps = old.From < added.To && added.From < old.To;
        if (overlaps)
            added = {std::min(old.From, added.From), std::max(old.To, added.To)};
        return overlaps;
    });
    Stretches.push_back(added);
}

FormLayout::FormLayout(const UserControl& form) : m_form(form), m_places(TidyPlaces(form))
{
    m_across.Extent = form.ClientWidth();
    m_down.Extent = form.ClientHeight();
    // A form may say that it is smaller than what lies on it.
    for (const Control* control : form.Children())
    {
        if (IsMenu(*control))
            continue;
        m_across.Extent = std::max(m_across.Extent, Right(m_places.at(control)));
        m_down.Extent = std::max(m_down.Extent, Bottom(m_places.at(control)) + margin);
    }
}

void FormLayout::Fit(const ViewOf& viewOf, const QFontMetrics& font)
{
    for (Axis* axis : {&m_across, &m_down})
    {
        axis->Scale = font.height() / declaredLine;
        axis->Stretches.clear();
    }
    for (const Control* control : m_form.Controls())
    {
        const ControlView* view = viewOf(*control);
        if (view == nullptr)
            continue;
        FitControl(*control, *view);
        if (const auto* container = dynamic_cast<const Container*>(control))
            FitChildren(*container, *view);
        for (Axis* axis : {&m_across, &m_down})
        {
            const Place& place = m_places.at(control);
            if (view->CanGrow())
                axis->AddStretch({place.*axis->Start, axis->End(place)});
        }
    }
}

void FormLayout::FitControl(const Control& control, const ControlView& view)
{
    const Place& place = m_places.at(&control);
    const QSize least = view.LeastSize();
    const int room = view.MayReachRight() ? RoomAcross(control) : place.Width;
    // Rounding both edges may cost a pixel.
    m_across.Scale = std::max(m_across.Scale, (least.width() + 1.0) / room);
    m_down.Scale = std::max(m_down.Scale, (least.height() + 1.0) / place.Height);
}

void FormLayout::FitChildren(const Container& container, const ControlView& view)
{
    for (const Control* child : container.Children())
        m_down.Scale = std::max(m_down.Scale, (view.HeaderHeight() + 1.0) / m_places.at(child).Top);
}

int FormLayout::RoomAcross(const Control& control) const
{
    const Place& place = m_places.at(&control);
    const Control* container = control.Parent().AsControl();
    int limit = (container != nullptr ? m_places.at(container).Width : m_across.Extent) - margin;
    for (const Control* other : control.Parent().Children())
    {
        const Place& beside = m_places.at(other);
        if (beside.Left >= Right(place) && OverlapDown(place, beside))
            limit = std::min(limit, beside.Left - margin);
    }
    return std::max(limit - place.Left, place.Width);
}

QSize FormLayout::NaturalSize() const
{
    return {m_across.Pixels(m_across.Extent), m_down.Pixels(m_down.Extent)};
}

QSize FormLayout::LeastSize() const
{
    return {m_across.LeastPixels(), m_down.LeastPixels()};
}

FormLayout::Span FormLayout::SpanOf(const Axis& axis, const Control& control,
                                    const ControlView& view, int formExtent) const
{
    const Place& place = m_places.at(&control);
    const int start = place.*axis.Start;
    const int end = axis.End(place);
    Span span{axis.Pixels(start), axis.Pixels(end)};
    if (&control.Parent() != &m_form)
        return span;
    const int extra = formExtent - axis.Pixels(axis.Extent);
    const int count = static_cast<int>(axis.Stretches.size());
    for (const Stretch& stretch : axis.Stretches)
    {
        // What doesn't divide goes to the last one.
        const bool isLast = &stretch == &axis.Stretches.back();
        const int share = extra / count + (isLast ? extra % count : 0);
        const bool isBehind = start >= stretch.To;
        const bool covers = (view.CanGrow() || CanFollow(control)) &&
                            start <= stretch.From + sameEdge && end >= stretch.To - sameEdge;
        span.From += isBehind ? share : 0;
        span.To += isBehind || covers ? share : 0;
    }
    return span;
}

QRect FormLayout::Rect(const Control& control, const ControlView& view, QSize formSize) const
{
    Span across = SpanOf(m_across, control, view, formSize.width());
    const Span down = SpanOf(m_down, control, view, formSize.height());
    if (view.MayReachRight())
    {
        const int width = across.To - across.From;
        const int room = std::max(m_across.Pixels(RoomAcross(control)), width);
        across.To = across.From + std::clamp(view.LeastSize().width(), width, room);
    }
    return {QPoint(across.From, down.From), QSize(across.To - across.From, down.To - down.From)};
}

} // namespace Tamrivo
