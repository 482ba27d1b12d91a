#include "desktop/import/import_dialog.h"

#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/import/difference_view.h"
#include "desktop/import/import_findings.h"
#include "desktop/import/import_options.h"
#include "desktop/import/import_preview_model.h"
#include "desktop/import/import_words.h"
#include "host/panels/import.h"
#include "host/panels/panel_files.h"
#include "host/store/store.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

ImportDialog::ImportDialog(Store& store, const Actions& actions, QWidget* parent)
    : QDialog(parent),
      m_store(store),
      m_actions(actions),
      m_preview(new ImportPreviewModel(this)),
      m_source(new QLabel(this)),
      m_project(new QComboBox(this)),
      m_options(new ImportOptions(this)),
      m_tree(new QTreeView(this)),
      m_differences(new DifferenceView(this)),
      m_findings(new ImportFindings(*m_preview, this)),
      m_reasonsCaption(new QLabel(this)),
      m_reasons(new QPlainTextEdit(this)),
      m_partial(new QCheckBox(this)),
      m_status(new QLabel(this))
{
    setObjectName("import");
    setWindowTitle("Import Panels");
    auto* layout = new QVBoxLayout(this);
    AddSourceRow(*layout);
    AddPreview(*layout);
    AddDecision(*layout);

    m_options->onReading = [this] { m_actions.Run([this] { ReadFiles(); }); };
    m_options->onPlan = [this] { m_actions.Run([this] { Plan(); }); };
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& row) {
                m_differences->Show(m_preview->PlannedAt(row));
                m_findings->Show(row);
            });
    connect(m_preview, &ImportPreviewModel::MarkersChosen, this,
            [this] { m_actions.Run([this] { Plan(); }); });
    m_replan.setSingleShot(true);
    m_replan.setInterval(300);
    connect(&m_replan, &QTimer::timeout, this, [this] { m_actions.Run([this] { Plan(); }); });
    connect(m_project, &QComboBox::editTextChanged, &m_replan, [this] { m_replan.start(); });
    connect(m_partial, &QCheckBox::toggled, this, [this] { ShowState(); });

    m_tree->setFocus();
    const int line = fontMetrics().lineSpacing();
    RestorePlace(*this, {94 * line, 44 * line});
}

ImportDialog::~ImportDialog()
{
    RememberPlace(*this);
}

void ImportDialog::AddSourceRow(QBoxLayout& layout)
{
    m_source->setObjectName("importSource");
    m_source->setTextFormat(Qt::PlainText);
    m_project->setObjectName("importProject");
    m_project->setEditable(true);
    m_project->setMinimumContentsLength(24);
    m_project->lineEdit()->setPlaceholderText("As the table says, else Default");
    m_project->setToolTip("The project of the loci that come in. A name that is new makes a new "
                          "project; nothing leaves it to the table.");
    auto* caption = new QLabel("Import into &project:", this);
    caption->setBuddy(m_project);
    m_project->setAccessibleName("Import into project");

    auto* row = new QHBoxLayout;
    row->addWidget(m_source, 1);
    row->addWidget(caption);
    row->addWidget(m_project);
    layout.addLayout(row);
}

void ImportDialog::AddPreview(QBoxLayout& layout)
{
    m_tree->setObjectName("importPreview");
    m_tree->setAccessibleName("What would come in");
    m_tree->setModel(m_preview);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setAllColumnsShowFocus(true);
    layout.addWidget(m_tree, 3);
    layout.addWidget(m_differences, 1);
    layout.addWidget(m_findings, 1);

    m_reasonsCaption->setText("What can't come in, &line by line:");
    m_reasonsCaption->setBuddy(m_reasons);
    m_reasons->setObjectName("importReasons");
    m_reasons->setAccessibleName("What can't come in, line by line");
    m_reasons->setReadOnly(true);
    m_reasons->setTabChangesFocus(true);
    m_reasons->setLineWrapMode(QPlainTextEdit::NoWrap);
    layout.addWidget(m_reasonsCaption);
    layout.addWidget(m_reasons, 1);
}

