#pragma once

#include <QStringList>

namespace Tamrivo
{

class Workbench;

/// Takes loci from panel files, and writes them as files.
class PanelFileCommands
{
public:
    explicit PanelFileCommands(Workbench& workbench) : m_workbench(workbench) {}

    void Import() { ImportFiles({}); }
    /// Shows files for import; asks for them when none are given. What they bring is chosen after.
    void ImportFiles(const QStringList& paths);
    void Export();

private:
    Workbench& m_workbench;
};

} // namespace Tamrivo
