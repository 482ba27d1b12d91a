#pragma once

class QString;
class QWidget;

namespace Tamrivo
{

class Actions;
class Store;

/// Asks where to, and writes the current loci as a panel table. Gives what has been written
/// ("Exported 17 loci to /home/ada/loci.tsv."), or an empty text. Failures go to the actions.
QString ExportPanelTable(Store& store, const Actions& actions, QWidget* parent);

} // namespace Tamrivo
