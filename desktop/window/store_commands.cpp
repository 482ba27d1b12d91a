#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/import/export_dialog.h"
#include "desktop/import/import_dialog.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/dyes_dialog.h"
#include "desktop/window/main_window.h"
#include "desktop/window/store_session.h"

#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>

#include <unordered_set>

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

void MainWindow::Import()
{
    ImportFiles({});
}

void MainWindow::ImportFiles(const QStringList& paths)
{
    ShowImported(ImportPanelFiles(Host().Store(), m_frontEnd.UserActions(), this, paths));
}

void MainWindow::ShowImported(const QString& news)
{
    if (news.isEmpty())
        return;
    std::unordered_set<std::int32_t> before;
    for (const LibraryLocus& locus : m_library->Loci()->Loci())
        before.insert(locus.LocusID);
    m_groups->Choose({});
    m_library->SetSearch({});
    Reload(news);
    m_pages->setCurrentWidget(m_library);
    std::unordered_set<std::int32_t> imported;
    for (const LibraryLocus& locus : m_library->Loci()->Loci())
    {
        if (!before.contains(locus.LocusID))
            imported.insert(locus.LocusID);
    }
    m_library->ChooseNumbers(imported);
    ShowState();
}

void MainWindow::Export()
{
    Tell(ExportLoci(Host().Store(), m_frontEnd.UserActions(), this));
}

void MainWindow::ShowStoreProperties()
{
    DyesDialog dialog(Host().Store(), m_frontEnd.UserActions(), this);
    if (dialog.exec() == QDialog::Accepted)
        Reload("The store has the dyes that you said.");
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls() && CommandNamed("import")->isEnabled())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
    {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    event->acceptProposedAction();
    // The program that the files come from waits until the drop has ended.
    if (!paths.isEmpty())
        QTimer::singleShot(0, this, [this, paths] { Run([&] { ImportFiles(paths); }); });
}

} // namespace Tamrivo
