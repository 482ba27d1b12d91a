#pragma once

#include "desktop/forms/tidy_places.h"

#include <QRect>
#include <QSize>

#include <functional>
#include <vector>

class QFontMetrics;

namespace Tamrivo
{

class ControlView;

/// Turns the declared places of a form into pixels. One scale for each direction, the smallest one
/// at which no caption is cut and no two controls overlap, keeps the form's proportions at every
/// font. What room there is beyond that goes to the controls that can grow.
class FormLayout
{
public:
    /// The view of a control; null for one that isn't drawn.
    using ViewOf = std::function<const ControlView*(const Control&)>;

    explicit FormLayout(const UserControl& form);

    /// Finds the scale for the views in their present fonts; `font` is the form's own.
    void Fit(const ViewOf& viewOf, const QFontMetrics& font);

    /// The size at which every control is as large as declared.
    QSize NaturalSize() const;
    /// The smallest size at which the form can be used.
    QSize LeastSize() const;

    /// Where a control stands in its container while the form has this size.
    QRect Rect(const Control& control, const ControlView& view, QSize formSize) const;

private:
    /// A part of a direction in which the form can grow, twips.
    struct Stretch
    {
        int From;
        int To;
    };

    /// One direction of the form.
    struct Axis
    {
        int Place::*Start;
        int Place::*Length;
        bool AlwaysShrinks; ///< Also when only one stretch could give up some of its room.
        int Extent = 0;     ///< Of the form, twips.
        std::vector<Stretch> Stretches = {};
        double Scale = 1; ///< Pixels per twip.

        int End(const Place& place) const { return place.*Start + place.*Length; }
        int Pixels(int twips) const;
        int LeastPixels() const;
        void AddStretch(Stretch added);
    };

    /// From a pixel up to, and without, another one.
    struct Span
    {
        int From;
        int To;
    };

    int RoomAcross(const Control& control) const;
    void FitControl(const Control& control, const ControlView& view);
    void FitChildren(const Container& container, const ControlView& view);
    /// Where a control stands along an axis while the form has this extent, in pixels.
    Span SpanOf(const Axis& axis, const Control& control, const ControlView& view,
                int formExtent) const;

    const UserControl& m_form;
    Places m_places;
    Axis m_across{&Place::Left, &Place::Width, false};
    Axis m_down{&Place::Top, &Place::Height, true};
};

} // namespace Tamrivo
