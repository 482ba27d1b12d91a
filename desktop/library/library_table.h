#pragma once

#include <QTableView>

#include <functional>
#include <vector>

namespace Tamrivo
{

/// The table of loci: several rows can be chosen, columns are sorted by a click on their header and
/// chosen in its menu, which is remembered. Return and a double click edit, Delete deletes.
class LibraryTable : public QTableView
{
public:
    explicit LibraryTable(QWidget* parent);
    ~LibraryTable() override;

    void setModel(QAbstractItemModel* model) override;

    /// The chosen rows, from the top to the bottom.
    std::vector<int> ChosenRows() const;
    /// Chooses these rows instead, and brings the first one into view.
    void ChooseRows(const std::vector<int>& rows);

    std::function<void()> onEdit;
    std::function<void()> onDelete;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FitRows();
    void OfferColumns(QPoint place);
    void WidenColumns();
};

} // namespace Tamrivo
