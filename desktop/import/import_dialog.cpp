#include "desktop/import/import_dialog.h"

#include "core/text.h"
#include "desktop/forms/actions.h"
#include "desktop/import/import_preview_model.h"
#include "desktop/long_work.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "platform/panels/counts.h"
#include "platform/panels/import.h"
#include "platform/panels/panel_file.h"
#include "platform/store/store.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
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

namespace
{

QString Sentence(const std::string& start, const QString& end)
{
    return ToQString(start) + end;
}

} // namespace

ImportDialog::ImportDialog(Store& store, const Actions& actions, QWidget* parent)
    : QDialog(parent),
      m_store(store),
      m_actions(actions),
      m_preview(new ImportPreviewModel(this)),
      m_source(new QLabel(this)),
      m_project(new QComboBox(this)),
      m_tree(new QTreeView(this)),
      m_reasonsCaption(new QLabel(this)),
      m_reasons(new QPlainTextEdit(this)),
      m_partial(new QCheckBox(this)),
      m_status(new QLabel(this))
{
    setObjectName("import");
    setWindowTitle("Import Panel Table");
    auto* layout = new QVBoxLayout(this);
    AddSourceRow(*layout);
    AddPreview(*layout);
    AddDecision(*layout);

    m_preview->onChosen = [this] { m_actions.Run([this] { Plan(); }); };
    m_replan.setSingleShot(true);
    m_replan.setInterval(300);
    connect(&m_replan, &QTimer::timeout, this, [this] { m_actions.Run([this] { Plan(); }); });
    connect(m_project, &QComboBox::editTextChanged, &m_replan, [this] { m_replan.start(); });
    connect(m_partial, &QCheckBox::toggled, this, [this] { ShowState(); });

    m_tree->setFocus();
    const int line = fontMetrics().lineSpacing();
    RestorePlace(*this, {76 * line, 38 * line});
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

void ImportDialog::Preview(const QString& path)
{
    m_path = path;
    m_reading = ReadPanelFile(FromQString(path));
    m_preview->SetMarkers(m_reading.Markers);
    m_source->setText(QString("%1 (markers: %2, panels: %3)")
                          .arg(Source())
                          .arg(m_reading.Markers.size())
                          .arg(m_preview->PanelCount()));
    m_source->setToolTip(path);
    OfferProjects();
    Plan();
    m_tree->expandAll();
    m_tree->setCurrentIndex(m_preview->index(0, 0));
    for (int column = 0; column < ImportPreviewModel::Remarks; ++column)
    {
        m_tree->resizeColumnToContents(column);
        m_tree->setColumnWidth(column, m_tree->columnWidth(column) + fontMetrics().height());
    }
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
    const auto panels = m_preview->ChosenPanels();
    if (m_reading.Complaints.empty() && !panels.empty())
    {
        LongWork work(m_store, "Comparing the table with the store...", this);
        ShowPlan(PlanImport(m_reading.Markers,
                            {panels, Trim(FromQString(m_project->currentText()))}, m_store,
                            [&](std::size_t done, std::size_t total) { work.Show(done, total); }));
    }
}

void ImportDialog::ShowPlan(ImportPlan plan)
{
    m_plan = std::move(plan);
    m_preview->SetPlan(m_plan);
    ShowState();
}

void ImportDialog::ShowState()
{
    const QStringList reasons = Reasons();
    m_reasonsCaption->setVisible(!reasons.isEmpty());
    m_reasons->setVisible(!reasons.isEmpty());
    if (const QString text = reasons.join('\n'); text != m_reasons->toPlainText())
        m_reasons->setPlainText(text);

    const std::size_t leftOut = m_plan.Count(ImportFate::LeftOut);
    m_partial->setVisible(leftOut > 0);
    m_partial->setText(Sentence("Leave out the " + CountOfLoci(leftOut) + " that can't come in, ",
                                "and import the &rest"));
    const QString obstacle = Obstacle();
    m_import->setEnabled(obstacle.isEmpty());
    m_status->setText((Outlook() + " " + obstacle).trimmed());
}

QString ImportDialog::Source() const
{
    return QFileInfo(m_path).fileName();
}

QStringList ImportDialog::Reasons() const
{
    constexpr qsizetype mostReasons = 500;
    QStringList reasons;
    for (const PanelComplaint& complaint : m_reading.Complaints)
        reasons.append(ToQString(complaint.Text()));
    if (m_reading.Complaints.size() >= MaxPanelComplaints)
        reasons.append("The rest of the table has not been read.");
    qsizetype further = 0;
    for (const PlannedLocus& locus : m_plan.Loci)
    {
        for (const std::string& obstacle : locus.Obstacles)
        {
            if (reasons.size() < mostReasons)
                reasons.append(ToQString(locus.Place() + ": " + obstacle + "."));
            else
                ++further;
        }
    }
    if (further > 0)
        reasons.append(QString("And %1 more; each stands at its marker above.").arg(further));
    return reasons;
}

QString ImportDialog::Outlook() const
{
    QStringList sentences;
    if (const std::size_t added = m_plan.Count(ImportFate::New); added > 0)
        sentences.append(
            Sentence(CountOfLoci(added) + " with " + CountOfAlleles(m_plan.NewAlleles()),
                     added == 1 ? " comes in." : " come in."));
    if (const std::size_t present = m_plan.Count(ImportFate::Present); present > 0)
        sentences.append(Sentence("The store has " + CountOfLoci(present),
                                  " already, and they stay as they are."));
    if (const std::size_t leftOut = m_plan.Count(ImportFate::LeftOut); leftOut > 0)
        sentences.append(Sentence(CountOfLoci(leftOut), " can't come in."));
    return sentences.join(' ');
}

QString ImportDialog::Obstacle() const
{
    if (!m_reading.Complaints.empty())
        return "Nothing can be imported: the table has lines that can't be read. Mend them and "
               "import it again.";
    if (m_reading.Markers.empty())
        return "Nothing to import: the table has no markers.";
    if (m_preview->ChosenPanels().empty())
        return "Tick a panel to import.";
    if (m_plan.Loci.empty())
        return "The table wasn't compared with the store. Untick and tick a panel to try again.";
    if (m_plan.Count(ImportFate::New) == 0)
        return "There is nothing new to import.";
    if (m_plan.Count(ImportFate::LeftOut) > 0 && !m_partial->isChecked())
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
        CarryOutImport(m_plan, m_store,
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
    m_result = Sentence("Imported " + CountOfLoci(m_plan.Count(ImportFate::New)) + " with " +
                            CountOfAlleles(m_plan.NewAlleles()),
                        ".");
    if (const std::size_t leftOut = m_plan.Count(ImportFate::LeftOut); leftOut > 0)
        m_result += Sentence(" Left out " + CountOfLoci(leftOut), ".");
    accept();
}

QString ImportPanelTable(Store& store, const Actions& actions, QWidget* parent)
{
    QString result;
    actions.Run([&] {
        const QString path = QFileDialog::getOpenFileName(
            parent, "Import Panel Table", {}, "Panel tables (*.tsv *.txt);;All files (*)");
        if (path.isEmpty())
            return;
        ImportDialog dialog(store, actions, parent);
        dialog.Preview(path);
        dialog.exec();
        result = dialog.Result();
    });
    return result;
}

} // namespace Tamrivo
