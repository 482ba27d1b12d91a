#include "desktop/forms/actions.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/import/import_dialog.h"
#include "desktop/import/panel_export.h"
#include "desktop/text.h"
#include "desktop/window/main_window.h"
#include "desktop/window/store_session.h"

#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QStatusBar>

namespace Tamrivo
{

namespace
{

const char* const storeFilter = "Stores (*.sqlite);;All files (*)";

} // namespace

void MainWindow::ChooseStore()
{
    const QString path = QFileDialog::getOpenFileName(this, "Open Store", {}, storeFilter);
    if (!path.isEmpty())
        OpenStore(FromQString(path));
}

void MainWindow::CreateStore()
{
    QFileDialog dialog(this, "Create Store", {}, storeFilter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("sqlite");
    // A store is never written over: what stands there would be lost.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    if (QFile::exists(path))
        QMessageBox::warning(this, "Create Store",
                             "The file " + path +
                                 " exists already and was left as it is. Open it with Open Store, "
                                 "or give the new store another name.");
    else
        OpenStore(FromQString(path));
}

void MainWindow::ChooseServer()
{
    const QString address = QInputDialog::getText(
        this, "Open Database Server",
        "Address of the database (postgresql://user@host/database):", QLineEdit::Normal,
        "postgresql://");
    if (!address.isEmpty())
        OpenStore(FromQString(address.trimmed()));
}

void MainWindow::ImportTable()
{
    ShowStoredLoci(ImportPanelTable(Host().Store(), m_frontEnd.UserActions(), this));
}

void MainWindow::ExportTable()
{
    statusBar()->showMessage(ExportPanelTable(Host().Store(), m_frontEnd.UserActions(), this));
}

} // namespace Tamrivo
