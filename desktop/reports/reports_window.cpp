#include "desktop/reports/reports_window.h"

#include "desktop/forms/actions.h"
#include "desktop/icons.h"
#include "desktop/reports/report_table_model.h"
#include "desktop/reports/table_printer.h"
#include "desktop/save_file.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "platform/framework/host_application.h"
#include "platform/panels/counts.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QScopeGuard>
#include <QTableView>
#include <QVBoxLayout>

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

QLabel* Caption(const QString& text, QWidget* buddy)
{
    auto* caption = new QLabel(text);
    caption->setBuddy(buddy);
    return caption;
}

} // namespace

ReportsWindow::ReportsWindow(HostApplication& host, const Actions& actions, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_host(host),
      m_actions(actions),
      m_type(new QComboBox(this)),
      m_scope(new QComboBox(this)),
      m_model(new ReportTableModel(this)),
      m_table(new QTableView(this)),
      m_status(new QLabel(this))
{
    setObjectName("reports");
    m_status->setObjectName("reportStatus");
    setWindowTitle("Reports");
    m_type->setObjectName("reportType");
    m_type->setAccessibleName("Report on");
    m_scope->setObjectName("reportScope");
    m_scope->setAccessibleName("Loci");
    m_table->setObjectName("reportTable");
    m_table->setAccessibleName("Report");
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    // The order of the service until the person asks for another.
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(MakeTopRow());
    layout->addWidget(m_table, 1);
    layout->addWidget(m_status);

    connect(m_type, &QComboBox::activated, this, [this] { m_actions.Run([this] { Load(); }); });
    connect(m_scope, &QComboBox::activated, this, [this] { m_actions.Run([this] { Load(); }); });
    FitRows();
    const int line = fontMetrics().lineSpacing();
    RestorePlace(*this, {76 * line, 32 * line});
}

ReportsWindow::~ReportsWindow()
{
    RememberPlace(*this);
}

void ReportsWindow::FitRows()
{
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
}

void ReportsWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitRows();
}

QLayout* ReportsWindow::MakeTopRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(Caption("Report &on:", m_type));
    row->addWidget(m_type);
    row->addWidget(Caption("&Loci:", m_scope));
    row->addWidget(m_scope);
    row->addStretch();

    const auto addButton = [&](const char* name, const QString& text, const char* icon,
                               const QKeySequence& shortcut, void (ReportsWindow::*act)()) {
        auto* button = new QPushButton(ThemeIcon(icon), text);
        button->setObjectName(name);
        button->setAutoDefault(false);
        button->setToolTip(shortcut.toString(QKeySequence::NativeText));
        row->addWidget(button);
        const auto run = [this, act] { m_actions.Run([this, act] { (this->*act)(); }); };
        connect(button, &QPushButton::clicked, this, run);
        auto* action = new QAction(this);
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    addButton("refresh", "&Refresh", "view-refresh", QKeySequence::Refresh, &ReportsWindow::Load);
    addButton("saveReport", "&Save As...", "document-save", QKeySequence::Save,
              &ReportsWindow::SaveAs);
    addButton("printReport", "&Print...", "document-print", QKeySequence::Print,
              &ReportsWindow::Print);

    auto* close = new QAction(this);
    close->setShortcuts({QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)});
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    return row;
}

void ReportsWindow::ShowAll()
{
    m_parameter.reset();
    OfferScopes();
    Load();
}

void ReportsWindow::ShowParameter(const std::string& name, std::vector<std::string> tags)
{
    m_parameter = {name, std::move(tags)};
    OfferScopes();
    m_scope->setCurrentIndex(1);
    Load();
}

void ReportsWindow::OfferScopes()
{
    m_scope->clear();
    m_scope->addItem("All current loci");
    if (m_parameter)
        m_scope->addItem("Those of " + ToQString(m_parameter->Name));
    m_scope->setEnabled(m_parameter.has_value());
}

