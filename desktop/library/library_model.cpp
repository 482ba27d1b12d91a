#include "desktop/library/library_model.h"

#include "desktop/common/dye_shade.h"
#include "desktop/common/text.h"
#include "desktop/library/library_columns.h"
#include "host/grid/sort_key.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMimeData>

#include <algorithm>
#include <functional>
#include <set>
#include <span>
#include <utility>

namespace Tamrivo
{

namespace
{

/// The first bytes of a tag's sort key as numbers, which tell nearly all tags apart.
struct TagStart
{
    std::uint64_t First;
    std::uint64_t Second;
    std::uint32_t Position;

    bool operator<(const TagStart& other) const
    {
        return First != other.First ? First < other.First : Second < other.Second;
    }
};

std::uint64_t BytesAt(const std::string& key, std::size_t place)
{
    std::uint64_t bytes = 0;
    for (std::size_t at = place; at < place + sizeof bytes; ++at)
        bytes = bytes << 8U | (at < key.size() ? static_cast<unsigned char>(key[at]) : 0U);
    return bytes;
}

/// Puts tags that begin alike in order.
void OrderByWholeKey(std::span<TagStart> alike, const std::vector<LibraryLocus>& loci)
{
    std::vector<std::pair<std::string, std::uint32_t>> keys;
    for (const TagStart& tag : alike)
        keys.emplace_back(SortKey(ColumnKind::Tags, loci[tag.Position].Tag, false), tag.Position);
    std::ranges::sort(keys);
    for (std::size_t at = 0; at < alike.size(); ++at)
        alike[at].Position = keys[at].second;
}

/// The positions of all loci in the order of their tags.
std::vector<std::uint32_t> OrderByTag(const std::vector<LibraryLocus>& loci)
{
    std::vector<TagStart> order;
    order.reserve(loci.size());
    for (const LibraryLocus& locus : loci)
    {
        const std::string key = SortKey(ColumnKind::Tags, locus.Tag, false);
        order.push_back(
            {BytesAt(key, 0), BytesAt(key, 8), static_cast<std::uint32_t>(order.size())});
    }
    std::ranges::sort(order, std::less<>());
    std::vector<std::uint32_t> positions;
    positions.reserve(order.size());
    for (auto start = order.begin(); start != order.end();)
    {
        auto end = start + 1;
        while (end != order.end() && !(*start < *end))
            ++end;
        if (end - start > 1)
            OrderByWholeKey({start, end}, loci);
        for (; start != end; ++start)
            positions.push_back(start->Position);
    }
    return positions;
}

} // namespace

void LibraryModel::SetLibrary(const Library* library)
{
    beginResetModel();
    m_library = library;
    m_rows.clear();
    m_byTag = library == nullptr ? std::vector<std::uint32_t>() : OrderByTag(library->Loci());
    m_ranks.resize(m_byTag.size());
    for (std::uint32_t rank = 0; rank < m_byTag.size(); ++rank)
        m_ranks[m_byTag[rank]] = rank;
    endResetModel();
}

void LibraryModel::Show(std::vector<std::uint32_t> positions)
{
    beginResetModel();
    m_rows = std::move(positions);
    SortRows();
    endResetModel();
}

const LibraryLocus& LibraryModel::LocusAt(int row) const
{
    return m_library->Loci()[m_rows[static_cast<std::size_t>(row)]];
}

std::vector<std::string> LibraryModel::TagsAt(const std::vector<int>& rows) const
{
    std::vector<std::string> tags;
    for (const int row : rows)
        tags.push_back(LocusAt(row).Tag);
    return tags;
}

void LibraryModel::SetTicks(std::optional<std::unordered_set<std::int32_t>> ticks)
{
    m_ticks = std::move(ticks);
    if (!m_rows.empty())
        emit dataChanged(index(0, TagColumn), index(rowCount() - 1, TagColumn));
}

int LibraryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int LibraryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(LibraryColumns().size());
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const
{
    const LibraryColumn& column = LibraryColumns()[static_cast<std::size_t>(index.column())];
    const LibraryLocus& locus = LocusAt(index.row());
    switch (role)
    {
    case Qt::DisplayRole: return column.Text(*m_library, locus);
    case Qt::ToolTipRole:
        return index.column() == DyeColumn
                   ? QVariant(ToQString(m_library->LabDyes().TitleOf(locus.DyeIndex)))
                   : QVariant(column.Text(*m_library, locus));
    case Qt::TextAlignmentRole:
        return QVariant((column.IsNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::DecorationRole:
        if (index.column() == DyeColumn)
            return DyeSwatch(m_library->LabDyes(), locus.DyeIndex, QApplication::palette(),
                             QFontMetrics(QApplication::font()).ascent());
        return {};
    case Qt::CheckStateRole:
        if (index.column() == TagColumn && m_ticks)
            return m_ticks->contains(locus.LocusID) ? Qt::Checked : Qt::Unchecked;
        return {};
    default: return {};
    }
}

QVariant LibraryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const LibraryColumn& column = LibraryColumns()[static_cast<std::size_t>(section)];
    switch (role)
    {
    case Qt::DisplayRole: return QString(column.Title);
    case Qt::ToolTipRole: return QString(column.Tip);
    case Qt::TextAlignmentRole:
        return QVariant((column.IsNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default: return {};
    }
}

Qt::ItemFlags LibraryModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    if (index.column() == TagColumn && m_ticks)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool LibraryModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !m_ticks)
        return false;
    emit Ticked(LocusAt(index.row()).Tag, value.toInt() == Qt::Checked);
    return true;
}

void LibraryModel::sort(int column, Qt::SortOrder order)
{
    m_column = column;
    m_order = order;
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<std::uint32_t> positions;
    for (const QModelIndex& index : before)
        positions.push_back(m_rows[static_cast<std::size_t>(index.row())]);
    SortRows();
    std::vector<int> rowOf(m_ranks.size());
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        rowOf[m_rows[row]] = static_cast<int>(row);
    QModelIndexList after;
    for (qsizetype at = 0; at < before.size(); ++at)
        after += index(rowOf[positions[static_cast<std::size_t>(at)]], before[at].column());
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

void LibraryModel::SortRows()
{
    if (m_rows.empty() || m_column < 0)
        return;
    const auto compare = LibraryColumns()[static_cast<std::size_t>(m_column)].Compare;
    if (compare == nullptr)
        return TakeInOrderOfTags();
    const auto isLess = [&](std::uint32_t left, std::uint32_t right) {
        const int order = compare(*m_library, m_library->Loci()[left], m_library->Loci()[right]);
        return order != 0 ? order < 0 : m_ranks[left] < m_ranks[right];
    };
    if (m_order == Qt::AscendingOrder)
        std::ranges::sort(m_rows, isLess);
    else
        std::ranges::sort(m_rows, [&](auto left, auto right) { return isLess(right, left); });
}

void LibraryModel::TakeInOrderOfTags()
{
    std::vector<bool> isShown(m_byTag.size());
    for (const std::uint32_t position : m_rows)
        isShown[position] = true;
    m_rows.clear();
    for (const std::uint32_t position : m_byTag)
    {
        if (isShown[position])
            m_rows.push_back(position);
    }
    if (m_order == Qt::DescendingOrder)
        std::ranges::reverse(m_rows);
}

QMimeData* LibraryModel::mimeData(const QModelIndexList& indexes) const
{
    std::set<int> rows;
    for (const QModelIndex& index : indexes)
        rows.insert(index.row());
    QByteArray tags;
    for (const int row : rows)
        tags += QByteArray::fromStdString(LocusAt(row).Tag) + '\n';
    auto* data = new QMimeData;
    data->setData(TagsType, tags);
    return data;
}

} // namespace Tamrivo
