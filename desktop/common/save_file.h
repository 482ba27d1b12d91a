#pragma once

#include <QByteArray>
#include <QString>

namespace Tamrivo
{

/// Writes a file; one that stands there is replaced once the new one is complete. Raises
/// `ErrorNumber::InvalidArgument` when the file can't be written; what stood there is then kept.
void SaveFile(const QString& path, const QByteArray& content);

} // namespace Tamrivo
