#pragma once

#include "desktop/import/findings_of_loci.h"
#include "host/panels/import_plan.h"

#include <QAbstractItemModel>
#include <QString>

#include <cstddef>
#include <span>
#include <vector>

namespace Tamrivo
{

/// Panels, and below them their markers with what an import would do, each with a box to tick.
class ImportPreviewModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        Fate,
        Tag,
        Dye,
        Range,
        Alleles,
        Line,
        Findings,
        Remarks,
        ColumnCount,
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Shows the markers of a table, all of them ticked and nothing planned.
    void SetMarkers(std::vector<PanelMarker> markers);
    const std::vector<PanelMarker>& Markers() const { return m_markers; }
    /// Shows what a plan for `ChosenMarkers` says.
    void SetPlan(ImportPlan plan);
    const ImportPlan& Plan() const { return m_plan; }

    /// The plan of the marker in a row; null for a panel, and for a marker that isn't planned.
    const PlannedLocus* PlannedAt(const QModelIndex& index) const;

    /// Shows what a check finds in the loci that the plan lets in.
    void SetFindings(std::vector<Finding> found);
    /// Findings of a marker, or of all of a panel's, the first `most` of them.
    std::vector<Finding> FindingsAt(const QModelIndex& index, std::size_t most) const;
    FindingCounts CountsAt(const QModelIndex& index) const;

    /// Positions of the ticked markers.
    std::vector<std::size_t> ChosenMarkers() const;
    std::size_t PanelCount() const { return m_panels.size(); }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// The person has ticked a marker or a panel, or taken a tick away.
    void MarkersChosen();

private:
    struct Panel
    {
        std::string Name;                 ///< In the table's first spelling.
        std::vector<std::size_t> Markers; ///< Positions in the table.
    };

    static bool IsPanel(const QModelIndex& index);
    /// Positions of the markers that a row is about.
    std::span<const std::size_t> MarkersAt(const QModelIndex& index) const;
    std::span<const Finding> FindingsOf(std::size_t marker) const;
    void TellOfChange(Column first, Column last);
    Qt::CheckState StateOf(const Panel& panel) const;
    QVariant PanelData(const Panel& panel, int column, int role) const;
    QVariant MarkerData(std::size_t marker, int column, int role) const;
    QString MarkerText(std::size_t marker, int column) const;
    QString SummaryOf(const Panel& panel) const;

    std::vector<PanelMarker> m_markers;
    ImportPlan m_plan;
    FindingsOfLoci m_findings;
    std::vector<Panel> m_panels;
    std::vector<bool> m_isChosen;                  ///< Of each marker.
    std::vector<const PlannedLocus*> m_plannedFor; ///< Of each marker; null when not chosen.
};

} // namespace Tamrivo
