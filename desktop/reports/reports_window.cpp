#include "desktop/reports/reports_window.h"

#include "desktop/common/actions.h"
#include "desktop/common/icons.h"
#include "desktop/common/long_work.h"
#include "desktop/common/save_file.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/reports/report_output.h"
#include "desktop/reports/report_table_model.h"
#include "host/framework/host_application.h"
#include "host/loci/counts.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

namespace
{

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
    SetUpTable();

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

void ReportsWindow::SetUpTable()
{
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
    const LongWork work(m_host.Store(), "Reading the loci...", this);
    const std::vector<ContextKind> kinds = m_host.ContextKinds();
    const int chosen = std::max(m_type->currentIndex(), 0);
    m_type->clear();
    for (const ContextKind& kind : kinds)
        m_type->addItem(ToQString(kind.Name));
    m_type->setCurrentIndex(chosen);
    m_type->setEnabled(m_type->count() > 1);

    Report report;
    if (chosen < std::ssize(kinds))
        report = ContextsOf(m_host, kinds[static_cast<std::size_t>(chosen)]);
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
    const QString path = AskForReportFile(this);
    if (!path.isEmpty())
        Save(path);
}

void ReportsWindow::Save(const QString& path)
{
    const auto content = ReportFileContent(m_model->Shown(), path, this);
    if (!content)
        return ShowStatus("Cancelled.");
    SaveFile(path, *content);
    ShowStatus("Saved to " + path + ".");
}

void ReportsWindow::Print()
{
    QPrinter printer;
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(ToQString(m_model->Shown().Heading()));
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const PageRange pages{std::max(printer.fromPage(), 1), printer.toPage()};
    ShowStatus(PrintReport(m_model->Shown(), printer, pages, this) ? "Sent to the printer."
                                                                   : "Cancelled.");
}

} // namespace Tamrivo
