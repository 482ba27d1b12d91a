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

int Pixels(double scale, int twips)
{
    return static_cast<int>(std::lround(scale * twips));
}

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

FormLayout::FormLayout(const UserControl& form)
    : m_form(form),
      m_places(TidyPlaces(form)),
      m_width(form.ClientWidth()),
      m_height(form.ClientHeight())
{
    // A form may say that it is smaller than what lies on it.
    for (const Control* control : form.Children())
    {
        if (IsMenu(*control))
            continue;
        m_width = std::max(m_width, Right(m_places.at(control)));
        m_height = std::max(m_height, Bottom(m_places.at(control)) + margin);
    }
}

void FormLayout::Fit(const ViewOf& viewOf, const QFontMetrics& font)
{
    m_scaleAcross = font.height() / declaredLine;
    m_scaleDown = m_scaleAcross;
    m_across.clear();
    m_down.clear();
    for (const Control* control : m_form.Controls())
    {
        const ControlView* view = viewOf(*control);
        if (view == nullptr)
            continue;
        FitControl(*control, *view);
        if (const auto* container = dynamic_cast<const Container*>(control))
            FitChildren(*container, *view);
        if (view->CanGrow())
        {
            const Place& place = m_places.at(control);
            AddStretch(m_across, {place.Left, Right(place)});
            AddStretch(m_down, {place.Top, Bottom(place)});
        }
    }
}

void FormLayout::FitControl(const Control& control, const ControlView& view)
{
    const Place& place = m_places.at(&control);
    const QSize least = view.LeastSize();
    const int room = view.MayReachRight() ? RoomAcross(control) : place.Width;
    // Rounding both edges may cost a pixel.
    m_scaleAcross = std::max(m_scaleAcross, (least.width() + 1.0) / room);
    m_scaleDown = std::max(m_scaleDown, (least.height() + 1.0) / place.Height);
}

void FormLayout::FitChildren(const Container& container, const ControlView& view)
{
    for (const Control* child : container.Children())
        m_scaleDown = std::max(m_scaleDown, (view.HeaderHeight() + 1.0) / m_places.at(child).Top);
}

int FormLayout::RoomAcross(const Control& control) const
{
    const Place& place = m_places.at(&control);
    const Control* container = control.Parent().AsControl();
    int limit = (container != nullptr ? m_places.at(container).Width : m_width) - margin;
    for (const Control* other : control.Parent().Children())
    {
        const Place& beside = m_places.at(other);
        if (beside.Left >= Right(place) && OverlapDown(place, beside))
            limit = std::min(limit, beside.Left - margin);
    }
    return std::max(limit - place.Left, place.Width);
}

void FormLayout::AddStretch(Stretches& stretches, Stretch added)
{
    std::erase_if(stretches, [&](const Stretch& old) {
        const bool overlaps = old.From < added.To && added.From < old.To;
        if (overlaps)
            added = {std::min(old.From, added.From), std::max(old.To, added.To)};
        return overlaps;
    });
    stretches.push_back(added);
}

QSize FormLayout::NaturalSize() const
{
    return {Pixels(m_scaleAcross, m_width), Pixels(m_scaleDown, m_height)};
}

QSize FormLayout::LeastSize() const
{
    int down = 0;
    for (const Stretch& stretch : m_down)
        down += stretch.To - stretch.From;
    int across = 0;
    for (const Stretch& stretch : m_across)
        across += m_across.size() > 1 ? stretch.To - stretch.From : 0;
    return NaturalSize() - QSize(Pixels(m_scaleAcross * shrinkable, across),
                                 Pixels(m_scaleDown * shrinkable, down));
}

QRect FormLayout::Rect(const Control& control, const ControlView& view, QSize formSize) const
{
    const Place& place = m_places.at(&control);
    QPoint topLeft(Pixels(m_scaleAcross, place.Left), Pixels(m_scaleDown, place.Top));
    QPoint bottomRight(Pixels(m_scaleAcross, Right(place)), Pixels(m_scaleDown, Bottom(place)));
    if (view.MayReachRight())
    {
        const int limit = Pixels(m_scaleAcross, place.Left + RoomAcross(control));
        bottomRight.rx() = std::clamp(topLeft.x() + view.LeastSize().width(), bottomRight.x(),
                                      std::max(limit, bottomRight.x()));
    }
    if (&control.Parent() == &m_form)
    {
        const QSize extra = formSize - NaturalSize();
        for (std::size_t i = 0; i < m_across.size(); ++i)
        {
            const Stretch& stretch = m_across[i];
            // What doesn't divide goes to the last one.
            const int count = static_cast<int>(m_across.size());
            const int share =
                extra.width() / count + (i + 1 == m_across.size() ? extra.width() % count : 0);
            const bool covers = (view.CanGrow() || CanFollow(control)) &&
                                place.Left <= stretch.From + sameEdge &&
                                Right(place) >= stretch.To - sameEdge;
            if (place.Left >= stretch.To)
                topLeft.rx() += share;
            if (place.Left >= stretch.To || covers)
                bottomRight.rx() += share;
        }
        for (const Stretch& stretch : m_down)
        {
            const int share = extra.height() / static_cast<int>(m_down.size());
            if (place.Top >= stretch.To)
                topLeft.ry() += share;
            if (place.Top >= stretch.To || view.CanGrow())
                bottomRight.ry() += share;
        }
    }
    return {topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())};
}

} // namespace Tamrivo
