#include "desktop/import/export_dialog.h"

#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "desktop/import/import_words.h"
#include "host/loci/counts.h"
#include "host/panels/export_files.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <map>

namespace Tamrivo
{

namespace
{

/// What the loci have in common, as the beginning of a file's name.
QString StemFor(const ExportScope& scope)
{
    static const QRegularExpression notInNames(R"([\\/:*?"<>|\x00-\x1f])");
    QString stem = ToQString(scope.Panel.empty() ? scope.Parameter : scope.Panel);
    return stem.isEmpty() ? "loci" : stem.replace(notInNames, "-");
}

} // namespace

ExportDialog::ExportDialog(Store& store, const Actions& actions, QWidget* parent,
                           const ShownLoci& shown)
    : QDialog(parent),
      m_store(store),
      m_actions(actions),
      m_format(new QComboBox(this)),
      m_scope(new QComboBox(this)),
      m_kit(new QLineEdit(this)),
      m_shortName(new QLineEdit(this)),
      m_standards(new QLineEdit(this)),
      m_outlook(new QLabel(this))
{
    setObjectName("exportLoci");
    setWindowTitle("Export Loci");
    auto* form = new QFormLayout(this);
    AddFields(*form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = buttons->addButton("&Export...", QDialogButtonBox::AcceptRole);
    m_export->setObjectName("exportNow");
    m_export->setDefault(true);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_export, &QPushButton::clicked, this, [this] { m_actions.Run([this] { Export(); }); });

    OfferLoci(shown);
    const auto plan = [this] { m_actions.Run([this] { Plan(); }); };
    for (QComboBox* box : {m_format, m_scope})
        connect(box, &QComboBox::currentIndexChanged, this, plan);
    for (QLineEdit* field : {m_kit, m_shortName, m_standards})
        connect(field, &QLineEdit::textChanged, this, plan);
    Plan();
}

void ExportDialog::AddFields(QFormLayout& form)
{
    m_format->addItems(FormatTitles());
    m_format->setObjectName("exportFormat");
    m_scope->setObjectName("exportScope");
    m_kit->setObjectName("exportKit");
    m_kit->setPlaceholderText("As the panel");
    m_shortName->setObjectName("exportShortName");
    m_shortName->setPlaceholderText("As the panel");
    m_standards->setObjectName("exportStandards");
    m_standards->setPlaceholderText("With commas between");
    m_outlook->setObjectName("exportOutlook");
    m_outlook->setTextFormat(Qt::PlainText);
    m_outlook->setWordWrap(true);
    m_outlook->setMinimumWidth(fontMetrics().averageCharWidth() * 70);
    form.addRow("&Loci:", m_scope);
    form.addRow("&Format:", m_format);
    form.addRow("Name of the &kit:", m_kit);
    form.addRow("Sh&ort name of the panel:", m_shortName);
    form.addRow("&Size standards:", m_standards);
    form.addRow(m_outlook);
}

void ExportDialog::Offer(const QString& title, ExportScope scope)
{
    m_scope->addItem(title);
    m_scopes.push_back(std::move(scope));
}

void ExportDialog::OfferLoci(const ShownLoci& shown)
{
    if (!shown.Chosen.empty())
        Offer(ToQString("The chosen " + CountOfLoci(shown.Chosen.size())), {.Tags = shown.Chosen});
    const auto offerParameter = [this](const std::string& name) {
        Offer("Parameter " + ToQString(name), {.Parameter = name});
    };
    if (!shown.Parameter.empty())
        offerParameter(shown.Parameter);
    Offer("All current loci", {});
    const bool isOneChosen = shown.Chosen.size() == 1;
    m_scope->setCurrentIndex(isOneChosen ? 1 : 0);

    std::map<std::string, std::string, LessNoCase> panels;
    const auto loci = CurrentLoci(m_store.Manager(), "");
    for (const auto& locus : loci->Members())
    {
        const std::string panel = Trim(As<Locus>(locus)->PrimerSet);
        if (!panel.empty())
            panels.emplace(panel, panel);
    }
    for (const auto& [key, panel] : panels)
        Offer("Panel " + ToQString(panel), {.Panel = panel});
    for (const std::string& parameter : ParameterStore(m_store).Names())
    {
        if (parameter != shown.Parameter)
            offerParameter(parameter);
    }
}

