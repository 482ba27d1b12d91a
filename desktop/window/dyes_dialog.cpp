#include "desktop/window/dyes_dialog.h"

#include "desktop/common/actions.h"
#include "desktop/common/dye_shade.h"
#include "desktop/common/text.h"
#include "host/store/store.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

namespace
{

enum Column
{
    Entry,
    Color,
    Name,
    LociUsing,
};

QComboBox* ColorBox(const std::string& chosen, const QPalette& palette, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setAccessibleName("Colour");
    for (const KnownColor& color : KnownColors)
    {
        QPixmap swatch(16, 16);
        swatch.fill(QColor::fromRgb(IsDarkTheme(palette) ? color.OnDark : color.OnLight));
        box->addItem(QIcon(swatch), ToQString(std::string(color.Name)));
    }
    box->setCurrentText(ToQString(chosen));
    return box;
}

} // namespace

DyesDialog::DyesDialog(Store& store, const Actions& actions, QWidget* parent)
    : QDialog(parent),
      m_store(store),
      m_actions(actions),
      m_before(store.Dyes()),
      m_loci(store.LociByDye()),
      m_table(new QTableWidget(this))
{
    setObjectName("storeProperties");
    setWindowTitle("Store Properties");
    auto* caption = new QLabel("&Dyes of the lab, in the order of the editor's list:", this);
    caption->setBuddy(m_table);
    m_table->setObjectName("dyes");
    m_table->setAccessibleName("Dyes");
    m_table->setColumnCount(4);
    m_table->setHorizontalHeaderLabels({"Entry", "Colour", "Name", "Loci"});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    for (std::size_t dye = 0; dye < m_before.All().size(); ++dye)
        AddRow(m_before.All()[dye], m_loci[dye]);
    m_table->resizeColumnsToContents();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel | QDialogButtonBox::Ok, this);
    auto* add = buttons->addButton("&Add Dye", QDialogButtonBox::ActionRole);
    add->setObjectName("addDye");
    auto* remove = buttons->addButton("&Remove Last", QDialogButtonBox::ActionRole);
    remove->setObjectName("removeDye");
    for (QPushButton* button : {add, remove})
        button->setEnabled(!store.IsReadOnly());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!store.IsReadOnly());
    connect(add, &QPushButton::clicked, this, [this] { AddDye(); });
    connect(remove, &QPushButton::clicked, this, [this] { RemoveLast(); });
    connect(buttons, &QDialogButtonBox::accepted, this,
            [this] { m_actions.Run([this] { Save(); }); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_table);
    layout->addWidget(buttons);
    const int line = fontMetrics().lineSpacing();
    resize(32 * line, 20 * line);
}

void DyesDialog::AddRow(const Dye& dye, std::size_t loci)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    const auto fixed = [this, row](int column, const QString& text) {
        auto* item = new QTableWidgetItem(text);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        m_table->setItem(row, column, item);
    };
    fixed(Entry, ToQString(DyeEntry(row)));
    fixed(LociUsing, QString::number(loci));
    m_table->setCellWidget(row, Color, ColorBox(dye.Color, palette(), m_table));
    m_table->setItem(row, Name, new QTableWidgetItem(ToQString(dye.Name)));
}

void DyesDialog::AddDye()
{
    if (static_cast<std::size_t>(m_table->rowCount()) == MostDyes)
        return ShowReason("A store has at most " + std::to_string(MostDyes) + " dyes.");
    for (const KnownColor& color : KnownColors)
    {
        bool isTaken = false;
        for (int row = 0; row < m_table->rowCount(); ++row)
            isTaken = isTaken ||
                      dynamic_cast<QComboBox&>(*m_table->cellWidget(row, Color)).currentText() ==
                          ToQString(std::string(color.Name));
        if (!isTaken)
            return AddRow({std::string(color.Name), ""}, 0);
    }
}

void DyesDialog::RemoveLast()
{
    if (static_cast<std::size_t>(m_table->rowCount()) == FewestDyes)
        return ShowReason("A store has at least " + std::to_string(FewestDyes) + " dyes.");
    m_table->removeRow(m_table->rowCount() - 1);
}

Dyes DyesDialog::Chosen() const
{
    std::vector<Dye> dyes;
    for (int row = 0; row < m_table->rowCount(); ++row)
        dyes.push_back(
            {FromQString(dynamic_cast<QComboBox&>(*m_table->cellWidget(row, Color)).currentText()),
             FromQString(m_table->item(row, Name)->text())});
    return Dyes(std::move(dyes));
}

bool DyesDialog::Recolors(const Dyes& dyes) const
{
    const std::int32_t common = std::min(dyes.Count(), m_before.Count());
    for (std::int32_t dye = 0; dye < common; ++dye)
    {
        if (m_loci[static_cast<std::size_t>(dye)] > 0 && dyes.ColorOf(dye) != m_before.ColorOf(dye))
            return true;
    }
    return false;
}

void DyesDialog::Save()
{
    const Dyes dyes = Chosen();
    const bool recolors = Recolors(dyes);
    if (recolors &&
        QMessageBox::question(this, windowTitle(),
                              "Loci have dyes that would get another colour. Recolour them?") !=
            QMessageBox::Yes)
        return;
    m_store.SetDyes(dyes, recolors);
    accept();
}

} // namespace Tamrivo