void ImportDialog::AddDecision(QBoxLayout& layout)
{
    m_partial->setObjectName("importPartial");
    m_status->setObjectName("importStatus");
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    layout.addWidget(m_options);
    layout.addWidget(m_partial);
    layout.addWidget(m_status);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_import = buttons->addButton("&Import", QDialogButtonBox::AcceptRole);
    m_import->setObjectName("importNow");
    m_import->setDefault(true);
    connect(m_import, &QPushButton::clicked, this, [this] { m_actions.Run([this] { Import(); }); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout.addWidget(buttons);
}

void ImportDialog::Preview(const QStringList& paths)
{
    m_paths = paths;
    m_source->setToolTip(paths.join('\n'));
    OfferProjects();
    // Where a panel has several sets of bins one must be chosen before anything can be read.
    m_options->OfferBinSets({});
    m_options->OfferBinSets(Read().BinSets);
    ReadFiles();
}

PanelReading ImportDialog::Read() const
{
    std::vector<PanelFile> files;
    for (const QString& path : m_paths)
    {
        files.push_back(OpenPanelFile(FromQString(path)));
        files.back().Name = FromQString(QFileInfo(path).fileName());
    }
    return ReadPanels(files, {.Format = m_options->Format(), .BinSet = m_options->BinSet()});
}

void ImportDialog::ReadFiles()
{
    m_differences->Show(nullptr);
    PanelReading reading = Read();
    m_complaints = std::move(reading.Complaints);
    m_preview->SetMarkers(std::move(reading.Markers));
    m_source->setText(QString("%1 (markers: %2, panels: %3)")
                          .arg(Source())
                          .arg(m_preview->Markers().size())
                          .arg(m_preview->PanelCount()));
    Plan();
    m_tree->expandAll();
    m_tree->setCurrentIndex(m_preview->index(0, 0));
    for (int column = 0; column < ImportPreviewModel::Remarks; ++column)
    {
        m_tree->resizeColumnToContents(column);
        m_tree->setColumnWidth(column, m_tree->columnWidth(column) + fontMetrics().height());
    }
    // They come later.
    m_tree->setColumnWidth(ImportPreviewModel::Findings,
                           fontMetrics().horizontalAdvance("WW 10 errors, 10 warnings"));
}

void ImportDialog::OfferProjects()
{
    const QSignalBlocker unheard(m_project);
    m_project->clear();
    const auto projects = Projects(m_store.Manager());
    for (const auto& project : projects->Members())
        m_project->addItem(ToQString(project->Name()));
    m_project->setEditText({});
}

void ImportDialog::Plan()
{
    m_replan.stop();
    // Nothing of the former plan may stay in view if this one fails.
    ShowPlan({});
    auto markers = m_preview->ChosenMarkers();
    if (m_complaints.empty() && !markers.empty())
    {
        LongWork work(m_store, "Comparing the table with the store...", this);
        ShowPlan(PlanImport(m_preview->Markers(),
                            {.Project = Trim(FromQString(m_project->currentText())),
                             .AddDyes = m_options->AddDyes(),
                             .Update = m_options->Update(),
                             .Markers = std::move(markers)},
                            m_store,
                            [&](std::size_t done, std::size_t total) { work.Show(done, total); }));
    }
}

void ImportDialog::ShowPlan(ImportPlan plan)
{
    m_findings->Stop();
    m_preview->SetPlan(std::move(plan));
    m_findings->Check();
    m_differences->Show(m_preview->PlannedAt(m_tree->currentIndex()));
    m_options->ShowPlan(m_preview->Plan());
    ShowState();
}

void ImportDialog::ShowState()
{
    const ImportPlan& plan = m_preview->Plan();
    const QStringList reasons = ReasonsAgainst(m_complaints, plan);
    m_reasonsCaption->setVisible(!reasons.isEmpty());
    m_reasons->setVisible(!reasons.isEmpty());
    if (const QString text = reasons.join('\n'); text != m_reasons->toPlainText())
        m_reasons->setPlainText(text);

    m_partial->setVisible(plan.Refused() > 0);
    m_partial->setText(OfferToLeaveOut(plan));
    const QString obstacle = Obstacle();
    m_import->setEnabled(obstacle.isEmpty());
    m_status->setText((OutlookOf(plan) + " " + obstacle).trimmed());
}

QString ImportDialog::Source() const
{
    QStringList names;
    for (const QString& path : m_paths)
        names.append(QFileInfo(path).fileName());
    return names.join(", ");
}

QString ImportDialog::Obstacle() const
{
    if (!m_complaints.empty())
        return "Nothing can be imported: the table has lines that can't be read. Mend them and "
               "import it again.";
    if (m_preview->Markers().empty())
        return "Nothing to import: the table has no markers.";
    if (m_preview->ChosenMarkers().empty())
        return "Tick a panel or a marker to import.";
    if (m_preview->Plan().Loci.empty())
        return "The table wasn't compared with the store. Untick and tick a panel to try again.";
    if (!m_preview->Plan().IsAny())
        return "There is nothing new to import.";
    if (m_preview->Plan().Refused() > 0 && !m_partial->isChecked())
        return "Tick the box above to import the rest without them.";
    return {};
}

void ImportDialog::Import()
{
    if (m_replan.isActive())
        Plan();
    if (!Obstacle().isEmpty())
        return;
    try
    {
        LongWork work(m_store, "Importing the loci...", this);
        CarryOutImport(m_preview->Plan(), m_store,
                       [&](std::size_t done, std::size_t total) { work.Show(done, total); });
    }
    catch (const Cancelled&)
    {
        m_status->setText("Cancelled: nothing was imported.");
        return;
    }
    catch (...)
    {
        // What stopped it may have changed what can come in.
        m_replan.start();
        throw;
    }
    m_result = ResultOf(m_preview->Plan());
    accept();
}

} // namespace Tamrivo