const ExportScope& ExportDialog::Scope() const
{
    return m_scopes.at(static_cast<std::size_t>(m_scope->currentIndex()));
}

ExportChoice ExportDialog::Choice() const
{
    ExportChoice choice;
    choice.Format = static_cast<PanelFormat>(m_format->currentIndex());
    choice.Kit = Trim(FromQString(m_kit->text()));
    choice.ShortName = Trim(FromQString(m_shortName->text()));
    for (const QString& name : m_standards->text().split(',', Qt::SkipEmptyParts))
        choice.SizeStandards.push_back(FromQString(name.trimmed()));
    return choice;
}

void ExportDialog::Plan()
{
    const ExportChoice choice = Choice();
    m_kit->setEnabled(choice.Format == PanelFormat::OsirisKit ||
                      choice.Format == PanelFormat::PanelsBins);
    m_shortName->setEnabled(choice.Format == PanelFormat::KitTable);
    m_standards->setEnabled(choice.Format == PanelFormat::OsirisKit);
    m_export->setEnabled(false);
    m_outlook->clear();

    LongWork work(m_store, "Reading the loci...", this);
    try
    {
        const auto loci = LociInScope(m_store, Scope());
        m_plan = PlanExport(loci, choice, m_store.Dyes(),
                            [&](std::size_t done, std::size_t total) { work.Show(done, total); });
    }
    catch (const Failure& failure)
    {
        if (failure.Record().Number != ErrorNumber::InvalidArgument)
            throw;
        m_outlook->setText(ToQString(failure.Record().Description + "."));
        return;
    }
    m_outlook->setText(ToQString(CountOfLoci(m_plan.Count()) + ". " + m_plan.Losses));
    m_export->setEnabled(m_plan.Count() > 0);
}

void ExportDialog::Export()
{
    const PanelFormatName& format = NameOf(m_plan.Choice.Format);
    const bool isKit = m_plan.Choice.Format == PanelFormat::OsirisKit;
    const bool isPair = m_plan.Choice.Format == PanelFormat::PanelsBins;
    const QString suffix = ToQString(std::string(format.Suffix));
    const QString filter = QString("Files (*%1);;All files (*)").arg(suffix);
    const QString stem = StemFor(Scope());
    QString path = QFileDialog::getSaveFileName(this, isPair ? "Export Panels" : "Export Loci",
                                                stem +
                                                    (isKit    ? "_LadderInfo"
                                                     : isPair ? "_panels"
                                                              : "") +
                                                    suffix,
                                                filter);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += suffix;
    QString bins;
    if (isPair)
    {
        bins = QFileDialog::getSaveFileName(this, "Export Bins", stem + "_bins" + suffix, filter);
        if (bins.isEmpty())
            return;
    }
    Write(path, bins);
    accept();
}

void ExportDialog::Write(const QString& path, const QString& binsPath)
{
    LongWork work(m_store, "Exporting the loci...", this);
    const auto show = [&](std::size_t done, std::size_t total) { work.Show(done, total); };
    const bool isPair = m_plan.Choice.Format == PanelFormat::PanelsBins;
    WriteExportFiles(m_plan, {FromQString(path), FromQString(binsPath)}, show);
    m_result = ToQString("Exported " + CountOfLoci(m_plan.Count()) + " to ") +
               QDir::toNativeSeparators(path) +
               (isPair ? " and " + QDir::toNativeSeparators(binsPath) : QString()) + ".";
}

QString ExportLoci(Store& store, const Actions& actions, QWidget* parent, const ShownLoci& shown)
{
    QString result;
    actions.Run([&] {
        ExportDialog dialog(store, actions, parent, shown);
        dialog.exec();
        result = dialog.Result();
    });
    return result;
}

} // namespace Tamrivo
