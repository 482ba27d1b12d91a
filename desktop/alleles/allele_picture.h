#pragma once

#include "desktop/alleles/bin_draft.h"
#include "desktop/alleles/observed_look.h"
#include "desktop/common/length_axis.h"
#include "host/loci/dyes.h"

#include <QWidget>

#include <optional>
#include <set>

namespace Tamrivo
{

/// The bins of a locus along the fragment length, in the shade of its dye. A click chooses a bin;
/// with the focus the arrow keys, Home and End do.
class AllelePicture : public QWidget
{
    Q_OBJECT

public:
    explicit AllelePicture(QWidget* parent);

    /// The dye of the locus, a position among those of the lab.
    void SetDye(const Dyes& dyes, std::int32_t dyeIndex);
    /// Shows the alleles of a locus and its fragment range; no range leaves the picture empty.
    void Show(const AlleleRows& rows, const std::optional<LengthRange>& range);
    /// Shows observed sizes, nt, and bins that they propose, with the alleles; none: nothing more.
    void ShowObserved(std::vector<double> sizes, std::vector<LengthRange> proposed);
    /// The sizes over the bins as they are; none without sizes.
    const std::optional<ObservedSizes>& Observed() const { return m_observed; }
    /// Marks rows, counted from 1.
    void Mark(const std::set<std::int32_t>& rows);
    bool IsMarked(std::int32_t row) const { return m_marked.contains(row); }
    /// Shows what would become of a bin, in the place of what it is; none: the bins as they are.
    void ShowDraft(std::optional<BinDraft> draft);
    const std::optional<BinDraft>& Draft() const { return m_draft; }

    const std::vector<BinShape>& Shapes() const { return m_shapes; }
    const std::optional<LengthRange>& Range() const { return m_range; }
    LengthAxis Axis() const;
    /// Where bins stand in the widget.
    QRectF Band() const;
    /// Where a bin stands in the widget.
    QRectF RectOf(const BinShape& shape) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint() / 2; }

signals:
    /// The person has chosen a bin.
    void Chosen(std::int32_t row);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void FitAxis();
    QColor Shade() const;
    void DrawObserved(QPainter& painter, const LengthAxis& axis) const;
    /// Top of the axis; bins and names stand above it.
    double BaseLine() const;
    double LegendTop() const;
    const BinShape* ShapeAt(QPointF place) const;
    void DrawRange(QPainter& painter, const LengthAxis& axis) const;
    void DrawBins(QPainter& painter) const;
    void DrawNames(QPainter& painter) const;

    Dyes m_dyes;
    std::int32_t m_dyeIndex = 0;
    std::vector<BinShape> m_shapes;
    std::optional<ObservedSizes> m_observed;
    std::set<std::int32_t> m_marked;
    std::optional<BinDraft> m_draft;
    std::optional<LengthRange> m_range;
    LengthRange m_shown{0, 1}; ///< The range, all bins, and some room beside them.
};

} // namespace Tamrivo
