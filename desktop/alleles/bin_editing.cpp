#include "desktop/alleles/bin_editing.h"

#include "controls/user.h"
#include "core/numbers.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace Tamrivo
{

namespace
{

/// How near to an edge, or how far from the press, the mouse must be to mean it; pixels.
constexpr double reach = 4;

QString BinWords(double from, double to)
{
    return QString("bin %1 to %2 nt").arg(ToQString(DoubleText(from)), ToQString(DoubleText(to)));
}

} // namespace

BinEditing::BinEditing(AllelePicture& picture, User::AllelePaneControl& pane,
                       const Actions& actions, QObject* parent)
    : QObject(parent),
      m_picture(picture),
      m_control(pane),
      m_pane(User::AllelesOf(pane)),
      m_actions(actions)
{
    m_picture.installEventFilter(this);
    m_changes = m_pane.Changed.Connect([this] { FollowPane(); });
}

bool BinEditing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type())
    {
    case QEvent::MouseButtonPress: return Press(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseMove: return Move(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease: return Release(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonDblClick: return DoubleClick(static_cast<const QMouseEvent&>(*event));
    case QEvent::KeyPress:
        if (static_cast<const QKeyEvent&>(*event).key() != Qt::Key_Escape ||
            (!m_grip && !m_holdsGap))
            break;
        LetGo();
        return true;
    case QEvent::Leave:
        if (!m_grip)
            LetGo();
        break;
    case QEvent::FocusOut:
    case QEvent::Hide: LetGo(); break;
    case QEvent::ToolTip: return m_picture.Draft().has_value();
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

bool BinEditing::CanEdit() const
{
    return m_pane.ShownLocus() && !User::Obstacle(m_control);
}

std::optional<BinEditing::Edge> BinEditing::EdgeAt(QPointF place) const
{
    if (!m_picture.Band().contains(place))
        return std::nullopt;
    std::optional<Edge> nearest;
    // Of bins that touch, the chosen one is meant.
    auto best = std::tuple(true, reach, true);
    for (const BinShape& bin : m_picture.Shapes())
    {
        const AlleleFields& allele = *m_pane.Rows()[static_cast<std::size_t>(bin.Row - 1)];
        const QRectF rect = m_picture.RectOf(bin);
        const bool isOutside = place.x() < rect.left() || place.x() > rect.right();
        // The middle of a narrow bin is left for choosing it.
        const double within = isOutside ? reach : std::min(reach, rect.width() / 3);
        for (const BinEdge side : {BinEdge::From, BinEdge::To})
        {
            const double distance =
                std::abs(place.x() - (side == BinEdge::From ? rect.left() : rect.right()));
            const auto rank = std::tuple(!m_picture.IsMarked(bin.Row), distance, isOutside);
            if (distance > within || rank >= best || allele.AlleleReal2 > allele.AlleleReal3)
                continue;
            best = rank;
            nearest = {&bin, side};
        }
    }
    return nearest;
}

const BinShape* BinEditing::BinAt(QPointF place) const
{
    const auto& bins = m_picture.Shapes();
    const auto found = std::ranges::find_if(
        bins, [&](const BinShape& bin) { return m_picture.RectOf(bin).contains(place); });
    return found == bins.end() ? nullptr : &*found;
}

bool BinEditing::IsGap(QPointF place) const
{
    const auto& range = m_picture.Range();
    const double length = m_picture.Axis().LengthAt(place.x());
    return range && range->From <= length && length <= range->To &&
           m_picture.Band().contains(place) && BinAt(place) == nullptr;
}

double BinEditing::Rounded(double length) const
{
    const LengthAxis axis = m_picture.Axis();
    const double pixel = axis.LengthAt(1) - axis.LengthAt(0);
    const double parts = std::pow(10, std::clamp(-std::floor(std::log10(pixel)), 0.0, 2.0));
    return std::round(length * parts) / parts;
}

LengthRange BinEditing::RoomFor(const BinShape& bin, BinEdge side) const
{
    const LengthRange& all = *m_picture.Range();
    LengthRange room = side == BinEdge::From ? LengthRange{std::min(all.From, bin.From), bin.Size}
                                             : LengthRange{bin.Size, std::max(all.To, bin.To)};
    for (const BinShape& other : m_picture.Shapes())
    {
        // Bins that overlap already need not get apart, and don't come closer.
        if (side == BinEdge::From && other.Size < bin.Size)
            room.From = std::max(room.From, std::min(other.To, bin.From));
        if (side == BinEdge::To && other.Size > bin.Size)
            room.To = std::min(room.To, std::max(other.From, bin.To));
    }
    return room;
}

bool BinEditing::Press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !CanEdit())
        return false;
    m_pressed = event.position();
    if (const auto edge = EdgeAt(m_pressed))
    {
        const auto& row = m_pane.Rows()[static_cast<std::size_t>(edge->Bin->Row - 1)];
        m_grip = {row, *row, edge->Side};
        m_picture.ShowDraft({});
        emit m_picture.Chosen(edge->Bin->Row);
        return true;
    }
    m_holdsGap = IsGap(m_pressed);
    if (m_holdsGap)
        Offer(m_pressed);
    return m_holdsGap;
}

bool BinEditing::DoubleClick(const QMouseEvent& event)
{
    const BinShape* bin = CanEdit() ? BinAt(event.position()) : nullptr;
    if (bin != nullptr)
        emit NameAsked(bin->Row);
    return bin != nullptr;
}

bool BinEditing::Move(const QMouseEvent& event)
{
    const bool isFar = std::abs(event.position().x() - m_pressed.x()) >= reach;
    if (m_grip)
    {
        m_grip->IsDragged = m_grip->IsDragged || isFar;
        if (m_grip->IsDragged)
            Drag(*m_grip, event.position().x());
        return true;
    }
    if (m_holdsGap && isFar)
        LetGo();
    else if (event.buttons() == Qt::NoButton)
        Offer(event.position());
    return false;
}

bool BinEditing::Release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || (!m_grip && !m_holdsGap))
        return false;
    if (m_grip && m_grip->IsDragged)
        TakeDrag(*std::exchange(m_grip, std::nullopt));
    else if (m_holdsGap)
        TakeNew();
    LetGo();
    return true;
}

