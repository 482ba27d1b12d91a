#pragma once

#include "desktop/lanes/lane_output.h"

#include <QAbstractScrollArea>
#include <QTimer>

#include <functional>
#include <unordered_map>

namespace Tamrivo
{

/// Shows lanes of loci; scrolls when there are more rows than fit, with the axis in view all along.
///
/// The wheel scrolls the rows, with Ctrl it zooms into the lengths and with Shift it moves along
/// them; so does dragging. Keys: Left and Right step from bar to bar and tell what each is, Home
/// and End go to the first and to the last, Space chooses the locus and Enter edits it; plus and
/// minus zoom, 0 shows all lengths, Ctrl with Left and Right moves along them; the others scroll.
class LanePicture : public QAbstractScrollArea
{
public:
    explicit LanePicture(QWidget* parent);

    /// Shows a drawing. What is in view of the lengths stays when its loci are those on show.
    void Show(LaneDrawing drawing);
    const LaneDrawing& Drawing() const { return m_drawing; }
    /// Marks these loci as chosen.
    void Choose(std::set<std::size_t> loci);
    /// Forgets what is known of the loci in detail, and asks anew.
    void ForgetDetails();

    /// Shows some of the lengths.
    void SetInView(LaneStretch stretch);
    void ZoomIn();
    void ZoomOut();
    void ShowAllLengths();

    /// What is shown, for paper.
    LanePaper Paper() const;

    /// Gives what is drawn and told of a locus where there is room. It is asked when the picture
    /// has come to rest.
    std::function<LaneDetails(std::size_t locus)> detailsOf;
    /// The person has chosen a locus, or wants to edit one.
    std::function<void(std::size_t locus)> onClicked;
    std::function<void(std::size_t locus)> onDoubleClicked;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// Where a drag has begun.
    struct Grip
    {
        QPoint Place;
        LaneStretch InView;
        int Scrolled;
        bool IsMoved = false;
    };

    void FitScrollBar();
    LengthAxis Axis() const;
    /// @param factor above 1 shows less
    void Zoom(double factor, double around);
    /// @param share of the lengths in view
    void Pan(double share);
    bool ZoomByKey(const QKeyEvent& event);
    void LoadDetails();
    QString TipOf(std::size_t locus);
    std::vector<LaneBar> Bars() const;
    /// The locus whose bar is at a place of the viewport.
    std::optional<std::size_t> LocusAt(QPoint place) const;
    void GoTo(std::size_t locus);
    void Tell(const std::function<void(std::size_t)>& handler, std::optional<std::size_t> locus);

    LaneDrawing m_drawing{{}, {}};
    LaneMarks m_marks; ///< The focus is the locus that the keys have gone to.
    std::unordered_map<std::size_t, LaneDetails> m_details;
    QTimer m_rest; ///< Runs while the picture moves.
    std::optional<Grip> m_grip;
};

} // namespace Tamrivo
