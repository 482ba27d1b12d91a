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
    /// Where the form can grow in one direction, twips.
    struct Stretch
    {
        int From;
        int To;
    };
    using Stretches = std::vector<Stretch>;

    static void AddStretch(Stretches& stretches, Stretch added);
    int RoomAcross(const Control& control) const;
    void FitControl(const Control& control, const ControlView& view);
    void FitChildren(const Container& container, const ControlView& view);

    const UserControl& m_form;
    Places m_places;
    int m_width;
    int m_height;
    Stretches m_across;
    Stretches m_down;
    double m_scaleAcross = 1; ///< Pixels a twip.
    double m_scaleDown = 1;
};

} // namespace Tamrivo
