#pragma once

#include "core/event.h"
#include "desktop/alleles/allele_picture.h"
#include "host/alleles/pane_user.h"

#include <QObject>
#include <QPointF>

#include <memory>
#include <optional>

class QMouseEvent;

namespace Tamrivo
{

class Actions;

/// What the mouse does to the bins of a picture: it drags an edge, as far as the allele's size and
/// the neighbouring bin, or adds an allele by a click between bins. The values stand in the picture
/// before anything changes; then it is one step of the pane. Escape ends a drag without a change.
/// While the pane can't be reached nothing of it is offered.
class BinEditing : public QObject
{
    Q_OBJECT

public:
    /// Picture and pane must outlive it.
    BinEditing(AllelePicture& picture, User::AllelePaneControl& pane, const Actions& actions,
               QObject* parent);

signals:
    /// The person has added an allele or double clicks one, and will want to enter its name.
    void NameAsked(std::int32_t row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class BinEdge
    {
        From,
        To,
    };

    struct Edge
    {
        const BinShape* Bin;
        BinEdge Side;
    };

    /// An edge that the mouse holds.
    struct Grip
    {
        std::shared_ptr<Allele> Row;
        AlleleFields Before;
        BinEdge Side;
        bool IsDragged = false;
    };

    bool CanEdit() const;
    std::optional<Edge> EdgeAt(QPointF place) const;
    const BinShape* BinAt(QPointF place) const;
    bool IsGap(QPointF place) const;
    /// To the decimal place that a pixel can tell apart.
    double Rounded(double length) const;
    LengthRange RoomFor(const BinShape& bin, BinEdge side) const;

    bool Press(const QMouseEvent& event);
    bool DoubleClick(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Release(const QMouseEvent& event);
    void Offer(QPointF place);
    void Drag(const Grip& grip, double x);
    void TakeDrag(const Grip& grip);
    void TakeNew();
    void LetGo();
    void FollowPane();

    AllelePicture& m_picture;
    User::AllelePaneControl& m_control;
    AllelePane& m_pane;
    const Actions& m_actions;
    QPointF m_pressed;
    std::optional<Grip> m_grip;
    bool m_holdsGap = false; ///< The mouse is pressed between bins.
    Connection m_changes;
};

} // namespace Tamrivo
