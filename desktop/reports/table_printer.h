#pragma once

#include "host/reports/table.h"

#include <QFont>
#include <QString>

#include <functional>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace Tamrivo
{

/// Sets a table on pages: the heading on the first, the titles on each, and a foot with the number
/// of the page. A table wider than the page gets a smaller type, down to a size that can be read;
/// cells that are still too wide are cut short.
class TablePrinter
{
public:
    TablePrinter(const Table& table, QString heading, QPagedPaintDevice& device);

    /// Told of the pages done; false ends the printing.
    using Progress = std::function<bool(int done, int pages)>;

    /// Prints some of the pages, counted from 1. Gives whether all of them have been printed.
    /// Raises `ErrorNumber::InvalidArgument` when the device can't be painted on.
    bool Print(int first, int last, const Progress& progress);

    int Pages() const { return m_pages; }

private:
    void FitType();
    std::vector<double> ColumnWidths(const QFont& font) const;
    double RowHeight() const;
    void PrintPage(QPainter& painter, int page) const;
    void PrintRow(QPainter& painter, const std::vector<QString>& cells, double top) const;

    const Table& m_table;
    QString m_heading;
    QPagedPaintDevice& m_device;
    QFont m_font;
    std::vector<double> m_widths;
    double m_headingHeight = 0;
    int m_rowsOnFirst = 1;
    int m_rowsOnOthers = 1;
    int m_pages = 1;
};

} // namespace Tamrivo
