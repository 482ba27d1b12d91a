#include "desktop/common/clipboard_table.h"

#include "desktop/common/text.h"

#include <QApplication>
#include <QClipboard>
#include <QTableView>

#include <algorithm>

namespace Tamrivo
{

void CopyCells(const QTableView& table)
{
    const QModelIndexList selected = table.selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    const auto [top, bottom] = std::ranges::minmax(selected, {}, &QModelIndex::row);
    const auto [left, right] = std::ranges::minmax(selected, {}, &QModelIndex::column);
    QString text;
    for (int row = top.row(); row <= bottom.row(); ++row)
    {
        for (int column = left.column(); column <= right.column(); ++column)
        {
            const QModelIndex cell = table.model()->index(row, column);
            // A cell that shows a mark instead of a text is copied as what it stands for.
            const QVariant shown = cell.data();
            if (selected.contains(cell))
                text += (shown.isValid() ? shown : cell.data(Qt::EditRole)).toString();
            text += column == right.column() ? '\n' : '\t';
        }
    }
    QApplication::clipboard()->setText(text);
}

std::vector<std::vector<std::string>> ClipboardCells()
{
    QString text = QApplication::clipboard()->text();
    text.replace("\r\n", "\n").replace('\r', '\n');
    if (text.endsWith('\n'))
        text.chop(1);
    std::vector<std::vector<std::string>> cells;
    if (text.isEmpty())
        return cells;
    for (const QString& line : text.split('\n'))
    {
        auto& row = cells.emplace_back();
        for (const QString& cell : line.split('\t'))
            row.push_back(FromQString(cell));
    }
    return cells;
}

} // namespace Tamrivo
