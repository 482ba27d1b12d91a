#pragma once

#include "host/library/library.h"

#include <QAbstractTableModel>

#include <optional>
#include <unordered_set>
#include <vector>

namespace Tamrivo
{

/// Some loci of a library as rows, for Qt's views. While a selection is open, each row has a tick
/// that adds its locus or takes it out.
class LibraryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The type of what is dragged out of the table: tags, a line each.
    static constexpr const char* TagsType = "application/x-tamrivo-tags";

    explicit LibraryModel(QObject* parent) : QAbstractTableModel(parent) {}

    /// The library, which must outlive its use here, or null. Shows none of its loci yet.
    void SetLibrary(const Library* library);
    /// Shows the loci at these positions of the library, in the order of the column sorted by.
    void Show(std::vector<std::uint32_t> positions);
    const std::vector<std::uint32_t>& Positions() const { return m_rows; }
    const LibraryLocus& LocusAt(int row) const;
    std::vector<std::string> TagsAt(const std::vector<int>& rows) const;

    /// Numbers of the loci that have a tick; none when there are no ticks to be seen.
    void SetTicks(std::optional<std::unordered_set<std::int32_t>> ticks);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    void sort(int column, Qt::SortOrder order) override;
    QStringList mimeTypes() const override { return {TagsType}; }
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

signals:
    /// The person has ticked the locus, or taken its tick away.
    void Ticked(const std::string& tag, bool isTicked);

private:
    void SortRows();
    void TakeInOrderOfTags();

    const Library* m_library = nullptr;
    std::vector<std::uint32_t> m_byTag; ///< Positions of all loci in the order of their tags.
    std::vector<std::uint32_t> m_ranks; ///< Of each locus in that order.
    std::vector<std::uint32_t> m_rows;  ///< Positions of those on show.
    std::optional<std::unordered_set<std::int32_t>> m_ticks;
    int m_column = 0;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};

} // namespace Tamrivo
