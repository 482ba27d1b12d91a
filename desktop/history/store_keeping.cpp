#include "desktop/history/store_keeping.h"

#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "host/store/store.h"
#include "host/store/store_backup.h"
#include "host/store/store_copy.h"

#include <QFileDialog>
#include <QInputDialog>

namespace Tamrivo
{

QString BackUpToFile(Store& store, QWidget* parent)
{
    QFileDialog dialog(parent, "Back Up Store", {}, "Stores (*.sqlite);;All files (*)");
    dialog.setObjectName("backup");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("sqlite");
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString file = dialog.selectedFiles().value(0);
    const LongWork work(store, "Backing up the store...", parent);
    // The dialog has asked before it let a file be overwritten.
    BackUpStore(store, FromQString(file), true);
    return "Backed up the store to " + file + ".";
}

QString CopyToStore(Store& store, QWidget* parent)
{
    const QString address =
        QInputDialog::getText(parent, "Copy Store",
                              "Empty store to copy everything into, history included\n"
                              "(a new file, or postgresql://user@host/database):")
            .trimmed();
    if (address.isEmpty())
        return {};
    Store target(FromQString(address));
    const LongWork work(store, "Copying the store...", parent);
    CopyStore(store, target);
    return "Copied the store to " + ToQString(target.Name()) + ".";
}

} // namespace Tamrivo
