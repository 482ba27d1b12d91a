#include "desktop/import/import_options.h"

#include "desktop/common/text.h"
#include "desktop/import/import_words.h"
#include "host/loci/counts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

namespace Tamrivo
{

ImportOptions::ImportOptions(QWidget* parent)
    : QWidget(parent),
      m_format(new QComboBox(this)),
      m_binsCaption(new QLabel("Set of &bins:", this)),
      m_bins(new QComboBox(this)),
      m_addDyes(new QCheckBox("&Add the dyes that are missing to the store", this)),
      m_update(new QCheckBox("&Update the loci that differ", this))
{
    m_binsCaption->setBuddy(m_bins);
    m_bins->setObjectName("importBins");
    m_bins->setAccessibleName("Set of bins");
    m_addDyes->setObjectName("importAddDyes");
    m_update->setObjectName("importUpdate");
    m_update->setToolTip("Fields that the files have, and alleles, become what the files say. What "
                         "the files can't carry stays.");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    AddFormat(*row);
    row->addWidget(m_binsCaption);
    row->addWidget(m_bins);
    row->addWidget(m_addDyes);
    row->addWidget(m_update);
    row->addStretch(1);

    for (QComboBox* box : {m_format, m_bins})
        connect(box, &QComboBox::currentIndexChanged, this, [this] {
            if (onReading)
                onReading();
        });
    for (QCheckBox* box : {m_addDyes, m_update})
        connect(box, &QCheckBox::toggled, this, [this] {
            if (onPlan)
                onPlan();
        });
    OfferBinSets({});
    ShowPlan({});
}

void ImportOptions::AddFormat(QBoxLayout& row)
{
    auto* caption = new QLabel("&Format:", this);
    caption->setBuddy(m_format);
    m_format->setObjectName("importFormat");
    m_format->setAccessibleName("Format");
    m_format->addItem("As their content tells");
    m_format->addItems(FormatTitles());
    row.addWidget(caption);
    row.addWidget(m_format);
}

void ImportOptions::OfferBinSets(const std::vector<std::string>& names)
{
    const QSignalBlocker unheard(m_bins);
    m_bins->clear();
    for (const std::string& name : names)
        m_bins->addItem(ToQString(name));
    m_binsCaption->setVisible(names.size() > 1);
    m_bins->setVisible(names.size() > 1);
}

std::optional<PanelFormat> ImportOptions::Format() const
{
    if (m_format->currentIndex() < 1)
        return std::nullopt;
    return static_cast<PanelFormat>(m_format->currentIndex() - 1);
}

std::string ImportOptions::BinSet() const
{
    return m_bins->count() > 1 ? FromQString(m_bins->currentText()) : "";
}

bool ImportOptions::AddDyes() const
{
    return m_addDyes->isChecked();
}

bool ImportOptions::Update() const
{
    return m_update->isChecked();
}

void ImportOptions::ShowPlan(const ImportPlan& plan)
{
    m_addDyes->setVisible(m_addDyes->isChecked() ||
                          std::ranges::any_of(plan.Loci, &PlannedLocus::NeedsDye));
    m_update->setVisible(m_update->isChecked() ||
                         std::ranges::any_of(plan.Loci, [](const PlannedLocus& locus) {
                             return !locus.Differences.empty();
                         }));
}

} // namespace Tamrivo
