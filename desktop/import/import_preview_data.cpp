#include "core/numbers.h"
#include "core/text.h"
#include "desktop/common/dye_shade.h"
#include "desktop/common/text.h"
#include "desktop/import/import_preview_model.h"
#include "desktop/import/import_words.h"
#include "host/loci/dyes.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QStyle>

#include <algorithm>

// What the cells of the preview show.

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
    "Panel and marker", "What happens", "Tag",      "Dye",     "Range (nt)",
    "Alleles",          "Line",         "Findings", "Remarks",
};
static_assert(std::size(titles) == ImportPreviewModel::ColumnCount);

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

QVariant FindingsData(const FindingCounts& counts, int role)
{
    if (role == Qt::DisplayRole)
        return counts.Text();
    if (role == Qt::DecorationRole && counts.Errors + counts.Warnings > 0)
        return QApplication::style()->standardIcon(
            counts.Errors > 0 ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation);
    return {};
}

} // namespace

QVariant ImportPreviewModel::data(const QModelIndex& index, int role) const
{
    if (index.column() == Findings)
        return FindingsData(CountsAt(index), role);
    if (IsPanel(index))
        return PanelData(m_panels[static_cast<std::size_t>(index.row())], index.column(), role);
    return MarkerData(MarkersAt(index).front(), index.column(), role);
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
