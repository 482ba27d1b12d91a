#include "desktop/common/actions.h"
#include "desktop/import/import_dialog.h"

#include <QFileDialog>

namespace Tamrivo
{

QString ImportPanelFiles(Store& store, const Actions& actions, QWidget* parent, QStringList paths)
{
    QString result;
    actions.Run([&] {
        if (paths.isEmpty())
            paths = QFileDialog::getOpenFileNames(parent, "Import Panels", {},
                                                  "Panel files (*.tsv *.txt *.xml);;All files (*)");
        if (paths.isEmpty())
            return;
        ImportDialog dialog(store, actions, parent);
        dialog.Preview(paths);
        dialog.exec();
        result = dialog.Result();
    });
    return result;
}

} // namespace Tamrivo
