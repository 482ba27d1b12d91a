#include "desktop/import/panel_export.h"

#include "desktop/forms/actions.h"
#include "desktop/text.h"
#include "platform/panels/counts.h"
#include "platform/panels/panel_file.h"
#include "platform/store/store.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QScopeGuard>

namespace Tamrivo
{

QString ExportPanelTable(Store& store, const Actions& actions, QWidget* parent)
{
    QString result;
    actions.Run([&] {
        QString path = QFileDialog::getSaveFileName(parent, "Export Panel Table", "loci.tsv",
                                                    "Panel tables (*.tsv *.txt);;All files (*)");
        if (path.isEmpty())
            return;
        if (QFileInfo(path).suffix().isEmpty())
            path += ".tsv";
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        const auto loci = CurrentLoci(store.Manager(), "");
        WritePanelFile(FromQString(path), loci->Members());
        result = ToQString("Exported " + CountOfLoci(loci->Members().size()) + " to ") +
                 QDir::toNativeSeparators(path) + ".";
    });
    return result;
}

} // namespace Tamrivo
