#include "desktop/reports/table_printer.h"

#include "core/error.h"
#include "desktop/common/text.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace Tamrivo
{

namespace
{

constexpr double largestType = 10; // pt
constexpr double smallestType = 6; // pt
constexpr double headingScale = 1.4;
constexpr double gap = 1.0; // Between columns, in heights of a line.

QFont Bold(QFont font)
{
    font.setBold(true);
    return font;
}

std::vector<QString> TextsOf(const std::vector<std::string>& cells)
{
    std::vector<QString> texts;
    for (const std::string& cell : cells)
        texts.push_back(ToQString(cell).simplified());
    return texts;
}

} // namespace

TablePrinter::TablePrinter(const Table& table, QString heading, QPagedPaintDevice& device)
    : m_table(table), m_heading(std::move(heading)), m_device(device), m_font("Sans Serif")
{
    FitType();
    QFont headingFont = Bold(m_font);
    headingFont.setPointSizeF(m_font.pointSizeF() * headingScale);
    m_headingHeight = QFontMetricsF(headingFont, &m_device).height() * 1.6;

    // A row of titles above, and a foot below.
    const double height = m_device.height() - 3 * RowHeight();
    m_rowsOnOthers = std::max(1, static_cast<int>(height / RowHeight()));
    m_rowsOnFirst = std::max(1, static_cast<int>((height - m_headingHeight) / RowHeight()));
    const int rest = static_cast<int>(m_table.Rows.size()) - m_rowsOnFirst;
    m_pages = rest <= 0 ? 1 : 1 + (rest + m_rowsOnOthers - 1) / m_rowsOnOthers;
}

std::vector<double> TablePrinter::ColumnWidths(const QFont& font) const
{
    const QFontMetricsF metrics(font, &m_device);
    const QFontMetricsF titleMetrics(Bold(font), &m_device);
    std::vector<double> widths;
    for (std::size_t column = 0; column < m_table.Columns.size(); ++column)
    {
        double width = titleMetrics.horizontalAdvance(ToQString(m_table.Columns[column].Title));
        std::size_t longest = 0;
        for (const auto& row : m_table.Rows)
        {
            // Measuring is dear: only what may be the widest so far.
            if (row[column].size() * 4 < longest * 3)
                continue;
            longest = std::max(longest, row[column].size());
            width = std::max(width, metrics.horizontalAdvance(ToQString(row[column]).simplified()));
        }
        widths.push_back(width + gap * metrics.height());
    }
    return widths;
}

void TablePrinter::FitType()
{
    m_font.setPointSizeF(largestType);
    m_widths = ColumnWidths(m_font);
    const double wanted = std::accumulate(m_widths.begin(), m_widths.end(), 0.0);
    const double share = m_device.width() / wanted;
    if (share >= 1)
        return;
    const double type = std::max(smallestType, largestType * share);
    m_font.setPointSizeF(type);
    for (double& width : m_widths)
        width *= type / largestType;

    // What is still too much comes off the widest columns.
    for (double excess = wanted * type / largestType - m_device.width(); excess > 1;)
    {
        const auto widest = std::ranges::max_element(m_widths);
        const double cut = std::min(excess, *widest / 10);
        *widest -= cut;
        excess -= cut;
    }
}

double TablePrinter::RowHeight() const
{
    return QFontMetricsF(m_font, &m_device).height() * 1.35;
}

bool TablePrinter::Print(int first, int last, const Progress& progress)
{
    QPainter painter;
    if (!painter.begin(&m_device))
        throw Failure(ErrorNumber::InvalidArgument, "TablePrinter",
                      "The table can't be printed: the printer or the file doesn't take it");
    for (int page = first; page <= last; ++page)
    {
        if (!progress(page - first, last - first + 1))
            return false;
        if (page > first)
            m_device.newPage();
        PrintPage(painter, page);
    }
    return true;
}

void TablePrinter::PrintPage(QPainter& painter, int page) const
{
    double top = 0;
    if (page == 1)
    {
        QFont heading = Bold(m_font);
        heading.setPointSizeF(m_font.pointSizeF() * headingScale);
        painter.setFont(heading);
        painter.drawText(QRectF(0, 0, m_device.width(), m_headingHeight),
                         Qt::AlignLeft | Qt::AlignTop, m_heading);
        top += m_headingHeight;
    }
    std::vector<QString> titles;
    for (const Table::Column& column : m_table.Columns)
        titles.push_back(ToQString(column.Title));
    painter.setFont(Bold(m_font));
    painter.setPen(QPen(Qt::black, 0));
    PrintRow(painter, titles, top);
    top += RowHeight();
    painter.drawLine(QPointF(0, top), QPointF(m_device.width(), top));

    painter.setFont(m_font);
    const int begin = page == 1 ? 0 : m_rowsOnFirst + (page - 2) * m_rowsOnOthers;
    const int end = std::min(static_cast<int>(m_table.Rows.size()),
                             begin + (page == 1 ? m_rowsOnFirst : m_rowsOnOthers));
    for (int row = begin; row < end; ++row)
    {
        painter.setPen(QPen(Qt::black, 0));
        PrintRow(painter, TextsOf(m_table.Rows[static_cast<std::size_t>(row)]), top);
        top += RowHeight();
        painter.setPen(QPen(Qt::lightGray, 0));
        painter.drawLine(QPointF(0, top), QPointF(m_device.width(), top));
    }
    painter.setPen(QPen(Qt::black, 0));
    painter.drawText(QRectF(0, m_device.height() - RowHeight(), m_device.width(), RowHeight()),
                     Qt::AlignRight | Qt::AlignBottom,
                     QString("Page %1 of %2").arg(page).arg(m_pages));
}

void TablePrinter::PrintRow(QPainter& painter, const std::vector<QString>& cells, double top) const
{
    const QFontMetricsF metrics(painter.font(), &m_device);
    double left = 0;
    for (std::size_t column = 0; column < cells.size(); ++column)
    {
        const double width = m_widths[column] - gap * metrics.height();
        const bool isNumber = m_table.Columns[column].Kind == Table::Number;
        const auto flags = static_cast<int>((isNumber ? Qt::AlignRight : Qt::AlignLeft) |
                                            Qt::AlignVCenter | Qt::TextSingleLine);
        painter.drawText(QRectF(left, top, width + 1, RowHeight()), flags,
                         metrics.elidedText(cells[column], Qt::ElideRight, width + 1));
        left += m_widths[column];
    }
}

} // namespace Tamrivo
