#pragma once

#include <QString>

class QWidget;

namespace Tamrivo
{

class Store;

/// Asks for a file and writes the store into it. Gives what to tell the person; empty when they
/// gave up.
QString BackUpToFile(Store& store, QWidget* parent);

/// Asks for an empty store and carries everything into it. Gives what to tell the person; empty
/// when they gave up.
QString CopyToStore(Store& store, QWidget* parent);

} // namespace Tamrivo
