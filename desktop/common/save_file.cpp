#include "desktop/common/save_file.h"

#include "core/error.h"
#include "desktop/common/text.h"

#include <QDir>
#include <QSaveFile>

namespace Tamrivo
{

void SaveFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return;
    throw Failure(ErrorNumber::InvalidArgument, "SaveFile",
                  "The file \"" + FromQString(QDir::toNativeSeparators(path)) +
                      "\" can't be written: " + FromQString(file.errorString()));
}

} // namespace Tamrivo
