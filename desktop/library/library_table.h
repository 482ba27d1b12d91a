#pragma once

#include <QTableView>

#include <vector>

namespace Tamrivo
{

/// The table of loci: several rows can be chosen, columns are sorted by a click on their header and
/// chosen in its menu, which is remembered. Return and a double click edit, Delete deletes.
class LibraryTable : public QTableView
{
    Q_OBJECT

public:
    explicit LibraryTable(QWidget* parent);
    ~LibraryTable() override;

    void setModel(QAbstractItemModel* model) override;

    /// The chosen rows, from the top to the bottom.
    std::vector<int> ChosenRows() const;
    /// Chooses these rows instead, and brings the first one into view.
    void ChooseRows(const std::vector<int>& rows);
    /// Copies the chosen rows below a line of titles, tab-separated as spreadsheets take it.
    void CopyChosen() const;

signals:
    /// The person wants to edit, or delete, the chosen loci.
    void EditAsked();
    void DeleteAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FitRows();
    void OfferColumns(QPoint place);
    void WidenColumns();
};

} // namespace Tamrivo
