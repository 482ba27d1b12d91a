#include "desktop/reports/report_output.h"

#include "core/error.h"
#include "desktop/common/text.h"
#include "desktop/reports/table_printer.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QPdfWriter>
#include <QPrinter>
#include <QProgressDialog>

#include <algorithm>
#include <sstream>

namespace Tamrivo
{

namespace
{

struct SaveFormat
{
    const char* Suffix;
    const char* Filter;
};

constexpr SaveFormat formats[] = {
    {"pdf", "PDF, to read and print (*.pdf)"},
    {"html", "HTML, a web page (*.html)"},
    {"tsv", "TSV, for other programs (*.tsv)"},
};

QString HeadingOf(const Report& report)
{
    return ToQString(report.Heading());
}

std::optional<QByteArray> PdfOf(const Report& report, QWidget* parent)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                     QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter));
    writer.setTitle(HeadingOf(report));
    writer.setCreator("Tamrivo");
    if (!PrintReport(report, writer, {}, parent))
        return std::nullopt;
    return buffer.data();
}

} // namespace

bool PrintReport(const Report& report, QPagedPaintDevice& device, PageRange pages, QWidget* parent)
{
    const Table table = TableOf(report, Audience::People);
    TablePrinter printer(table, HeadingOf(report), device);
    const int end = pages.Last > 0 ? std::min(pages.Last, printer.Pages()) : printer.Pages();
    QProgressDialog progress("Setting the pages...", "Cancel", 0, 1, parent);
    progress.setWindowModality(Qt::WindowModal);
    return printer.Print(std::min(pages.First, end), end, [&](int done, int count) {
        progress.setMaximum(count);
        progress.setValue(done);
        if (!progress.wasCanceled())
            return true;
        if (auto* paper = dynamic_cast<QPrinter*>(&device))
            paper->abort();
        return false;
    });
}

QString AskForReportFile(QWidget* parent)
{
    QStringList filters;
    for (const SaveFormat& format : formats)
        filters.append(format.Filter);
    QString chosen = filters.front();
    QString path = QFileDialog::getSaveFileName(parent, "Save Report", "loci.pdf",
                                                filters.join(";;"), &chosen);
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += QString(".") + formats[std::max<qsizetype>(filters.indexOf(chosen), 0)].Suffix;
    return path;
}

std::optional<QByteArray> ReportFileContent(const Report& report, const QString& path,
                                            QWidget* parent)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == "pdf")
        return PdfOf(report, parent);
    std::ostringstream text;
    if (suffix == "html" || suffix == "htm")
        PrintHtmlPage(text, {{report.Heading(), TableOf(report, Audience::People)}});
    else if (suffix == "tsv")
        PrintTsv(text, TableOf(report, Audience::Programs));
    else
        throw Failure(ErrorNumber::InvalidArgument, "Reports",
                      "The report wasn't saved: \"" + FromQString(QFileInfo(path).fileName()) +
                          "\" should end in .pdf, .html or .tsv");
    return QByteArray::fromStdString(text.str());
}

} // namespace Tamrivo
