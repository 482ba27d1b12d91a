#pragma once

#include <QTableView>

#include <cstdint>
#include <vector>

namespace Tamrivo
{

class AlleleTableModel;

/// The rows of the allele pane as a table, as wide as its headings need.
class AlleleTable : public QTableView
{
public:
    AlleleTable(AlleleTableModel& rows, QWidget* parent);

    /// Whether the widget is the table or lies in it, as the editor of a cell does.
    bool Holds(const QWidget* widget) const;
    /// The rows with a selected cell, counted from 1.
    std::vector<std::int32_t> SelectedRows() const;
    /// Selects a row alone, counted from 0, and shows it.
    void SelectRow(int row);
    /// Opens the editor of the current cell, if it can be edited.
    void EditCurrent();
    /// Enters what stands in the editor of a cell.
    void CloseEditor();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Fit();
};

} // namespace Tamrivo
