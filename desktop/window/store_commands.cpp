#include "desktop/window/store_commands.h"

#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/window/dyes_dialog.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"

#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

namespace Tamrivo
{

namespace
{

const char* const storeFilter = "Stores (*.sqlite);;All files (*)";

} // namespace

StoreCommands::StoreCommands(Workbench& workbench)
    : m_workbench(workbench), m_recent(std::make_unique<QMenu>())
{
    connect(m_recent.get(), &QMenu::aboutToShow, this, [this] { FillRecentMenu(); });
}

StoreCommands::~StoreCommands() = default;

void StoreCommands::Open()
{
    const QString path =
        QFileDialog::getOpenFileName(&m_workbench.Window(), "Open Store", {}, storeFilter);
    if (!path.isEmpty())
        m_workbench.OpenStore(FromQString(path));
}

void StoreCommands::Create()
{
    QFileDialog dialog(&m_workbench.Window(), "Create Store", {}, storeFilter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("sqlite");
    // A store is never written over: what stands there would be lost.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    if (QFile::exists(path))
        QMessageBox::warning(&m_workbench.Window(), "Create Store",
                             "The file " + path +
                                 " exists already and was left as it is. Open it with Open Store, "
                                 "or give the new store another name.");
    else
        m_workbench.OpenStore(FromQString(path));
}

void StoreCommands::OpenServer()
{
    const QString address = QInputDialog::getText(
        &m_workbench.Window(), "Open Database Server",
        "Address of the database (postgresql://user@host/database):", QLineEdit::Normal,
        "postgresql://");
    if (!address.isEmpty())
        m_workbench.OpenStore(FromQString(address.trimmed()));
}

QMenu& StoreCommands::RecentMenu()
{
    return *m_recent;
}

void StoreCommands::FillRecentMenu()
{
    m_recent->clear();
    for (const QString& address : RecentStores())
        m_recent->addAction(address, this, [this, address] {
            if (!m_workbench.OpenStore(FromQString(address)))
                ForgetStore(address);
        });
    if (m_recent->isEmpty())
        m_recent->addAction("No store yet")->setEnabled(false);
}

void StoreCommands::ShowProperties()
{
    DyesDialog dialog(m_workbench.Host().Store(), m_workbench.UserActions(), &m_workbench.Window());
    if (dialog.exec() == QDialog::Accepted)
        m_workbench.Reload("The store has the dyes that you said.");
}

void StoreCommands::Quit()
{
    m_workbench.Window().close();
}

} // namespace Tamrivo