void BinEditing::Offer(QPointF place)
{
    std::optional<BinDraft> draft;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    if (CanEdit() && EdgeAt(place))
        cursor = Qt::SizeHorCursor;
    else if (CanEdit() && IsGap(place))
    {
        cursor = Qt::CrossCursor;
        const AlleleFields allele =
            m_pane.FieldsOfNew(Rounded(m_picture.Axis().LengthAt(place.x())));
        const std::string name = allele.AlleleText1.empty() ? "" : " " + allele.AlleleText1;
        draft = {0, allele.AlleleReal2, allele.AlleleReal3, allele.AlleleReal1,
                 "Click: allele" + ToQString(name) + " of " +
                     ToQString(DoubleText(allele.AlleleReal1)) + " nt, " +
                     BinWords(allele.AlleleReal2, allele.AlleleReal3)};
    }
    m_picture.setCursor(cursor);
    m_picture.ShowDraft(std::move(draft));
}

void BinEditing::Drag(const Grip& grip, double x)
{
    const auto row = std::ranges::find(m_pane.Rows(), grip.Row) - m_pane.Rows().begin();
    const BinShape& bin = m_picture.Shapes()[static_cast<std::size_t>(row)];
    const LengthAxis axis = m_picture.Axis();
    const double moved = axis.LengthAt(x) - axis.LengthAt(m_pressed.x());
    const LengthRange room = RoomFor(bin, grip.Side);
    BinDraft draft{bin.Row, bin.From, bin.To, bin.Size, {}};
    double& edge = grip.Side == BinEdge::From ? draft.From : draft.To;
    edge = std::clamp(Rounded(edge + moved), room.From, room.To);
    draft.Text = "Allele " + bin.Name + ": " + BinWords(draft.From, draft.To);
    m_picture.ShowDraft(draft);
}

void BinEditing::TakeDrag(const Grip& grip)
{
    const BinDraft draft = *m_picture.Draft();
    m_picture.ShowDraft({});
    m_actions.Run([&] {
        const bool isFrom = grip.Side == BinEdge::From;
        User::EditAllele(m_control, draft.Row, AlleleColumns[isFrom ? BinFromColumn : BinToColumn],
                         DoubleText(isFrom ? draft.From : draft.To));
    });
}

void BinEditing::TakeNew()
{
    const double size = m_picture.Draft()->Size;
    m_actions.Run([&] { emit NameAsked(User::AddAlleleOfSize(m_control, size)); });
}

void BinEditing::LetGo()
{
    m_grip.reset();
    m_holdsGap = false;
    m_picture.unsetCursor();
    m_picture.ShowDraft({});
}

void BinEditing::FollowPane()
{
    const bool isSame = m_grip &&
                        std::ranges::find(m_pane.Rows(), m_grip->Row) != m_pane.Rows().end() &&
                        static_cast<const AlleleFields&>(*m_grip->Row) == m_grip->Before;
    if (!isSame)
        LetGo();
}

} // namespace Tamrivo
