#include "desktop/import/export_dialog.h"

#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "host/loci/counts.h"
#include "host/panels/bins/panels_bins_writer.h"
#include "host/panels/whole_file.h"
#include "host/store/store.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <map>

namespace Tamrivo
{

ExportDialog::ExportDialog(Store& store, const Actions& actions, QWidget* parent)
    : QDialog(parent),
      m_store(store),
      m_actions(actions),
      m_format(new QComboBox(this)),
      m_panel(new QComboBox(this)),
      m_kit(new QLineEdit(this)),
      m_shortName(new QLineEdit(this)),
      m_standards(new QLineEdit(this)),
      m_outlook(new QLabel(this))
{
    setObjectName("exportLoci");
    setWindowTitle("Export Loci");
    auto* form = new QFormLayout(this);
    for (const PanelFormatName& format : PanelFormatNames)
        m_format->addItem(ToQString(std::string(format.Title)));
    m_format->setObjectName("exportFormat");
    m_panel->setObjectName("exportPanel");
    m_kit->setObjectName("exportKit");
    m_kit->setPlaceholderText("As the panel");
    m_shortName->setObjectName("exportShortName");
    m_shortName->setPlaceholderText("As the panel");
    m_standards->setObjectName("exportStandards");
    m_standards->setPlaceholderText("As OSIRIS has them, with commas between");
    m_outlook->setObjectName("exportOutlook");
    m_outlook->setTextFormat(Qt::PlainText);
    m_outlook->setWordWrap(true);
    m_outlook->setMinimumWidth(fontMetrics().averageCharWidth() * 70);
    form->addRow("&Format:", m_format);
    form->addRow("&Loci:", m_panel);
    form->addRow("Name of the &kit:", m_kit);
    form->addRow("Sh&ort name of the panel:", m_shortName);
    form->addRow("&Size standards:", m_standards);
    form->addRow(m_outlook);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = buttons->addButton("&Export...", QDialogButtonBox::AcceptRole);
    m_export->setObjectName("exportNow");
    m_export->setDefault(true);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_export, &QPushButton::clicked, this, [this] { m_actions.Run([this] { Export(); }); });

    OfferLoci();
    const auto plan = [this] { m_actions.Run([this] { Plan(); }); };
    for (QComboBox* box : {m_format, m_panel})
        connect(box, &QComboBox::currentIndexChanged, this, plan);
    for (QLineEdit* field : {m_kit, m_shortName, m_standards})
        connect(field, &QLineEdit::textChanged, this, plan);
    Plan();
}

void ExportDialog::OfferLoci()
{
    m_panel->addItem("All current loci");
    std::map<std::string, std::string, LessNoCase> panels;
    const auto loci = CurrentLoci(m_store.Manager(), "");
    for (const auto& locus : loci->Members())
    {
        const std::string panel = Trim(As<Locus>(locus)->PrimerSet);
        if (!panel.empty())
            panels.emplace(panel, panel);
    }
    for (const auto& [key, panel] : panels)
        m_panel->addItem("Panel " + ToQString(panel), ToQString(panel));
}

std::vector<std::shared_ptr<BusinessObject>> ExportDialog::ChosenLoci()
{
    const auto list = CurrentLoci(m_store.Manager(), "");
    std::vector<std::shared_ptr<BusinessObject>> loci(list->Members().begin(),
                                                      list->Members().end());
    const std::string panel = FromQString(m_panel->currentData().toString());
    if (!panel.empty())
        std::erase_if(loci, [&panel](const auto& locus) {
            return !EqualNoCase(Trim(As<Locus>(locus)->PrimerSet), panel);
        });
    return loci;
}

void ExportDialog::Plan()
{
    ExportChoice choice;
    choice.Format = static_cast<PanelFormat>(m_format->currentIndex());
    choice.Kit = Trim(FromQString(m_kit->text()));
    choice.ShortName = Trim(FromQString(m_shortName->text()));
    for (const QString& name : m_standards->text().split(',', Qt::SkipEmptyParts))
        choice.SizeStandards.push_back(FromQString(name.trimmed()));
    m_kit->setEnabled(choice.Format == PanelFormat::OsirisKit ||
                      choice.Format == PanelFormat::PanelsBins);
    m_shortName->setEnabled(choice.Format == PanelFormat::KitTable);
    m_standards->setEnabled(choice.Format == PanelFormat::OsirisKit);
    m_export->setEnabled(false);
    m_outlook->clear();

    LongWork work(m_store, "Reading the loci...", this);
    const auto loci = ChosenLoci();
    try
    {
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
    QString path = QFileDialog::getSaveFileName(this, isPair ? "Export Panels" : "Export Loci",
                                                (isKit    ? "loci_LadderInfo"
                                                 : isPair ? "loci_panels"
                                                          : "loci") +
                                                    suffix,
                                                filter);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += suffix;
    QString bins;
    if (isPair)
    {
        bins = QFileDialog::getSaveFileName(this, "Export Bins", "loci_bins" + suffix, filter);
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
    WriteWholeFile(FromQString(path), [&](std::ostream& out) {
        if (isPair)
            WritePanelsFile(out, m_plan);
        else
            WriteExport(out, m_plan, show);
    });
    if (isPair)
        WriteWholeFile(FromQString(binsPath),
                       [&](std::ostream& out) { WriteBinsFile(out, m_plan); });
    m_result = ToQString("Exported " + CountOfLoci(m_plan.Count()) + " to ") +
               QDir::toNativeSeparators(path) +
               (isPair ? " and " + QDir::toNativeSeparators(binsPath) : QString()) + ".";
}

QString ExportLoci(Store& store, const Actions& actions, QWidget* parent)
{
    QString result;
    actions.Run([&] {
        ExportDialog dialog(store, actions, parent);
        dialog.exec();
        result = dialog.Result();
    });
    return result;
}

} // namespace Tamrivo
