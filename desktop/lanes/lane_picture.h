#pragma once

#include "desktop/lanes/lane_drawing.h"

#include <QAbstractScrollArea>

#include <functional>

namespace Tamrivo
{

/// Shows lanes of loci; scrolls when there are more rows than fit, with the axis in view all along.
/// Keys: Left and Right step from bar to bar and tell what each is, Home and End go to the first
/// and to the last; the others scroll.
class LanePicture : public QAbstractScrollArea
{
public:
    explicit LanePicture(QWidget* parent);

    void Show(LaneDrawing drawing);
    const LaneDrawing& Drawing() const { return m_drawing; }

    /// All lanes and the axis, as wide as shown here, dark on white; PNG has twice the pixels of
    /// the screen while its height allows. Both raise `ErrorNumber::InvalidArgument` for a picture
    /// that is too tall to be of use.
    QByteArray AsPng() const;
    QByteArray AsSvg() const;

    /// The person has clicked the bar of a locus, or double clicked one. Positions in the list of
    /// loci.
    std::function<void(std::size_t locus)> onClicked;
    std::function<void(std::size_t locus)> onDoubleClicked;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void FitScrollBar();
    QSize WholeSize() const;
    QString TipOf(std::size_t locus) const;
    std::vector<LaneBar> Bars() const;
    /// The locus whose bar is at a place of the viewport.
    std::optional<std::size_t> LocusAt(QPoint place) const;
    void GoTo(std::size_t locus);

    LaneDrawing m_drawing{{}, {}};
    std::optional<std::size_t> m_focus; ///< The locus that the keys have gone to.
};

} // namespace Tamrivo