void ReportsWindow::Load()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    m_types = m_host.ContextTypes();
    const int chosen = std::max(m_type->currentIndex(), 0);
    m_type->clear();
    const HostReportContextType* type = nullptr;
    for (const auto& offered : m_types)
    {
        const auto& hostType = dynamic_cast<const HostReportContextType&>(*offered);
        if (m_type->count() == chosen)
            type = &hostType;
        m_type->addItem(ToQString(hostType.Name()));
    }
    m_type->setCurrentIndex(chosen);
    m_type->setEnabled(m_type->count() > 1);

    Report report;
    if (type != nullptr)
        report = ContextsOf(m_host, *type);
    if (m_parameter && m_scope->currentIndex() == 1)
    {
        report = OnlyKeys(report, m_parameter->Tags);
        report.Subject = "Analysis parameter " + m_parameter->Name;
    }
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_model->Show(std::move(report));
    m_table->resizeColumnsToContents();
    for (int column = 0; column < m_model->columnCount(); ++column)
        m_table->setColumnWidth(column, m_table->columnWidth(column) +
                                            2 * fontMetrics().averageCharWidth());
    ShowStatus();
}

QString ReportsWindow::Heading() const
{
    return ToQString(m_model->Shown().Heading());
}

void ReportsWindow::ShowStatus(const QString& done)
{
    const std::size_t loci = m_model->Shown().Items.size();
    QString status = loci > 0 ? ToQString(CountOfLoci(loci)) + "."
                              : QString("There are no loci to report on yet.");
    if (!done.isEmpty())
        status += " " + done;
    m_status->setText(status);
}

void ReportsWindow::SaveAs()
{
    QStringList filters;
    for (const SaveFormat& format : formats)
        filters.append(format.Filter);
    QString chosen = filters.front();
    QString path =
        QFileDialog::getSaveFileName(this, "Save Report", "loci.pdf", filters.join(";;"), &chosen);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QString(".") + formats[std::max<qsizetype>(filters.indexOf(chosen), 0)].Suffix;
    Save(path);
}

void ReportsWindow::Save(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const Report& report = m_model->Shown();
    std::ostringstream text;
    QByteArray content;
    if (suffix == "pdf")
    {
        content = AsPdf();
        if (content.isEmpty())
            return;
    }
    else if (suffix == "html" || suffix == "htm")
        PrintHtmlPage(text, {{FromQString(Heading()), TableOf(report, Audience::People)}});
    else if (suffix == "tsv")
        PrintTsv(text, TableOf(report, Audience::Programs));
    else
        throw Failure(ErrorNumber::InvalidArgument, "Reports",
                      "The report wasn't saved: \"" + FromQString(QFileInfo(path).fileName()) +
                          "\" should end in .pdf, .html or .tsv");
    SaveFile(path, content.isEmpty() ? QByteArray::fromStdString(text.str()) : content);
    ShowStatus("Saved to " + path + ".");
}

QByteArray ReportsWindow::AsPdf()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                     QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter));
    writer.setTitle(Heading());
    writer.setCreator("Tamrivo");
    return PrintOn(writer, 1, 0) ? buffer.data() : QByteArray();
}

void ReportsWindow::Print()
{
    QPrinter printer;
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(Heading());
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (PrintOn(printer, std::max(printer.fromPage(), 1), printer.toPage()))
        ShowStatus("Sent to the printer.");
}

bool ReportsWindow::PrintOn(QPagedPaintDevice& device, int first, int last)
{
    const Table table = TableOf(m_model->Shown(), Audience::People);
    TablePrinter printer(table, Heading(), device);
    const int end = last > 0 ? std::min(last, printer.Pages()) : printer.Pages();
    QProgressDialog progress("Setting the pages...", "Cancel", 0, 1, this);
    progress.setWindowModality(Qt::WindowModal);
    const bool isDone = printer.Print(std::min(first, end), end, [&](int done, int pages) {
        progress.setMaximum(pages);
        progress.setValue(done);
        if (!progress.wasCanceled())
            return true;
        if (auto* paper = dynamic_cast<QPrinter*>(&device))
            paper->abort();
        return false;
    });
    if (!isDone)
        ShowStatus("Cancelled.");
    return isDone;
}

} // namespace Tamrivo
