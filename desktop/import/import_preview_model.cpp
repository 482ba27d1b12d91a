#include "desktop/import/import_preview_model.h"

#include "core/numbers.h"
#include "core/text.h"
#include "desktop/common/dye_shade.h"
#include "desktop/common/text.h"
#include "host/loci/dyes.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QStyle>

#include <map>
#include <utility>

namespace Tamrivo
{

namespace
{

struct FateWords
{
    const char* Text;
    QStyle::StandardPixmap Icon;
};

/// In the order of `ImportFate`.
constexpr FateWords fateWords[] = {
    {"Comes in", QStyle::SP_DialogApplyButton},
    {"In the store already", QStyle::SP_CustomBase},
    {"Is updated", QStyle::SP_BrowserReload},
    {"Can't come in", QStyle::SP_MessageBoxWarning},
};

constexpr const char* titles[] = {
    "Panel and marker", "What happens", "Tag", "Dye", "Range (nt)", "Alleles", "Line", "Remarks",
};
static_assert(std::size(titles) == ImportPreviewModel::ColumnCount);

/// Identifies rows of panels; a row of a marker has its panel's number plus 1.
constexpr quintptr panelRow = 0;

QString RangeText(double from, double to)
{
    return ToQString(DoubleText(from) + " to " + DoubleText(to));
}

/// Nothing for a colour that isn't known.
QVariant SwatchOf(const std::string& name)
{
    const KnownColor* color = FindColor(name);
    if (color == nullptr)
        return {};
    const bool isDark = IsDarkTheme(QApplication::palette());
    return QColor::fromRgb(isDark ? color->OnDark : color->OnLight);
}

} // namespace

QString RemarksOn(const PlannedLocus& locus)
{
    QStringList sentences;
    for (const std::string& obstacle : locus.Obstacles)
        sentences.append(ToQString(obstacle) + ".");
    if (!locus.Gap.empty())
        sentences.append(ToQString(locus.Gap) + ".");
    if (locus.Fate == ImportFate::New && locus.IsRenamed())
        sentences.append("Its name is taken, so the tag names the panel too.");
    return sentences.join(' ');
}

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
    std::ranges::fill(m_plannedFor, nullptr);
    for (const PlannedLocus& planned : m_plan.Loci)
        m_plannedFor[planned.Index] = &planned;
    for (int panel = 0; panel < rowCount(); ++panel)
    {
        const QModelIndex parent = index(panel, 0);
        emit dataChanged(parent, index(panel, ColumnCount - 1));
        emit dataChanged(index(0, 0, parent), index(rowCount(parent) - 1, ColumnCount - 1, parent));
    }
}

const PlannedLocus* ImportPreviewModel::PlannedAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == panelRow)
        return nullptr;
    return m_plannedFor[MarkerAt(index)];
}

std::size_t ImportPreviewModel::MarkerAt(const QModelIndex& index) const
{
    const Panel& panel = m_panels[static_cast<std::size_t>(index.internalId()) - 1];
    return panel.Markers[static_cast<std::size_t>(index.row())];
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

QVariant ImportPreviewModel::data(const QModelIndex& index, int role) const
{
    if (index.internalId() == panelRow)
        return PanelData(m_panels[static_cast<std::size_t>(index.row())], index.column(), role);
    return MarkerData(MarkerAt(index), index.column(), role);
}

QVariant ImportPreviewModel::PanelData(const Panel& panel, int column, int role) const
{
    if (role == Qt::DisplayRole && column == Name)
        return panel.Name.empty() ? QString("No panel named") : ToQString(panel.Name);
    if (role == Qt::DisplayRole && column == Fate)
        return SummaryOf(panel);
    if (role == Qt::CheckStateRole && column == Name)
        return StateOf(panel);
    if (role == Qt::FontRole)
    {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}

QString ImportPreviewModel::SummaryOf(const Panel& panel) const
{
    if (StateOf(panel) == Qt::Unchecked)
        return "Not chosen";
    std::size_t comesIn = 0;
    for (const std::size_t marker : panel.Markers)
        comesIn += m_plannedFor[marker] != nullptr && m_plannedFor[marker]->Fate == ImportFate::New
                       ? 1
                       : 0;
    return QString("%1 of %2 come in").arg(comesIn).arg(panel.Markers.size());
}

QVariant ImportPreviewModel::MarkerData(std::size_t marker, int column, int role) const
{
    const PlannedLocus* planned = m_plannedFor[marker];
    switch (role)
    {
    case Qt::DisplayRole: return MarkerText(marker, column);
    case Qt::CheckStateRole:
        if (column == Name)
            return m_isChosen[marker] ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::ToolTipRole:
        return planned != nullptr && column == Remarks ? RemarksOn(*planned) : QString();
    case Qt::TextAlignmentRole:
        if (column == Alleles || column == Line)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case Qt::DecorationRole:
        if (column == Dye)
            return SwatchOf(m_markers[marker].Color);
        if (planned == nullptr || column != Fate || planned->Fate == ImportFate::Present)
            return {};
        return QApplication::style()->standardIcon(
            fateWords[static_cast<std::size_t>(planned->Fate)].Icon);
    case Qt::ForegroundRole:
        if (planned == nullptr || planned->Fate == ImportFate::Present)
            return QApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    default: return {};
    }
}

QString ImportPreviewModel::MarkerText(std::size_t marker, int column) const
{
    const PanelMarker& stated = m_markers[marker];
    const PlannedLocus* planned = m_plannedFor[marker];
    switch (column)
    {
    case Name: return ToQString(stated.Marker);
    case Fate:
        return planned == nullptr
                   ? QString()
                   : QString(fateWords[static_cast<std::size_t>(planned->Fate)].Text);
    case Tag: return planned == nullptr ? QString() : ToQString(planned->Tag);
    case Dye:
    {
        const KnownColor* color = FindColor(stated.Color);
        return ToQString(color != nullptr ? std::string(color->Name) : Trim(stated.Color));
    }
    case Range:
        return planned == nullptr ? RangeText(stated.RangeStart, stated.RangeEnd)
                                  : RangeText(planned->Fields.FragStart, planned->Fields.FragEnd);
    case Alleles: return QString::number(stated.Alleles.size());
    case Line: return QString::number(stated.Line);
    default: return planned == nullptr ? QString() : RemarksOn(*planned);
    }
}

bool ImportPreviewModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Name)
        return false;
    const bool isChosen = value.toInt() == Qt::Checked;
    if (index.internalId() != panelRow)
        m_isChosen[MarkerAt(index)] = isChosen;
    else
    {
        for (const std::size_t marker : m_panels[static_cast<std::size_t>(index.row())].Markers)
            m_isChosen[marker] = isChosen;
    }
    // The rows follow once there is a plan for what is ticked now.
    emit MarkersChosen();
    return true;
}

QVariant ImportPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return titles[section];
    if (role == Qt::TextAlignmentRole && (section == Alleles || section == Line))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

} // namespace Tamrivo
