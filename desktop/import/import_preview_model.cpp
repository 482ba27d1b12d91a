#include "desktop/import/import_preview_model.h"

#include "core/text.h"

#include <algorithm>
#include <map>
#include <utility>

namespace Tamrivo
{

namespace
{

/// Identifies rows of panels; a row of a marker has its panel's number plus 1.
constexpr quintptr panelRow = 0;

} // namespace

void ImportPreviewModel::SetMarkers(std::vector<PanelMarker> markers)
{
    beginResetModel();
    m_markers = std::move(markers);
    m_plan = {};
    m_panels.clear();
    std::map<std::string, std::size_t> panelOfName;
    for (std::size_t marker = 0; marker < m_markers.size(); ++marker)
    {
        const std::string name = Trim(m_markers[marker].Panel);
        const auto [panel, isNew] = panelOfName.emplace(FoldCase(name), m_panels.size());
        if (isNew)
            m_panels.push_back({name, {}});
        m_panels[panel->second].Markers.push_back(marker);
    }
    m_isChosen.assign(m_markers.size(), true);
    m_plannedFor.assign(m_markers.size(), nullptr);
    endResetModel();
}

void ImportPreviewModel::SetPlan(ImportPlan plan)
{
    m_plan = std::move(plan);
    m_findings = {};
    std::ranges::fill(m_plannedFor, nullptr);
    for (const PlannedLocus& planned : m_plan.Loci)
        m_plannedFor[planned.Index] = &planned;
    TellOfChange(Name, Remarks);
}

void ImportPreviewModel::SetFindings(std::vector<Finding> found)
{
    m_findings = FindingsOfLoci(std::move(found));
    TellOfChange(Findings, Findings);
}

void ImportPreviewModel::TellOfChange(Column first, Column last)
{
    for (int panel = 0; panel < rowCount(); ++panel)
    {
        const QModelIndex parent = index(panel, 0);
        emit dataChanged(index(panel, first), index(panel, last));
        emit dataChanged(index(0, first, parent), index(rowCount(parent) - 1, last, parent));
    }
}

const PlannedLocus* ImportPreviewModel::PlannedAt(const QModelIndex& index) const
{
    return !index.isValid() || IsPanel(index) ? nullptr : m_plannedFor[MarkersAt(index).front()];
}

std::vector<Finding> ImportPreviewModel::FindingsAt(const QModelIndex& index,
                                                    std::size_t most) const
{
    std::vector<Finding> found;
    for (const std::size_t marker : MarkersAt(index))
    {
        const auto ofMarker = FindingsOf(marker);
        const auto taken = ofMarker.first(std::min(ofMarker.size(), most - found.size()));
        found.insert(found.end(), taken.begin(), taken.end());
    }
    return found;
}

FindingCounts ImportPreviewModel::CountsAt(const QModelIndex& index) const
{
    FindingCounts counts;
    for (const std::size_t marker : MarkersAt(index))
        counts.Add(FindingsOf(marker));
    return counts;
}

/// A marker that stays out may have the tag of one that comes in.
std::span<const Finding> ImportPreviewModel::FindingsOf(std::size_t marker) const
{
    const PlannedLocus* const planned = m_plannedFor[marker];
    if (planned == nullptr || planned->Fate == ImportFate::LeftOut)
        return {};
    return m_findings.Of(planned->Tag);
}

bool ImportPreviewModel::IsPanel(const QModelIndex& index)
{
    return index.internalId() == panelRow;
}

std::span<const std::size_t> ImportPreviewModel::MarkersAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    if (IsPanel(index))
        return m_panels[row].Markers;
    const Panel& panel = m_panels[static_cast<std::size_t>(index.internalId()) - 1];
    return std::span(panel.Markers).subspan(row, 1);
}

std::vector<std::size_t> ImportPreviewModel::ChosenMarkers() const
{
    std::vector<std::size_t> chosen;
    for (std::size_t marker = 0; marker < m_isChosen.size(); ++marker)
    {
        if (m_isChosen[marker])
            chosen.push_back(marker);
    }
    return chosen;
}

Qt::CheckState ImportPreviewModel::StateOf(const Panel& panel) const
{
    const auto chosen = std::ranges::count_if(
        panel.Markers, [this](std::size_t marker) { return m_isChosen[marker]; });
    if (chosen == 0)
        return Qt::Unchecked;
    return chosen == std::ssize(panel.Markers) ? Qt::Checked : Qt::PartiallyChecked;
}

QModelIndex ImportPreviewModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : panelRow);
}

QModelIndex ImportPreviewModel::parent(const QModelIndex& index) const
{
    if (index.internalId() == panelRow)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, panelRow);
}

int ImportPreviewModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_panels.size());
    if (parent.internalId() != panelRow || parent.column() > 0)
        return 0;
    return static_cast<int>(m_panels[static_cast<std::size_t>(parent.row())].Markers.size());
}

int ImportPreviewModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

Qt::ItemFlags ImportPreviewModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (index.column() == Name)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool ImportPreviewModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Name)
        return false;
    for (const std::size_t marker : MarkersAt(index))
        m_isChosen[marker] = value.toInt() == Qt::Checked;
    // The rows follow once there is a plan for what is ticked now.
    emit MarkersChosen();
    return true;
}

} // namespace Tamrivo
