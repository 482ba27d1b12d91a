#include "desktop/import/panel_export.h"

#include "desktop/forms/actions.h"
#include "desktop/long_work.h"
#include "desktop/text.h"
#include "platform/panels/counts.h"
#include "platform/panels/panel_file.h"
#include "platform/store/store.h"

#include <QDir>
#include <QFileDialog>

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
        LongWork work(store, "Exporting the loci...", parent);
        const auto loci = CurrentLoci(store.Manager(), "");
        const auto& members = loci->Members();
        WritePanelFile(FromQString(path), members,
                       [&](std::size_t done, std::size_t total) { work.Show(done, total); });
        result = ToQString("Exported " + CountOfLoci(members.size()) + " to ") +
                 QDir::toNativeSeparators(path) + ".";
    });
    return result;
}

} // namespace Tamrivo
